// A program that writes down how it was started, into the file that the environment variable TAVREL_RECORDING
// names: itself, its command line, its folder, how its window is to be shown and the number of its process,
// one a line in UTF-8.
#include <filesystem>
#include <fstream>
#include <string>

#include "core/text/run_time_error.h"
#include "platform/windows_error.h"

namespace {

namespace fs = std::filesystem;

constexpr DWORD kMost = 4096;

std::wstring Variable(const wchar_t* name) {
  std::wstring value(kMost, L'\0');
  value.resize(::GetEnvironmentVariableW(name, value.data(), kMost));
  return value;
}

fs::path Myself() {
  std::wstring name(kMost, L'\0');
  name.resize(::GetModuleFileNameW(nullptr, name.data(), kMost));
  return name;
}

void Record(const fs::path& file) {
  STARTUPINFOW start{};
  ::GetStartupInfoW(&start);
  fs::path part = file;
  part += L".part";
  {
    std::ofstream out(part, std::ios::binary);
    for (const fs::path& line : {Myself(), fs::path(::GetCommandLineW()), fs::current_path()}) {
      out << tavrel::PathText(line) << '\n';
    }
    out << ((start.dwFlags & STARTF_USESHOWWINDOW) != 0 ? start.wShowWindow : -1) << '\n';
    out << ::GetCurrentProcessId() << '\n';
  }
  fs::rename(part, file);
}

/// Stands back for the program whose place this one has taken.
void RunTheOther(std::wstring command_line) {
  const fs::path other = Myself().parent_path() / "tavrel-kept" / Myself().filename();
  STARTUPINFOW start{};
  start.cb = sizeof start;
  PROCESS_INFORMATION process{};
  ::CreateProcessW(other.c_str(), command_line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                   &process);
}

}  // namespace

int main() {
  const std::wstring file = Variable(L"TAVREL_RECORDING");
  const std::wstring command_line = ::GetCommandLineW();
  const bool starts_desktop = command_line.find(L"/desktop") != std::wstring::npos;
  if (file.empty() || starts_desktop) {
    RunTheOther(command_line);
  } else {
    Record(file);
  }
  return 0;
}
