#include "started_program.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

#include "ratios.h"

namespace tavrel::bench {
namespace {

void Check(int error, const char* call) {
  if (error != 0) throw std::system_error(error, std::generic_category(), call);
}

pid_t Spawn(std::vector<std::string>& command, int output) {
  std::vector<char*> arguments;
  for (std::string& argument : command) arguments.push_back(argument.data());
  arguments.push_back(nullptr);

  posix_spawn_file_actions_t actions;
  ::posix_spawn_file_actions_init(&actions);
  ::posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
  pid_t process = 0;
  const int error = ::posix_spawn(&process, arguments[0], &actions, nullptr, arguments.data(), environ);
  ::posix_spawn_file_actions_destroy(&actions);
  Check(error, "posix_spawn");
  return process;
}

/// What comes out of a pipe with the first write into it; empty if it is closed instead.
std::string FirstOutput(int pipe_end) {
  std::array<char, 256> buffer{};
  const ssize_t length = ::read(pipe_end, buffer.data(), buffer.size());
  return length > 0 ? std::string(buffer.data(), static_cast<std::size_t>(length)) : std::string();
}

}  // namespace

Report RunAndWait(std::vector<std::string> command) {
  std::array<int, 2> ends{};
  Check(::pipe2(ends.data(), O_CLOEXEC) == 0 ? 0 : errno, "pipe2");
  pid_t process = 0;
  std::string output;
  Report report;
  report.Seconds = Seconds([&] {
    process = Spawn(command, ends[1]);
    ::close(ends[1]);
    output = FirstOutput(ends[0]);
  });
  ::close(ends[0]);
  int status = 0;
  ::waitpid(process, &status, 0);
  if (output.empty() || status != 0) throw std::runtime_error(command.front() + " did not report");
  report.Megabytes = std::strtod(output.c_str(), nullptr) / 1024;
  return report;
}

double RunToItsEnd(std::vector<std::string> command) {
  int status = 0;
  const double seconds = Seconds([&] {
    const pid_t process = Spawn(command, STDOUT_FILENO);
    while (::waitpid(process, &status, 0) < 0) Check(errno == EINTR ? 0 : errno, "waitpid");
  });
  if (status != 0) throw std::runtime_error(command.front() + " did not succeed");
  return seconds;
}

}  // namespace tavrel::bench
