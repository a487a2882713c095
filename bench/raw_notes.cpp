#include "raw_notes.h"

#include <cstdint>
#include <cstring>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using tavrel::bench::RawNote;

[[noreturn]] void Fail() {
  ::_exit(1);
}

int Checked(int result) {
  if (result < 0) Fail();
  return result;
}

/// A file's bytes where the system keeps them, without a copy.
const char* Map(const char* file, std::size_t& size) {
  const int handle = Checked(::open(file, O_RDONLY | O_CLOEXEC));
  struct stat status {};
  Checked(::fstat(handle, &status));
  size = static_cast<std::size_t>(status.st_size);
  void* bytes = ::mmap(nullptr, size, PROT_READ, MAP_PRIVATE | MAP_POPULATE, handle, 0);
  if (bytes == MAP_FAILED) Fail();
  return static_cast<const char*>(bytes);
}

void Write(int folder, const RawNote& note, const char* bytes) {
  const int handle = Checked(::openat(folder, note.Name, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666));
  if (::write(handle, bytes, note.Size) != static_cast<ssize_t>(note.Size)) Fail();
  Checked(::close(handle));
}

}  // namespace

/// Creates the notes that stand in the file FROM, as they are, in the new folder TO with nothing but the
/// system's calls.
int main(int argc, char* argv[]) {
  if (argc != 3) Fail();
  std::size_t size = 0;
  const char* bytes = Map(argv[1], size);
  Checked(::mkdir(argv[2], 0777));
  const int folder = Checked(::open(argv[2], O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  for (std::size_t at = 0; at < size;) {
    RawNote note{};
    std::memcpy(&note, bytes + at, sizeof note);
    Write(folder, note, bytes + at + sizeof note);
    at += sizeof note + note.Size;
  }
  return 0;
}
