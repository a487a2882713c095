#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <io.h>
#include <limits>
#include <share.h>
#include <sys/stat.h>
#include <system_error>

#include "platform/file_layer.h"
#include "platform/windows_error.h"
#include "platform/windows_names.h"

namespace tavrel {
namespace {

namespace fs = std::filesystem;

std::error_code LastCallError() {
  return {errno, std::generic_category()};
}

std::error_code Result(int result) {
  return result < 0 ? LastCallError() : std::error_code();
}

std::error_code OpenHandle(const fs::path& file, int flags, int& handle) {
  const errno_t error =
      ::_wsopen_s(&handle, file.c_str(), flags | _O_BINARY | _O_NOINHERIT, _SH_DENYNO, _S_IREAD | _S_IWRITE);
  return error == 0 ? std::error_code() : std::error_code(error, std::generic_category());
}

/// One call takes no more than this.
unsigned CallSize(std::size_t size) {
  return static_cast<unsigned>(std::min<std::size_t>(size, std::numeric_limits<int>::max()));
}

/// A file that may not be written to, or that another program keeps to itself.
bool IsNotWritable(const std::error_code& error) {
  return error.value() == ERROR_ACCESS_DENIED || error.value() == ERROR_SHARING_VIOLATION;
}

/// Calls the system until it succeeds, for half a second at most: virus scanners, and this program where it
/// compares a document with its draft, keep a file to themselves for a moment.
template <typename Call>
std::error_code Patiently(const Call& call) {
  constexpr int kTries = 20;
  constexpr DWORD kPause = 25;
  std::error_code error;
  for (int tries = 0; tries < kTries; ++tries) {
    if (call() != 0) return {};
    error = LastSystemError();
    if (!IsNotWritable(error)) return error;
    ::Sleep(kPause);
  }
  return error;
}

class WindowsFiles final : public FileLayer {
 public:
  std::error_code CreateNew(const fs::path& file, const fs::path& /*like*/, int& handle) override {
    // A new file has the permissions that its folder gives.
    return OpenHandle(file, _O_WRONLY | _O_CREAT | _O_EXCL, handle);
  }

  std::error_code CreateOrEmpty(const fs::path& file, int& handle) override {
    return OpenHandle(file, _O_WRONLY | _O_CREAT | _O_TRUNC, handle);
  }

  std::error_code Open(const fs::path& file, int& handle) override {
    return OpenHandle(file, _O_RDONLY, handle);
  }

  std::error_code Read(int handle, char* buffer, std::size_t size, std::size_t& read) override {
    const int count = ::_read(handle, buffer, CallSize(size));
    if (count < 0) return LastCallError();
    read = static_cast<std::size_t>(count);
    return {};
  }

  std::error_code Write(int handle, std::string_view bytes, std::size_t& written) override {
    const int count = ::_write(handle, bytes.data(), CallSize(bytes.size()));
    if (count < 0) return LastCallError();
    written = static_cast<std::size_t>(count);
    return {};
  }

  std::error_code Flush(int handle) override { return Result(::_commit(handle)); }

  std::error_code Close(int handle) override { return Result(::_close(handle)); }

  std::error_code Replace(const fs::path& from, const fs::path& to) override {
    // ReplaceFile would keep the old file's permissions, but can fail half way with the old file gone.
    return Patiently([&] {
      return ::MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
    });
  }

  std::error_code FlushFolder(const fs::path& /*folder*/) override {
    // The system writes its folders through.
    return {};
  }

  std::error_code FlushVolume(const fs::path& folder) override;

  std::error_code Remove(const fs::path& file) override {
    return Patiently([&] { return ::DeleteFileW(file.c_str()); });
  }
};

/// Waits until what was written to an open file, or volume, is on the disk.
std::error_code FlushOpened(const std::wstring& name) {
  const HANDLE handle = ::CreateFileW(name.c_str(), GENERIC_READ | GENERIC_WRITE,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                      OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return LastSystemError();
  const std::error_code error = ::FlushFileBuffers(handle) != 0 ? std::error_code() : LastSystemError();
  ::CloseHandle(handle);
  return error;
}

std::error_code FlushFilesIn(const fs::path& folder) {
  std::error_code error;
  if (IsTooLongToList(folder)) return std::make_error_code(std::errc::filename_too_long);
  for (fs::recursive_directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    std::error_code ignored;
    if (!entry->is_regular_file(ignored)) continue;
    const std::error_code flushed = FlushOpened(entry->path().native());
    if (flushed && !IsNotWritable(flushed)) return flushed;
  }
  return error;
}

std::error_code WindowsFiles::FlushVolume(const fs::path& folder) {
  // Only disks that can be taken out may be flushed as a whole by everyone, and not every kind of disk can.
  const bool whole = !FlushOpened(LR"(\\.\)" + folder.root_name().native());
  return whole ? std::error_code() : FlushFilesIn(folder);
}

}  // namespace

FileLayer& SystemFiles() {
  static WindowsFiles files;
  return files;
}

}  // namespace tavrel
