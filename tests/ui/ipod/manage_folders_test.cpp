#include <QProgressBar>

#include <functional>
#include <gmock/gmock.h>

#include "ui/ipod/manage_test.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using FileMap = std::map<std::string, std::string>;
using Operation = FailingFiles::Operation;

const std::string kNotDeleted =
    "Operation failed|exclamation|The folder could not be deleted because    \r\n"
    "it contains subfolders, read-only, hidden    \r\n"
    "or system files. Delete it manually using    \r\n"
    "Windows Explorer.  \r\n|OK";

std::string DeleteQuestion(const fs::path& folder) {
  return "Please confirm|question|Are you sure you want to delete...\r\n" + folder.string() + "|OK/Cancel";
}

class ManageFoldersTest : public ManageTest {
 protected:
  void SetUp() override { Notes = AddPod("E:"); }

  /// The files of the iPod's Notes folder.
  FileMap OnPod() const {
    FileMap files;
    for (const auto& [name, bytes] : Disks.Files()) {
      if (name.starts_with("E/Notes/")) files[name.substr(8)] = bytes;
    }
    return files;
  }

  fs::path Notes;
};

TEST_F(ManageFoldersTest, CopiesToTheIpodOverOldFilesAndKeepsOthers) {
  Folder.Write("Guide/z001.txt", "one");
  Folder.Write("Guide/z002.txt", "new");
  Disks.Write("E/Notes/Guide/z002.txt", "old and longer");
  Disks.Write("E/Notes/Guide/z009.txt", "nine");
  PlayManage([](QWidget& dialog) { ClickFor(dialog, "List1", "Guide", "Command2"); });
  EXPECT_EQ(OnPod(),
            (FileMap{{"Guide/z001.txt", "one"}, {"Guide/z002.txt", "new"}, {"Guide/z009.txt", "nine"}}));
  EXPECT_EQ(FilesIn("Guide"), (FileMap{{"z001.txt", "one"}, {"z002.txt", "new"}}));
  EXPECT_TRUE(Messages.Shown.empty());
  ExpectQuiet();
}

TEST_F(ManageFoldersTest, CopiesFromTheIpodAndShowsTheNewFolder) {
  Disks.Write("E/Notes/Songs/z001.txt", "one");
  fs::create_directory(Folder.Path() / "Guide");
  PlayManage([this](QWidget& dialog) {
    fs::create_directory(Notes / "Late");
    ClickFor(dialog, "List2", "Songs", "Command1");
    EXPECT_EQ(Rows(dialog, "List1"), (QStringList{"Guide", "Songs"}));
    EXPECT_EQ(Rows(dialog, "List2"), (QStringList{"Late", "Songs"}));
  });
  EXPECT_EQ(FilesIn("Songs"), (FileMap{{"z001.txt", "one"}}));
  EXPECT_EQ(OnPod(), (FileMap{{"Songs/z001.txt", "one"}}));
  EXPECT_TRUE(Messages.Shown.empty());
  ExpectQuiet();
}

TEST_F(ManageFoldersTest, CopiesAllOrdinaryFilesAndNothingElse) {
  for (const char* name : {"z001.txt", "no dot", "cover.jpg", ".hidden", "deep/z002.txt"})
    Folder.Write(std::string("Guide/") + name, name);
  PlayManage([](QWidget& dialog) { ClickFor(dialog, "List1", "Guide", "Command2"); });
  EXPECT_EQ(OnPod(), (FileMap{{"Guide/z001.txt", "z001.txt"},
                              {"Guide/no dot", "no dot"},
                              {"Guide/cover.jpg", "cover.jpg"}}));
  EXPECT_FALSE(Disks.Has("E/Notes/Guide/deep"));
}

TEST_F(ManageFoldersTest, WithoutASelectionNoButtonDoesAnything) {
  Folder.Write("Guide/z001.txt", "one");
  Disks.Write("E/Notes/Songs/z001.txt", "one");
  Start();
  const auto local = Folder.Files();
  const auto remote = Disks.Files();
  PlayManage([](QWidget& dialog) {
    for (const char* button : {"Command1", "Command2", "Command5", "Command6"}) Click(dialog, button);
  });
  EXPECT_EQ(Folder.Files(), local);
  EXPECT_EQ(Disks.Files(), remote);
  EXPECT_TRUE(Messages.Shown.empty());
  ExpectQuiet();
}

TEST_F(ManageFoldersTest, ASelectionCountsOnlyForItsOwnSide) {
  Folder.Write("Guide/z001.txt", "one");
  PlayManage([](QWidget& dialog) {
    ClickListRow(Find<QListWidget>(dialog, "List1"), "Guide");
    for (const char* button : {"Command1", "Command6"}) Click(dialog, button);
  });
  EXPECT_TRUE(Folder.Has("Guide/z001.txt"));
  EXPECT_TRUE(OnPod().empty());
  EXPECT_TRUE(Messages.Shown.empty());
}

TEST_F(ManageFoldersTest, DeletingAsksWithTheFoldersPath) {
  Folder.Write("Guide/z001.txt", "one");
  Folder.Write("Guide/cover", "x");
  Disks.Write("E/Notes/Guide/z001.txt", "one");
  Messages.Answers = {false};
  PlayManage([this](QWidget& dialog) {
    ClickFor(dialog, "List1", "Guide", "Command5");
    EXPECT_EQ(Messages.LastParent, &dialog);
    EXPECT_EQ(FilesIn("Guide").size(), 2U);
    ClickFor(dialog, "List1", "Guide", "Command5");
    EXPECT_TRUE(Rows(dialog, "List1").empty());
    EXPECT_EQ(Rows(dialog, "List2"), QStringList{"Guide"});
  });
  EXPECT_EQ(Seen(Messages.Shown), Texts(2, DeleteQuestion(Folder.Path() / "Guide")));
  EXPECT_FALSE(Folder.Has("Guide"));
  EXPECT_EQ(OnPod(), (FileMap{{"Guide/z001.txt", "one"}}));
  ExpectQuiet();
}

TEST_F(ManageFoldersTest, AnEmptyFolderOnTheIpodIsDeleted) {
  fs::create_directory(Folder.Path() / "Empty");
  fs::create_directory(Notes / "Empty");
  PlayManage([](QWidget& dialog) {
    ClickFor(dialog, "List2", "Empty", "Command6");
    EXPECT_TRUE(Rows(dialog, "List2").empty());
    EXPECT_EQ(Rows(dialog, "List1"), QStringList{"Empty"});
  });
  EXPECT_EQ(Seen(Messages.Shown), Texts{DeleteQuestion(Notes / "Empty")});
  EXPECT_FALSE(fs::exists(Notes / "Empty"));
  EXPECT_TRUE(Folder.Has("Empty"));
}

TEST_F(ManageFoldersTest, AFolderWithASubfolderLosesItsFilesButStays) {
  Disks.Write("E/Notes/Guide/z001.txt", "one");
  Disks.Write("E/Notes/Guide/z002.txt", "two");
  Disks.Write("E/Notes/Guide/deep/z003.txt", "three");
  PlayManage([this](QWidget& dialog) {
    ClickFor(dialog, "List2", "Guide", "Command6");
    EXPECT_EQ(Messages.LastParent, &dialog);
    EXPECT_EQ(Rows(dialog, "List2"), QStringList{"Guide"});
  });
  EXPECT_EQ(Seen(Messages.Shown), (Texts{DeleteQuestion(Notes / "Guide"), kNotDeleted}));
  EXPECT_EQ(OnPod(), (FileMap{{"Guide/deep/z003.txt", "three"}}));
  ExpectQuiet();
}

TEST_F(ManageFoldersTest, AFolderWithAWriteProtectedFileStays) {
  Folder.Write("Guide/z001.txt", "one");
  Folder.Write("Guide/z002.txt", "two");
  fs::permissions(Folder.Path() / "Guide" / "z002.txt", fs::perms::owner_read);
  PlayManage([](QWidget& dialog) { ClickFor(dialog, "List1", "Guide", "Command5"); });
  EXPECT_EQ(Seen(Messages.Shown), (Texts{DeleteQuestion(Folder.Path() / "Guide"), kNotDeleted}));
  EXPECT_EQ(FilesIn("Guide"), (FileMap{{"z002.txt", "two"}}));
  ExpectQuiet();
}

TEST_F(ManageFoldersTest, AFolderWithAHiddenFileStays) {
  Folder.Write("Guide/.hidden", "x");
  PlayManage([](QWidget& dialog) { ClickFor(dialog, "List1", "Guide", "Command5"); });
  EXPECT_EQ(Seen(Messages.Shown), (Texts{DeleteQuestion(Folder.Path() / "Guide"), kNotDeleted}));
  EXPECT_EQ(FilesIn("Guide"), (FileMap{{".hidden", "x"}}));
}

TEST_F(ManageFoldersTest, UnusualNamesAreShownAsTheyAreCopiedAndDeleted) {
  const std::vector<fs::path> names = {fs::path(" lead"), fs::path("A & B"), fs::path(u8"Caf\u00e9")};
  const QStringList shown = {" lead", "A & B", QString::fromUtf8("Caf\u00e9")};
  for (const fs::path& name : names) Folder.Write(name / "z001.txt", "one");
  PlayManage([&](QWidget& dialog) {
    EXPECT_EQ(Rows(dialog, "List1"), shown);
    for (const QString& name : shown) ClickFor(dialog, "List1", name, "Command2");
    EXPECT_EQ(Rows(dialog, "List2"), shown);
    for (const fs::path& name : names) EXPECT_TRUE(fs::exists(Notes / name / "z001.txt")) << name;
    for (const QString& name : shown) ClickFor(dialog, "List2", name, "Command6");
  });
  Texts questions;
  for (const fs::path& name : names) questions.push_back(DeleteQuestion(Notes / name));
  EXPECT_EQ(Seen(Messages.Shown), questions);
  EXPECT_TRUE(fs::is_empty(Notes));
  EXPECT_EQ(Folder.Read(names[2] / "z001.txt"), "one");
}

TEST_F(ManageFoldersTest, TheSameFolderOnBothSidesIsNotDamaged) {
  System.FakeVolumes.resize(1);
  Folder.Write("Guide/z001.txt", "one");
  Start();
  const auto files = Folder.Files();
  PlayManage([this](QWidget& dialog) {
    ExpectSide(dialog, 2, "c:", Folder.Path());
    ShowTab(dialog, "Manager");
    ClickFor(dialog, "List1", "Guide", "Command2");
    ClickFor(dialog, "List2", "Guide", "Command1");
  });
  EXPECT_EQ(Folder.Files(), files);
  ExpectQuiet();
}

TEST_F(ManageFoldersTest, TheBrowserShowsWhatWasCopiedAndDeleted) {
  Folder.Write("Guide/z001.txt", "one");
  Disks.Write("E/Notes/Songs/z001.txt", "one");
  PlayManage([](QWidget& dialog) {
    ClickFor(dialog, "List1", "Guide", "Command2");
    ClickFor(dialog, "List2", "Songs", "Command6");
    const auto& remote = Find<FolderList>(dialog, "Dir2");
    EXPECT_EQ(remote.Subfolders(), (std::vector<std::filesystem::path>{"Guide"}));
    EXPECT_EQ(remote.item(remote.count() - 1)->text().trimmed(), "Guide");
  });
  ExpectQuiet();
}

TEST_F(ManageFoldersTest, APlaceThatCannotBeWrittenToIsNamedAndNothingIsCopied) {
  Folder.Write("Guide/z001.txt", "one");
  Disks.Write("E/Notes/Songs/z001.txt", "one");
  System.NotWritable = {Notes, Folder.Path()};
  PlayManage([this](QWidget& dialog) {
    ClickFor(dialog, "List1", "Guide", "Command2");
    EXPECT_THAT(LastMessage().Text, HasSubstr(Notes.string()));
    ClickFor(dialog, "List2", "Songs", "Command1");
    EXPECT_THAT(LastMessage().Text, HasSubstr(Folder.Path().string()));
    EXPECT_TRUE(dialog.isVisible());
  });
  ASSERT_EQ(Messages.Shown.size(), 2U);
  for (const Message& message : Messages.Shown) {
    EXPECT_EQ(message.Buttons, Buttons::Ok);
    EXPECT_EQ(message.Icon, Icon::Exclamation);
    EXPECT_EQ(message.Title, "Manage");
  }
  EXPECT_EQ(OnPod(), (FileMap{{"Songs/z001.txt", "one"}}));
  EXPECT_FALSE(Folder.Has("Songs"));
  ExpectQuiet();
}

/// Copies that end the program.
class FailingCopyTest : public ManageFoldersTest {
 protected:
  /// Copies the local folder "Guide" after `harm` has been done behind the dialog's back.
  void ExpectFailure(const std::function<void()>& harm) {
    Folder.Write("Guide/z001.txt", "one");
    PlayManage([&](QWidget& dialog) {
      harm();
      ClickFor(dialog, "List1", "Guide", "Command2");
    });
    EXPECT_EQ(Program.Failures.size(), 1U);
    EXPECT_TRUE(Messages.Shown.empty());
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  }
};

TEST_F(FailingCopyTest, AProjectThatVanishes) {
  ExpectFailure([this] { fs::remove_all(Folder.Path() / "Guide"); });
  EXPECT_FALSE(fs::exists(Notes / "Guide"));
}

TEST_F(FailingCopyTest, AnIpodThatIsUnplugged) {
  ExpectFailure([this] { fs::remove_all(Disks.Path() / "E"); });
  EXPECT_FALSE(Disks.Has("E"));
  EXPECT_TRUE(Folder.Has("Guide/z001.txt"));
}

TEST_F(FailingCopyTest, AFileInPlaceOfTheFolder) {
  ExpectFailure([this] { Disks.Write("E/Notes/Guide", "a file"); });
  EXPECT_EQ(OnPod(), (FileMap{{"Guide", "a file"}}));
}

TEST_F(FailingCopyTest, AFullDisk) {
  ExpectFailure([this] { System.Files.FailAt(Operation::Write, 1, std::errc::no_space_on_device); });
  EXPECT_TRUE(OnPod().empty());
  EXPECT_TRUE(Folder.Has("Guide/z001.txt"));
}

TEST_F(FailingCopyTest, AFileThatCannotBeRead) {
  ExpectFailure([this] { System.Files.FailAt(Operation::Read, 1, std::errc::io_error); });
  EXPECT_TRUE(OnPod().empty());
}

TEST_F(FailingCopyTest, ADiskThatDoesNotTakeWhatWasWritten) {
  ExpectFailure([this] { System.Files.FailAt(Operation::FlushVolume, 1, std::errc::io_error); });
}

TEST_F(ManageFoldersTest, TheProgressIsShownWhileFilesAreCopied) {
  Folder.Write("Guide/z001.txt", "one");
  Folder.Write("Guide/z002.txt", "two");
  PlayManage([](QWidget& dialog) {
    auto& line = Find<QProgressBar>(dialog, "Progress");
    EXPECT_FALSE(line.isVisible());
    ProgressWatcher watcher(line);
    ClickFor(dialog, "List1", "Guide", "Command2");
    EXPECT_EQ(watcher.TimesShown, 1);
    EXPECT_TRUE(watcher.AlwaysWithHourglass);
    EXPECT_EQ(line.value(), 2);
    EXPECT_EQ(line.maximum(), 2);
    EXPECT_FALSE(line.isVisible());
  });
}

TEST_F(ManageFoldersTest, APublishedProjectGoesToTheIpodAndComesBackAsADocument) {
  OpenDocument("Trio.dat", kTrio);
  Publish({"Check2"});
  const auto published = FilesIn("Trio");
  PlayManage([](QWidget& dialog) {
    ClickFor(dialog, "List1", "Trio", "Command2");
    ClickFor(dialog, "List1", "Trio", "Command5");
    EXPECT_TRUE(Rows(dialog, "List1").empty());
    ClickFor(dialog, "List2", "Trio", "Command1");
  });
  EXPECT_EQ(FilesIn("Trio"), published);
  ImportFolder("Trio");
  EXPECT_EQ(State.Page(3), "<title>C</title><text> \r\n\r\nthree\r\n </text><link></link>");
}

}  // namespace
}  // namespace tavrel::test
