#include <gtest/gtest.h>
#include <string>
#include <system_error>
#include <vector>

#include "core/text/run_time_error.h"
#include "platform/system_platform.h"
#include "platform/windows_error.h"
#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;

/// Folders below a temporary one, deep enough for a path of any length. Where the system has no such paths
/// they are made all the same, by names that it does not look at.
class WindowsLongPathsTest : public testing::TestWithParam<std::size_t> {
 protected:
  void SetUp() override { Deepest = MakeFolders(GetParam()); }

  void TearDown() override {
    ::DeleteFileW(Unlimited(File()).c_str());
    ::DeleteFileW(Unlimited(Deepest / "copy.dat").c_str());
    for (auto folder = made_.rbegin(); folder != made_.rend(); ++folder) {
      EXPECT_NE(::RemoveDirectoryW(Unlimited(*folder).c_str()), 0) << "a file was left behind";
    }
  }

  /// A file whose path has the length of the test.
  fs::path File() const { return Deepest / std::wstring(GetParam() - Deepest.native().size() - 1, L'f'); }

  bool IsThere(const fs::path& file) const {
    return ::GetFileAttributesW(Unlimited(file).c_str()) != INVALID_FILE_ATTRIBUTES;
  }

  std::string Read(const fs::path& file) const {
    const HANDLE handle = ::CreateFileW(Unlimited(file).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                        OPEN_EXISTING, 0, nullptr);
    std::string bytes(100, '\0');
    DWORD count = 0;
    ::ReadFile(handle, bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr);
    ::CloseHandle(handle);
    return bytes.substr(0, count);
  }

  /// Whether it was done. Every failure must be one that can be shown.
  template <typename Action>
  bool Does(const Action& action) const {
    try {
      action();
      return true;
    } catch (const FileError& error) {
      EXPECT_NE(std::string(error.what()).find("\ncould not be "), std::string::npos) << error.what();
      return false;
    }
  }

  const TemporaryFolder Folder;
  fs::path Deepest;
  const std::unique_ptr<Platform> System = MakeSystemPlatform();

 private:
  static std::wstring Unlimited(const fs::path& path) { return LR"(\\?\)" + path.native(); }

  fs::path MakeFolders(std::size_t length) {
    constexpr std::size_t kName = 40;
    fs::path folder = Folder.Path();
    while (folder.native().size() + 2 * kName < length) {
      folder /= std::wstring(kName, L'd');
      EXPECT_NE(::CreateDirectoryW(Unlimited(folder).c_str(), nullptr), 0);
      made_.push_back(folder);
    }
    return folder;
  }

  std::vector<fs::path> made_;
};

TEST_P(WindowsLongPathsTest, ADocumentIsSavedWholeOrNotAtAll) {
  const bool first = Does([this] { System->WriteWholeFile(File(), "old"); });
  EXPECT_EQ(IsThere(File()), first);
  const bool second = Does([this] { System->WriteWholeFile(File(), "new"); });
  EXPECT_EQ(first, second);
  if (first) {
    EXPECT_EQ(Read(File()), "new");
  }
}

TEST_P(WindowsLongPathsTest, ANoteIsWrittenAndCopiedOrNotAtAll) {
  const bool written = Does([this] { System->WritePlainFile(File(), "note"); });
  EXPECT_EQ(IsThere(File()), written);
  const bool copied = Does([this] { System->CopyPlainFile(File(), Deepest / "copy.dat"); });
  EXPECT_EQ(IsThere(Deepest / "copy.dat"), copied);
  EXPECT_TRUE(written || !copied);
  if (copied) {
    EXPECT_EQ(Read(Deepest / "copy.dat"), "note");
  }
}

TEST_P(WindowsLongPathsTest, AFolderIsFlushedOrAnErrorIsTold) {
  Does([this] { System->WritePlainFile(File(), "note"); });
  Does([this] { System->FlushVolumeOf(Deepest); });
  EXPECT_FALSE(System->IsHidden(File()));
  EXPECT_EQ(System->WhyNotWritable(Deepest / std::wstring(30, L'g')), std::errc::no_such_file_or_directory);
  EXPECT_FALSE(IsThere(Deepest / std::wstring(30, L'g')));
}

TEST_P(WindowsLongPathsTest, AFolderIsListedAsItIsOrRefused) {
  ASSERT_TRUE(Does([this] { System->WritePlainFile(File(), "note"); }));
  const std::error_code error = System->WhyNotReadable(Deepest);
  EXPECT_EQ(error == std::errc::filename_too_long, Deepest.native().size() > 256);
  if (!error) {
    std::vector<fs::path> entries;
    for (const auto& entry : fs::directory_iterator(Deepest)) entries.push_back(entry.path());
    EXPECT_EQ(entries, std::vector{File()});
  }
}

TEST(WindowsLongPaths, AFolderOf256CharactersIsTheLongestThatIsListed) {
  const auto system = MakeSystemPlatform();
  const std::wstring root = L"C:\\";
  EXPECT_EQ(system->WhyNotReadable(root + std::wstring(253, L'x')), std::errc::no_such_file_or_directory);
  EXPECT_EQ(system->WhyNotReadable(root + std::wstring(254, L'x')), std::errc::filename_too_long);
}

INSTANTIATE_TEST_SUITE_P(OfLengths, WindowsLongPathsTest,
                         testing::Values(230, 240, 248, 258, 259, 260, 261, 262, 300, 400, 1000, 2500));

TEST(WindowsShortPaths, ADocumentIsSavedInAnOrdinaryFolder) {
  const TemporaryFolder folder;
  const auto system = MakeSystemPlatform();
  const fs::path file = folder.Path() / std::wstring(200 - folder.Path().native().size() - 1, L'f');
  system->WriteWholeFile(file, "whole");
  EXPECT_EQ(folder.Read(file.filename()), "whole");
}

TEST(WindowsLongNames, ANameOfMoreThan255CharactersIsNoFile) {
  const TemporaryFolder folder;
  const auto system = MakeSystemPlatform();
  for (const std::size_t length : {std::size_t{256}, std::size_t{300}, std::size_t{40'000}}) {
    const fs::path file = folder.Path() / std::wstring(length, L'n');
    EXPECT_THROW(system->WriteWholeFile(file, "x"), FileError) << length;
    EXPECT_THROW(system->WritePlainFile(file, "x"), FileError) << length;
  }
  EXPECT_TRUE(folder.Files().empty());
}

}  // namespace
}  // namespace tavrel::test
