#include <fstream>
#include <gmock/gmock.h>
#include <iterator>

#include "platform/system_platform.h"
#include "ui/ipod/manage_test.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::StartsWith;
using FileMap = std::map<std::string, std::string>;

/// Work with a real Windows and its drives; the disk of drive E: plays the iPod.
class WindowsJobTest : public ManageTest {
 protected:
  WindowsJobTest() : ManageTest(MakeSystemPlatform()) {}

  void SetUp() override {
    if (!fs::is_directory(kNotes)) GTEST_SKIP() << "there is no drive E: with a folder Notes";
    CleanUp();
  }

  void TearDown() override { CleanUp(); }

  /// The files of a folder on the iPod.
  static FileMap OnPod(const fs::path& folder) {
    FileMap files;
    for (const auto& entry : fs::directory_iterator(kNotes / folder)) {
      std::ifstream file(entry.path(), std::ios::binary);
      files[entry.path().filename().string()].assign(std::istreambuf_iterator<char>(file), {});
    }
    return files;
  }

  static std::string DeleteQuestion(const std::string& folder) {
    return "Please confirm|question|Are you sure you want to delete...\r\n" + folder + "|OK/Cancel";
  }

  static inline const fs::path kNotes = "E:\\Notes";

 private:
  static void CleanUp() {
    for (const char* name : {"Tavrel test trip", "My.Tavrel.Notes"}) fs::remove_all(kNotes / name);
  }
};

TEST_F(WindowsJobTest, AProjectGoesToTheIpodAndComesBack) {
  Player.Expect("NewDoc", [](QWidget& dialog) {
    TypeInto(dialog, "Text1", "Tavrel test trip");
    Click(dialog, "Command1");
  });
  Choose("FileNew");
  TypeInto(Title(), QString::fromUtf8("Caf\u00e9"));
  TypeInto(Body(), "one\ntwo");
  ClickRow(PagesGrid(), 2);
  TypeInto(Body(), "a\\b");
  EXPECT_EQ(Save(), "\r\n 1 ,<title>Caf\xE9</title><text>one<p>two</text>\r\n 2 ,<text>a\\b</text>\r\n");
  Messages.Shown.clear();

  Publish({"Check2"});
  const FileMap notes = {{"z001.txt", "<title>-Caf\xE9</title>\r\n" + kMeta + "one\r\ntwo\r\n"},
                         {"z002.txt", "<title></title>\r\n" + kMeta + "a\\b\r\n"}};
  EXPECT_EQ(FilesIn("Tavrel test trip"), notes);

  PlayManage([](QWidget& dialog) {
    EXPECT_EQ(ShownTab(dialog), "Manager");
    ExpectSide(dialog, 2, "E:", kNotes);
    ClickFor(dialog, "List1", "Tavrel test trip", "Command2");
    ClickFor(dialog, "List1", "Tavrel test trip", "Command5");
  });
  const std::string folder = (Folder.Path() / "Tavrel test trip").string();
  EXPECT_EQ(folder.find('/'), std::string::npos);
  EXPECT_EQ(Seen(Messages.Shown), Texts{DeleteQuestion(folder)});
  EXPECT_EQ(OnPod("Tavrel test trip"), notes);
  EXPECT_FALSE(Folder.Has("Tavrel test trip"));

  PlayImport([](QWidget& dialog) {
    ChooseDrive(dialog, "E:");
    OpenFolder(dialog, "Notes");
    OpenFolder(dialog, "Tavrel test trip");
    EXPECT_EQ(Find<FolderList>(dialog, "Dir1").Path(), kNotes / "Tavrel test trip");
    Click(dialog, "Command2");
  });
  EXPECT_EQ(Folder.Read("Tavrel test trip.dat"),
            "\r\n"
            " 1 ,<title>-Caf\xE9</title><text> <p><p>one<p>two<p> </text><link></link>\r\n"
            " 2 ,<title></title><text> <p><p>a\\b<p> </text><link></link>\r\n");
  ExpectQuiet();
}

TEST_F(WindowsJobTest, AFolderWithAFullStopIsListedCopiedAndDeleted) {
  fs::create_directory(kNotes / "My.Tavrel.Notes");
  std::ofstream(kNotes / "My.Tavrel.Notes" / "z001.txt", std::ios::binary) << "one\r\n";
  PlayManage([this](QWidget& dialog) {
    ASSERT_TRUE(Rows(dialog, "List2").contains("My.Tavrel.Notes"));
    ClickFor(dialog, "List2", "My.Tavrel.Notes", "Command1");
    EXPECT_EQ(Rows(dialog, "List1"), QStringList{"My.Tavrel.Notes"});
    EXPECT_EQ(FilesIn("My.Tavrel.Notes"), (FileMap{{"z001.txt", "one\r\n"}}));
    ClickFor(dialog, "List2", "My.Tavrel.Notes", "Command6");
    EXPECT_FALSE(Rows(dialog, "List2").contains("My.Tavrel.Notes"));
  });
  EXPECT_EQ(Seen(Messages.Shown), Texts{DeleteQuestion("E:\\Notes\\My.Tavrel.Notes")});
  EXPECT_FALSE(fs::exists(kNotes / "My.Tavrel.Notes"));
  ExpectQuiet();
}

TEST_F(WindowsJobTest, NothingIsPublishedUnderADevicesName) {
  OpenDocument("Trio.dat", kTrio);
  const auto files = Folder.Files();
  PlayPublish([&](QWidget& dialog) {
    for (const char* name : {"NUL", "com1", "E:x", "Trio:x"}) {
      TypeInto(dialog, "Text1", name);
      Click(dialog, "Command2");
      EXPECT_THAT(LastMessage().Text, HasSubstr("Choose another name.")) << name;
      EXPECT_THAT(LastMessage().Text, StartsWith(name));
      EXPECT_TRUE(dialog.isVisible());
    }
    Click(dialog, "Command1");
  });
  EXPECT_EQ(Messages.Shown.size(), 4U);
  EXPECT_EQ(Folder.Files(), files);
  EXPECT_FALSE(fs::exists("E:x"));
  EXPECT_TRUE(Program.Failures.empty());
}

}  // namespace
}  // namespace tavrel::test
