#include "reliability/in_memory.h"

#ifndef _WIN32
#include <cstdlib>
#include <unistd.h>
#endif

namespace tavrel::test {

#ifdef _WIN32
InMemory::InMemory() = default;
InMemory::~InMemory() = default;
#else
namespace {

constexpr const char* kFolder = "/dev/shm";
constexpr const char* kVariable = "TMPDIR";

}  // namespace

InMemory::InMemory() {
  if (const char* old = std::getenv(kVariable)) old_folder_ = old;
  if (::access(kFolder, W_OK | X_OK) == 0) ::setenv(kVariable, kFolder, 1);
}

InMemory::~InMemory() {
  if (old_folder_) {
    ::setenv(kVariable, old_folder_->c_str(), 1);
  } else {
    ::unsetenv(kVariable);
  }
}
#endif

}  // namespace tavrel::test
