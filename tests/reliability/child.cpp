#include "reliability/child.h"

#include <cerrno>
#include <csignal>
#include <exception>
#include <new>
#include <stdexcept>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace tavrel::test {
namespace {

/// How far a process is, in memory that it shares with the one that started it.
class Progress {
 public:
  explicit Progress(int first_version) {
    void* memory =
        ::mmap(nullptr, sizeof(Counters), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) throw std::runtime_error("no memory to share");
    counters_ = new (memory) Counters;
    counters_->Begun = first_version - 1;
    counters_->Done = first_version - 1;
  }
  ~Progress() { ::munmap(counters_, sizeof(Counters)); }
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  void Begin(int version) { counters_->Begun = version; }
  void Finish(int version) { counters_->Done = version; }
  Saved Now() const { return {counters_->Begun, counters_->Done}; }

 private:
  struct Counters {
    std::atomic<int> Begun;
    std::atomic<int> Done;
  };
  static_assert(std::atomic<int>::is_always_lock_free);

  Counters* counters_ = nullptr;
};

/// A process that is this one's copy, which goes when this one goes.
pid_t Fork() {
  const pid_t parent = ::getpid();
  const pid_t child = ::fork();
  if (child < 0) throw std::runtime_error("no process can be started");
  if (child == 0) {
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != parent) ::_exit(1);
  }
  return child;
}

int WaitFor(pid_t child) {
  int status = 0;
  while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
  }
  return status;
}

void WriteText(int handle, const std::string& text) {
  std::size_t at = 0;
  while (at < text.size()) {
    const ssize_t count = ::write(handle, text.data() + at, text.size() - at);
    if (count <= 0) return;
    at += static_cast<std::size_t>(count);
  }
}

std::string ReadText(int handle) {
  std::string text;
  char part[4096];
  for (ssize_t count = 1; count > 0;) {
    count = ::read(handle, part, sizeof part);
    if (count > 0) text.append(part, static_cast<std::size_t>(count));
  }
  return text;
}

}  // namespace

std::string InAProcess(const std::function<std::string()>& work) {
  int ends[2];
  if (::pipe(ends) != 0) throw std::runtime_error("no pipe");
  const pid_t child = Fork();
  if (child == 0) {
    try {
      WriteText(ends[1], work());
    } catch (const std::exception& error) {
      WriteText(ends[1], error.what());
      ::_exit(1);
    }
    ::_exit(0);
  }
  ::close(ends[1]);
  const std::string text = ReadText(ends[0]);
  ::close(ends[0]);
  const int status = WaitFor(child);
  return status == 0 ? text : "a process ended with status " + std::to_string(status) + ": " + text;
}

Saved SaveUntilKilled(int first_version, const std::function<void(int version)>& save,
                      std::chrono::microseconds time) {
  Progress progress(first_version);
  const pid_t child = Fork();
  if (child == 0) {
    try {
      for (int version = first_version;; ++version) {
        progress.Begin(version);
        save(version);
        progress.Finish(version);
      }
    } catch (const std::exception& error) {
      WriteText(STDERR_FILENO, error.what());
    }
    ::_exit(1);
  }
  constexpr int kTries = 100'000;  // some ten seconds
  for (int tries = 0; tries < kTries && progress.Now().Begun < first_version; ++tries) {
    std::this_thread::sleep_for(std::chrono::microseconds(100));
  }
  std::this_thread::sleep_for(time);
  ::kill(child, SIGKILL);
  const int status = WaitFor(child);
  const bool was_killed = WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
  return was_killed ? progress.Now() : Saved{-1, -1};
}

}  // namespace tavrel::test
