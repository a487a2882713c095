#include "platform/unix_programs.h"

#include <spawn.h>
#include <sys/wait.h>
#include <thread>

extern char** environ;

namespace tavrel {

std::error_code StartDetached(const std::vector<std::string>& command) {
  std::vector<std::string> words = command;
  std::vector<char*> arguments;
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);

  pid_t process = 0;
  const int error = ::posix_spawnp(&process, arguments.front(), nullptr, nullptr, arguments.data(), environ);
  if (error != 0) return {error, std::generic_category()};
  // Somebody has to take note of its end, or it stays in the system's list of processes.
  std::thread([process] { ::waitpid(process, nullptr, 0); }).detach();
  return {};
}

}  // namespace tavrel
