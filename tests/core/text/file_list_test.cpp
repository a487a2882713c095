#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <ctime>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "core/text/file_names.h"
#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> Names(const TemporaryFolder& folder, std::string_view extension) {
  std::vector<std::string> names;
  for (const FolderFile& file : ListFiles(folder.Path(), extension, CodePage::Windows1252()))
    names.push_back(file.Name.string());
  return names;
}

using NameList = std::vector<std::string>;

TEST(ListFiles, HoldsTheFilesWithTheExtension) {
  const TemporaryFolder folder;
  for (const char* name : {"b.dat", "a.dat", "a.bak", "dat", "a.dat.bak", "adat"}) folder.Write(name, "x");
  EXPECT_EQ(Names(folder, ".dat"), (NameList{"a.dat", "b.dat"}));
  EXPECT_EQ(Names(folder, ".pln"), NameList());
}

TEST(ListFiles, HoldsEveryFileWithoutAnExtension) {
  const TemporaryFolder folder;
  for (const char* name : {"z001.txt", "picture.jpg", "README"}) folder.Write(name, "x");
  EXPECT_EQ(Names(folder, ""), (NameList{"picture.jpg", "README", "z001.txt"}));
}

TEST(ListFiles, SortsWithoutLetterCase) {
  const TemporaryFolder folder;
  for (const char* name : {"Banana.dat", "apple.dat", "cherry.DAT", "Apple2.Dat", "Date.dat"})
    folder.Write(name, "x");
  EXPECT_EQ(Names(folder, ".dat"),
            (NameList{"apple.dat", "Apple2.Dat", "Banana.dat", "cherry.DAT", "Date.dat"}));
}

TEST(ListFiles, HoldsOrdinaryFilesOnly) {
  const TemporaryFolder folder;
  folder.Write("inside.dat/deep.dat", "x");
  folder.Write("file.dat", "x");
  EXPECT_EQ(Names(folder, ".dat"), (NameList{"file.dat"}));
}

TEST(ListFiles, IsEmptyForAFolderThatCannotBeRead) {
  const TemporaryFolder folder;
  folder.Write("file", "x");
  EXPECT_TRUE(ListFiles(folder.Path() / "gone", ".dat", CodePage::Windows1252()).empty());
  EXPECT_TRUE(ListFiles(folder.Path() / "file", ".dat", CodePage::Windows1252()).empty());
}

TEST(ListFiles, KeepsTwoFilesApartThatLookAlikeWhenCut) {
  const TemporaryFolder folder;
  folder.Write("abcdefghijklmnopqrstuvwxy2.dat", "x");
  folder.Write("abcdefghijklmnopqrstuvwxy1.dat", "x");
  EXPECT_EQ(Names(folder, ".dat"),
            (NameList{"abcdefghijklmnopqrstuvwxy1.dat", "abcdefghijklmnopqrstuvwxy2.dat"}));
}

#ifndef _WIN32
TEST(ListFiles, HoldsFilesWhoseNamesAreNotText) {
  const TemporaryFolder folder;
  folder.Write("caf\xE9.dat", "x");
  folder.Write("caf\xC3\xA9.dat", "x");
  NameList names = Names(folder, ".dat");
  std::sort(names.begin(), names.end());
  EXPECT_EQ(names, (NameList{"caf\xC3\xA9.dat", "caf\xE9.dat"}));
}

/// The time zone for one scope.
class TimeZone {
 public:
  explicit TimeZone(const char* zone) {
    if (const char* old = std::getenv("TZ")) old_ = old;
    Set(zone);
  }
  ~TimeZone() { Set(old_.empty() ? nullptr : old_.c_str()); }
  TimeZone(const TimeZone&) = delete;
  TimeZone& operator=(const TimeZone&) = delete;

 private:
  static void Set(const char* zone) {
    zone == nullptr ? unsetenv("TZ") : setenv("TZ", zone, 1);
    tzset();
  }

  std::string old_;
};

std::string EntryOfFileDated(std::chrono::sys_seconds time) {
  const TemporaryFolder folder;
  folder.Write("Guide.dat", "x");
  fs::last_write_time(folder.Path() / "Guide.dat", std::chrono::file_clock::from_sys(time));
  const std::vector<FolderFile> files = ListFiles(folder.Path(), ".dat", CodePage::Windows1252());
  return FileListEntry("Guide", files.at(0).Modified);
}

TEST(ListFiles, DatesFilesInLocalTime) {
  using namespace std::chrono;
  const sys_seconds evening = sys_days(2006y / March / 3) + 20h;
  const sys_seconds morning = sys_days(2006y / March / 3) + 5h;
  {
    const TimeZone greenwich("UTC0");
    EXPECT_EQ(EntryOfFileDated(evening), "Guide                    03-03-06");
  }
  {
    const TimeZone ten_hours_ahead("XXX-10");
    EXPECT_EQ(EntryOfFileDated(evening), "Guide                    04-03-06");
    EXPECT_EQ(EntryOfFileDated(morning), "Guide                    03-03-06");
  }
  {
    const TimeZone ten_hours_behind("XXX10");
    EXPECT_EQ(EntryOfFileDated(evening), "Guide                    03-03-06");
    EXPECT_EQ(EntryOfFileDated(morning), "Guide                    02-03-06");
  }
}
#endif

}  // namespace
}  // namespace tavrel::test
