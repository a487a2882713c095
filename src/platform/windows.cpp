#include <filesystem>
#include <memory>
#include <string>

#include "core/text/run_time_error.h"
#include "platform/file_layer.h"
#include "platform/system_platform.h"
#include "platform/whole_file.h"
#include "platform/windows_code_page.h"
#include "platform/windows_error.h"
#include "platform/windows_names.h"

namespace tavrel {
namespace {

namespace fs = std::filesystem;

/// Asking for a drive without a disk must not make the system show a message of its own.
class NoSystemMessages {
 public:
  NoSystemMessages() { ::SetThreadErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX, &old_mode_); }
  ~NoSystemMessages() { ::SetThreadErrorMode(old_mode_, nullptr); }
  NoSystemMessages(const NoSystemMessages&) = delete;
  NoSystemMessages& operator=(const NoSystemMessages&) = delete;

 private:
  DWORD old_mode_ = 0;
};

/// An open registry key.
class RegistryKey {
 public:
  /// All rights: query, set, create, enumerate, notify and link, and read control.
  static constexpr REGSAM kFullAccess = 0x2003F;

  RegistryKey(RegistryRoot root, const std::string& name) {
    const auto handle = reinterpret_cast<HKEY>(static_cast<ULONG_PTR>(static_cast<LONG>(root)));
    if (::RegOpenKeyExA(handle, name.c_str(), 0, kFullAccess, &key_) != ERROR_SUCCESS) key_ = nullptr;
  }
  ~RegistryKey() {
    if (key_ != nullptr) ::RegCloseKey(key_);
  }
  RegistryKey(const RegistryKey&) = delete;
  RegistryKey& operator=(const RegistryKey&) = delete;

  std::optional<RegistryValue> Query(const std::string& name) const {
    if (key_ == nullptr) return std::nullopt;
    constexpr DWORD kBufferSize = 1024;
    RegistryValue value;
    value.Bytes.resize(kBufferSize);
    DWORD type = 0;
    DWORD size = kBufferSize;
    if (::RegQueryValueExA(key_, name.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(value.Bytes.data()),
                           &size) != ERROR_SUCCESS) {
      return std::nullopt;
    }
    value.Type = type;
    value.Bytes.resize(size);
    return value;
  }

 private:
  HKEY key_ = nullptr;
};

/// Starts a program, with a command line that begins with its name, in a normal window.
std::error_code Run(const fs::path& program, std::wstring command_line) {
  STARTUPINFOW start{};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESHOWWINDOW;
  start.wShowWindow = SW_SHOWNORMAL;
  PROCESS_INFORMATION process{};
  if (::CreateProcessW(program.c_str(), command_line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                       &start, &process) == 0) {
    return LastSystemError();
  }
  ::CloseHandle(process.hThread);
  ::CloseHandle(process.hProcess);
  return {};
}

fs::path WindowsFolder() {
  std::wstring folder(MAX_PATH, L'\0');
  folder.resize(::GetSystemWindowsDirectoryW(folder.data(), MAX_PATH));
  return folder;
}

std::string UpperDrive(const fs::path& path) {
  std::string name = path.root_name().string();
  if (!name.empty() && name[0] >= 'a' && name[0] <= 'z') name[0] = static_cast<char>(name[0] - 'a' + 'A');
  return name;
}

class WindowsPlatform final : public Platform {
 public:
  const CodePage& SystemCodePage() const override { return WindowsCodePage(); }

  std::vector<Volume> Volumes() const override {
    std::vector<Volume> volumes;
    const DWORD drives = ::GetLogicalDrives();
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
      if ((drives & (1U << (letter - 'A'))) == 0) continue;
      const std::string name = std::string(1, letter) + ":";
      volumes.push_back({name, fs::path(name + "\\")});
    }
    return volumes;
  }

  bool IsReady(const Volume& volume) const override { return !WhyNotReadable(volume.Root); }

  std::error_code WhyNotReadable(const fs::path& folder) const override {
    if (IsTooLongToList(folder)) return std::make_error_code(std::errc::filename_too_long);
    const NoSystemMessages quiet;
    WIN32_FIND_DATAW entry;
    const HANDLE entries = ::FindFirstFileW((folder / L"*").c_str(), &entry);
    if (entries == INVALID_HANDLE_VALUE) {
      // A disk may be without any files.
      return ::GetLastError() == ERROR_FILE_NOT_FOUND ? std::error_code() : LastSystemError();
    }
    ::FindClose(entries);
    return {};
  }

  std::error_code WhyNotWritable(const fs::path& folder) const override {
    const NoSystemMessages quiet;
    const HANDLE handle =
        ::CreateFileW(folder.c_str(), FILE_ADD_FILE, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                      nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (handle == INVALID_HANDLE_VALUE) return LastSystemError();
    ::CloseHandle(handle);
    // The right to add files to a folder is the one to write to a file.
    std::error_code ignored;
    return fs::is_directory(folder, ignored) ? std::error_code()
                                             : std::make_error_code(std::errc::not_a_directory);
  }

  bool IsSystemVolume(const Volume& volume) const override {
    return UpperDrive(volume.Root) == UpperDrive(WindowsFolder());
  }

  bool IsHidden(const fs::path& file) const override {
    const DWORD attributes = ::GetFileAttributesW(file.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES &&
           (attributes & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM)) != 0;
  }

  bool RefusesName(const fs::path& name) const override { return IsNoWindowsFileName(name); }

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

  bool OpenInBrowser(const std::string& target) override {
    // Named whole, so that no other program of that name in the current folder is taken for it.
    const fs::path explorer = WindowsFolder() / "explorer.exe";
    return !Run(explorer, L"explorer.exe " + fs::path(target).native());
  }

  bool OpenMail(const std::string& address) override {
    constexpr INT_PTR kLastError = 32;
    const HINSTANCE result = ::ShellExecuteA(nullptr, "open", address.c_str(), "", "", SW_SHOWNORMAL);
    return reinterpret_cast<INT_PTR>(result) > kLastError;
  }

  void StartProgram(const fs::path& program) override {
    const std::error_code error = Run(program, L'"' + program.native() + L'"');
    if (error) throw FileError(program, "could not be started", error);
  }

  std::optional<RegistryValue> ReadRegistry(RegistryRoot root, const std::string& key,
                                            const std::string& name) const override {
    return RegistryKey(root, key).Query(name);
  }
};

}  // namespace

std::unique_ptr<Platform> MakeSystemPlatform() {
  return std::make_unique<WindowsPlatform>();
}

}  // namespace tavrel
