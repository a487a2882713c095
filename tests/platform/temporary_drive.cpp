#include "platform/temporary_drive.h"

#include <stdexcept>
#include <string>

#include "platform/patience.h"
#include "platform/wine.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;

std::string UnusedDrive() {
  const DWORD used = ::GetLogicalDrives();
  for (char letter = 'G'; letter <= 'Y'; ++letter) {
    if ((used & (1U << (letter - 'A'))) == 0) return std::string(1, letter) + ":";
  }
  throw std::runtime_error("every drive letter is taken");
}

/// Runs a program of the system around the emulator.
void RunOutside(const std::wstring& program, std::wstring command_line) {
  STARTUPINFOW start{};
  start.cb = sizeof start;
  PROCESS_INFORMATION process{};
  if (::CreateProcessW(program.c_str(), command_line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                       &start, &process) == 0) {
    throw std::runtime_error("cannot run " + fs::path(program).string());
  }
  ::CloseHandle(process.hThread);
  ::CloseHandle(process.hProcess);
}

/// A path as the system around the emulator has it.
std::wstring OutsideName(const fs::path& path) {
  using NameOf = char* (*)(const wchar_t*);
  const auto name_of = reinterpret_cast<NameOf>(reinterpret_cast<void*>(
      ::GetProcAddress(::GetModuleHandleW(L"kernel32.dll"), "wine_get_unix_file_name")));
  char* name = name_of(path.c_str());
  std::wstring wide = fs::path(name).native();
  ::HeapFree(::GetProcessHeap(), 0, name);
  return wide;
}

/// Where the emulator keeps a drive, as a symbolic link with a small letter.
std::wstring LinkOf(const std::string& drive) {
  constexpr DWORD kMost = 4096;
  std::wstring prefix(kMost, L'\0');
  prefix.resize(::GetEnvironmentVariableW(L"WINEPREFIX", prefix.data(), kMost));
  const auto letter = static_cast<wchar_t>(drive[0] - 'A' + L'a');
  return prefix + L"/dosdevices/" + letter + L":";
}

bool IsThere(const fs::path& root) {
  return ::GetFileAttributesW(root.c_str()) != INVALID_FILE_ATTRIBUTES;
}

}  // namespace

TemporaryDrive::TemporaryDrive(const fs::path& folder) : folder_(folder.native()) {
  const std::string name = UnusedDrive();
  volume_ = {name, fs::path(name + "\\")};
  ::DefineDosDeviceW(0, fs::path(name).c_str(), folder_.c_str());
  // That alone makes a drive that is listed, but not one with files.
  if (RunsUnderWine()) {
    RunOutside(LR"(Z:\bin\ln)", L"ln -sfn \"" + OutsideName(folder) + L"\" \"" + LinkOf(name) + L"\"");
  }
  if (!ComesTrue([this] { return IsThere(Root()); })) throw std::runtime_error("cannot make drive " + name);
}

TemporaryDrive::~TemporaryDrive() {
  TakeOut();
}

void TemporaryDrive::TakeOut() {
  if (folder_.empty()) return;
  folder_.clear();
  ::DefineDosDeviceW(DDD_REMOVE_DEFINITION, fs::path(volume_.Name).c_str(), nullptr);
  if (RunsUnderWine()) RunOutside(LR"(Z:\bin\rm)", L"rm -f \"" + LinkOf(volume_.Name) + L"\"");
  ComesTrue([this] { return !IsThere(Root()); });
}

}  // namespace tavrel::test
