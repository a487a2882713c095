#include <array>
#include <gtest/gtest.h>
#include <string>
#include <windows.h>

#include "core/shell/program_info.h"

namespace tavrel::test {
namespace {

/// What the program's file carries for the system.
class WindowsResourcesTest : public testing::Test {
 protected:
  void SetUp() override { ASSERT_NE(file_, nullptr) << TAVREL_WRITER_EXE; }
  ~WindowsResourcesTest() override { ::FreeLibrary(file_); }

  std::string Bytes(const char* name, const char* type) const {
    const HRSRC found = ::FindResourceA(file_, name, type);
    if (found == nullptr) return {};
    const auto* bytes = static_cast<const char*>(::LockResource(::LoadResource(file_, found)));
    return {bytes, ::SizeofResource(file_, found)};
  }

  const HMODULE file_ = ::LoadLibraryExA(TAVREL_WRITER_EXE, nullptr, LOAD_LIBRARY_AS_DATAFILE);
};

TEST_F(WindowsResourcesTest, TheIconHasAllSizesThatTheSystemShows) {
  const std::string group = Bytes(MAKEINTRESOURCEA(1), RT_GROUP_ICON);
  // After six bytes, fourteen for each picture, which begin with its width; 0 stands for 256.
  std::string widths;
  for (std::size_t at = 6; at < group.size(); at += 14)
    widths += std::to_string(static_cast<unsigned char>(group[at])) + " ";
  for (const char* width : {"16 ", "32 ", "48 ", "0 "})
    EXPECT_NE(widths.find(width), std::string::npos) << width << widths;
}

TEST_F(WindowsResourcesTest, TheVersionIsTheProgramsOwn) {
  const std::string version = Bytes(MAKEINTRESOURCEA(1), RT_VERSION);
  // The fixed part lies behind its length, its kind and the name of the block, at the next multiple of four.
  constexpr std::size_t kFixedPart = 40;
  ASSERT_GT(version.size(), kFixedPart + sizeof(VS_FIXEDFILEINFO));
  VS_FIXEDFILEINFO fixed;
  version.copy(reinterpret_cast<char*>(&fixed), sizeof fixed, kFixedPart);
  ASSERT_EQ(fixed.dwSignature, 0xFEEF04BDU);
  EXPECT_EQ(fixed.dwFileVersionMS, static_cast<DWORD>(kMajor << 16 | kMinor));
  EXPECT_EQ(fixed.dwFileVersionLS, static_cast<DWORD>(kBuild << 16 | kRevision));
}

TEST_F(WindowsResourcesTest, TheManifestAsksForSharpWindowsAndLongPathsAndNoAdministrator) {
  const std::string manifest = Bytes(MAKEINTRESOURCEA(1), RT_MANIFEST);
  for (const char* part : {">PerMonitorV2, PerMonitor<", "<longPathAware", "level=\"asInvoker\"",
                           "Microsoft.Windows.Common-Controls"}) {
    EXPECT_NE(manifest.find(part), std::string::npos) << part;
  }
}

}  // namespace
}  // namespace tavrel::test
