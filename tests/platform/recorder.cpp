#include "platform/recorder.h"

#include <fstream>
#include <stdexcept>

#include "platform/patience.h"
#include "platform/windows_error.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;

constexpr const wchar_t* kVariable = L"TAVREL_RECORDING";

fs::path PathOf(const std::string& utf8) {
  return {std::u8string(utf8.begin(), utf8.end())};
}

void WaitForEnd(const std::string& process) {
  constexpr DWORD kPatience = 10'000;
  const HANDLE handle = ::OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(std::stoul(process)));
  if (handle == nullptr) return;
  ::WaitForSingleObject(handle, kPatience);
  ::CloseHandle(handle);
}

}  // namespace

Recorder::Recorder(const fs::path& file) : file_(file) {
  ::SetEnvironmentVariableW(kVariable, file_.c_str());
}

Recorder::~Recorder() {
  ::SetEnvironmentVariableW(kVariable, nullptr);
}

fs::path Recorder::Program() {
  constexpr DWORD kMost = 4096;
  std::wstring tests(kMost, L'\0');
  tests.resize(::GetModuleFileNameW(nullptr, tests.data(), kMost));
  return fs::path(tests).parent_path() / "tavrel_recording_program.exe";
}

Recording Recorder::Recorded() const {
  std::ifstream lines;
  // The file may be there before it can be opened.
  const auto is_open = [&] {
    lines.open(file_, std::ios::binary);
    return lines.is_open();
  };
  if (!ComesTrue(is_open)) throw std::runtime_error("nothing was started");
  std::string program;
  std::string folder;
  std::string process;
  Recording recording;
  std::getline(lines, program);
  std::getline(lines, recording.CommandLine);
  std::getline(lines, folder);
  std::getline(lines, recording.Shown);
  std::getline(lines, process);
  recording.Program = PathOf(program);
  recording.Folder = PathOf(folder);
  lines.close();
  fs::remove(file_);
  WaitForEnd(process);
  return recording;
}

}  // namespace tavrel::test
