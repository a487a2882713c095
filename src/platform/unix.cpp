#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <memory>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include "core/text/run_time_error.h"
#include "platform/file_layer.h"
#include "platform/system_platform.h"
#include "platform/unix_programs.h"
#include "platform/unix_volumes.h"
#include "platform/whole_file.h"

namespace tavrel {
namespace {

namespace fs = std::filesystem;

/// Opens files and addresses with the programs that the desktop has for them.
constexpr const char* kDesktopOpener = "xdg-open";

constexpr mode_t kNewFileMode = 0666;
constexpr mode_t kPermissionBits = 07777;

std::error_code LastError() {
  return {errno, std::generic_category()};
}

std::error_code Result(int result) {
  return result < 0 ? LastError() : std::error_code();
}

class UnixFiles final : public FileLayer {
 public:
  std::error_code CreateNew(const fs::path& file, const fs::path& like, int& handle) override {
    handle = ::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kNewFileMode);
    if (handle < 0) return LastError();
    struct stat old {};
    if (::stat(like.c_str(), &old) == 0) {
      // Permissions are a courtesy: a file system without them is no obstacle.
      [[maybe_unused]] const int ignored = ::fchmod(handle, old.st_mode & kPermissionBits);
    }
    return {};
  }

  std::error_code CreateOrEmpty(const fs::path& file, int& handle) override {
    handle = ::open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, kNewFileMode);
    return Result(handle);
  }

  std::error_code Open(const fs::path& file, int& handle) override {
    handle = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
    return Result(handle);
  }

  std::error_code Read(int handle, char* buffer, std::size_t size, std::size_t& read) override {
    ssize_t count = -1;
    do {
      count = ::read(handle, buffer, size);
    } while (count < 0 && errno == EINTR);
    if (count < 0) return LastError();
    read = static_cast<std::size_t>(count);
    return {};
  }

  std::error_code Write(int handle, std::string_view bytes, std::size_t& written) override {
    ssize_t count = -1;
    do {
      count = ::write(handle, bytes.data(), bytes.size());
    } while (count < 0 && errno == EINTR);
    if (count < 0) return LastError();
    written = static_cast<std::size_t>(count);
    return {};
  }

  std::error_code Flush(int handle) override { return Result(::fsync(handle)); }

  std::error_code Close(int handle) override { return Result(::close(handle)); }

  std::error_code Replace(const fs::path& from, const fs::path& to) override {
    return Result(::rename(from.c_str(), to.c_str()));
  }

  std::error_code FlushFolder(const fs::path& folder) override {
    const int handle = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0) return LastError();
    const std::error_code error = Result(::fsync(handle));
    ::close(handle);
    return error;
  }

  std::error_code FlushVolume(const fs::path& folder) override {
    const int handle = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0) return LastError();
    const std::error_code error = Result(::syncfs(handle));
    ::close(handle);
    return error;
  }

  std::error_code Remove(const fs::path& file) override { return Result(::unlink(file.c_str())); }
};

class UnixPlatform final : public Platform {
 public:
  const CodePage& SystemCodePage() const override { return CodePage::Windows1252(); }

  std::vector<Volume> Volumes() const override { return MountedVolumes("/proc/self/mounts"); }

  bool IsReady(const Volume& volume) const override { return !WhyNotReadable(volume.Root); }

  std::error_code WhyNotReadable(const fs::path& folder) const override {
    std::error_code error;
    const fs::directory_iterator entries(folder, error);
    return error;
  }

  std::error_code WhyNotWritable(const fs::path& folder) const override {
    return Result(::access(folder.c_str(), W_OK | X_OK));
  }

  bool IsSystemVolume(const Volume& volume) const override { return volume.Root == "/"; }

  bool IsHidden(const fs::path& file) const override { return file.filename().native().starts_with('.'); }

  /// What no name can hold here never gets into a name.
  bool RefusesName(const fs::path& /*name*/) const override { return false; }

  void WriteWholeFile(const fs::path& file, std::string_view bytes) override {
    tavrel::WriteWholeFile(SystemFiles(), file, bytes);
  }

  void WritePlainFile(const fs::path& file, std::string_view bytes) override {
    tavrel::WritePlainFile(SystemFiles(), file, bytes);
  }

  void CopyPlainFile(const fs::path& from, const fs::path& to) override {
    tavrel::CopyPlainFile(SystemFiles(), from, to);
  }

  void FlushVolumeOf(const fs::path& folder) override { tavrel::FlushVolumeOf(SystemFiles(), folder); }

  bool OpenInBrowser(const std::string& target) override { return !StartDetached({kDesktopOpener, target}); }

  bool OpenMail(const std::string& address) override { return !StartDetached({kDesktopOpener, address}); }

  void StartProgram(const fs::path& program) override {
    const std::error_code error = StartDetached({program.string()});
    if (error) throw FileError(program, "could not be started", error);
  }

  std::optional<RegistryValue> ReadRegistry(RegistryRoot /*root*/, const std::string& /*key*/,
                                            const std::string& /*name*/) const override {
    return std::nullopt;
  }
};

}  // namespace

FileLayer& SystemFiles() {
  static UnixFiles files;
  return files;
}

std::unique_ptr<Platform> MakeSystemPlatform() {
  return std::make_unique<UnixPlatform>();
}

}  // namespace tavrel
