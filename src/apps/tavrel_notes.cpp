#include <algorithm>
#include <exception>
#include <filesystem>
#include <iostream>
#include <vector>

#include "notes/messages.h"
#include "notes/tasks.h"
#include "platform/system_platform.h"

namespace tavrel::notes {
namespace {

int Run(const std::vector<std::filesystem::path>& words) {
  try {
    const auto platform = MakeSystemPlatform();
    return static_cast<int>(Do(ReadArguments(words), *platform));
  } catch (const std::exception& error) {
    std::cerr << MessageAbout(error) << '\n';
  }
  return static_cast<int>(Outcome::Failed);
}

}  // namespace
}  // namespace tavrel::notes

// Names come in as the system has them, whatever the code page holds.
#ifdef _WIN32
int wmain(int argc, wchar_t* argv[]) {
#else
int main(int argc, char* argv[]) {
#endif
  return tavrel::notes::Run({argv + std::min(argc, 1), argv + argc});
}
