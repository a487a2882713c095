#include <QComboBox>

#include "ui/controls/file_list.h"
#include "ui/controls/folder_list.h"
#include "ui/ipod/publish_test.h"

namespace tavrel::test {
namespace {

class PublishFolderTest : public PublishTest {
 protected:
  void SetUp() override { OpenDocument("Trio.dat", kTrio); }

  /// Adds a drive with this letter; its folder is outside the program's.
  void AddDrive(const std::string& name) { System.FakeVolumes.push_back({name, Disk.Path()}); }

  static void ExpectShown(QWidget& dialog, const QString& drive, const std::filesystem::path& folder) {
    EXPECT_EQ(Find<QComboBox>(dialog, "Drive1").currentText(), drive);
    EXPECT_EQ(Find<FolderList>(dialog, "Dir1").Path(), folder);
    EXPECT_EQ(Find<FileList>(dialog, "File1").Path(), folder);
  }

  static QStringList FilesShown(QWidget& dialog) {
    const auto& list = Find<QListWidget>(dialog, "File1");
    QStringList files;
    for (int row = 0; row < list.count(); ++row) files << list.item(row)->text();
    return files;
  }

  TemporaryFolder Disk;
};

TEST_F(PublishFolderTest, TheNameIsTrimmedAndThenCleaned) {
  PlayPublish([](QWidget& dialog) {
    TypeInto(dialog, "Text1", " My.Notes & Co? ");
    Click(dialog, "Command2");
  });
  EXPECT_EQ(FilesIn("MyNotes  Co").size(), 3U);
  EXPECT_FALSE(Folder.Has("Trio"));
}

TEST_F(PublishFolderTest, ADoubleClickOpensAFolder) {
  Folder.Write("below/a.txt", "a");
  Folder.Write("below/deep/b.txt", "b");
  PlayPublish([this](QWidget& dialog) {
    OpenFolder(dialog, "below");
    ExpectShown(dialog, "c:", Folder.Path() / "below");
    EXPECT_EQ(FilesShown(dialog), QStringList{"a.txt"});
    OpenFolder(dialog, "deep");
    EXPECT_EQ(FilesShown(dialog), QStringList{"b.txt"});
    OpenFolder(dialog, "below");
    ExpectShown(dialog, "c:", Folder.Path() / "below");
    Click(dialog, "Command2");
  });
  EXPECT_EQ(FilesIn("below/Trio").size(), 3U);
  EXPECT_FALSE(Folder.Has("Trio"));
}

TEST_F(PublishFolderTest, AFolderThatIsOnlyHighlightedIsNotTheOneChosen) {
  std::filesystem::create_directory(Folder.Path() / "below");
  PlayPublish([this](QWidget& dialog) {
    auto& folders = Find<QListWidget>(dialog, "Dir1");
    ClickListRow(folders, FolderRow(folders, "below"));
    ExpectShown(dialog, "c:", Folder.Path());
    Click(dialog, "Command2");
  });
  EXPECT_EQ(FilesIn("Trio").size(), 3U);
  EXPECT_TRUE(FilesIn("below").empty());
}

TEST_F(PublishFolderTest, TheFileListShowsTheFilesOfTheFolder) {
  Folder.Write("b.txt", "b");
  Folder.Write("A.txt", "a");
  std::filesystem::create_directory(Folder.Path() / "c.txt");
  PlayPublish([](QWidget& dialog) {
    EXPECT_EQ(FilesShown(dialog), (QStringList{"A.txt", "b.txt", "tavrel.ini", "Trio.dat"}));
    Click(dialog, "Command1");
  });
}

TEST_F(PublishFolderTest, AFolderThatHasVanishedIsNotOpened) {
  std::filesystem::create_directory(Folder.Path() / "below");
  PlayPublish([this](QWidget& dialog) {
    std::filesystem::remove(Folder.Path() / "below");
    OpenFolder(dialog, "below");
    ExpectShown(dialog, "c:", Folder.Path());
    Click(dialog, "Command2");
  });
  EXPECT_EQ(FilesIn("Trio").size(), 3U);
}

TEST_F(PublishFolderTest, AnotherDriveShowsItsTopmostFolder) {
  AddDrive("D:");
  Disk.Write("on disk.txt", "x");
  std::filesystem::create_directory(Folder.Path() / "below");
  PlayPublish([this](QWidget& dialog) {
    OpenFolder(dialog, "below");
    ChooseDrive(dialog, "D:");
    ExpectShown(dialog, "D:", Disk.Path());
    EXPECT_EQ(FilesShown(dialog), QStringList{"on disk.txt"});
    Click(dialog, "Command2");
  });
  EXPECT_EQ(Seen(Messages.Shown), Texts{kFinished});
  EXPECT_TRUE(Disk.Has("Trio/z001.txt"));
  EXPECT_FALSE(Folder.Has("Trio"));
  EXPECT_EQ(std::filesystem::current_path(), Folder.Path());
}

TEST_F(PublishFolderTest, ADriveThatIsNotReadySaysSoAndTheOldOneComesBack) {
  AddDrive("D:");
  System.NotReady = {"D:"};
  std::filesystem::create_directory(Folder.Path() / "below");
  PlayPublish([this](QWidget& dialog) {
    OpenFolder(dialog, "below");
    ChooseDrive(dialog, "D:");
    EXPECT_EQ(Seen(Messages.Shown), Texts{kNotAvailable});
    ExpectShown(dialog, "c:", Folder.Path() / "below");
    Click(dialog, "Command2");
  });
  EXPECT_EQ(Seen(Messages.Shown), (Texts{kNotAvailable, kFinished}));
  EXPECT_EQ(FilesIn("below/Trio").size(), 3U);
}

TEST_F(PublishFolderTest, ADriveThatVanishedMeanwhileSaysSoToo) {
  System.FakeVolumes.push_back({"D:", Disk.Path() / "gone"});
  PlayPublish([this](QWidget& dialog) {
    ChooseDrive(dialog, "D:");
    ExpectShown(dialog, "c:", Folder.Path());
    Click(dialog, "Command1");
  });
  EXPECT_EQ(Seen(Messages.Shown), Texts{kNotAvailable});
}

TEST_F(PublishFolderTest, TheDriveThatComesBackIsTheOneOfTheFolderShown) {
  AddDrive("E:");
  System.FakeVolumes.insert(System.FakeVolumes.begin() + 1, {"D:", Disk.Path() / "gone"});
  PlayPublish([this](QWidget& dialog) {
    ChooseDrive(dialog, "E:");
    ChooseDrive(dialog, "D:");
    ExpectShown(dialog, "E:", Disk.Path());
    ChooseDrive(dialog, "c:");
    ExpectShown(dialog, "c:", Folder.Path());
    Click(dialog, "Command1");
  });
  EXPECT_EQ(Seen(Messages.Shown), Texts{kNotAvailable});
}

TEST_F(PublishFolderTest, ANameOutsidePlainLettersIsAFolderOfThatName) {
  OpenDocument("Other.dat", kTrio);
  Messages.Shown.clear();
  PlayPublish([](QWidget& dialog) {
    TypeInto(dialog, "Text1", QString::fromUtf8("Caf\u00e9"));
    Click(dialog, "Command2");
  });
  EXPECT_TRUE(Folder.Has(std::filesystem::path(u8"Caf\u00e9/z001.txt")));
}

TEST_F(PublishFolderTest, ReturnsToTheProgramsFolder) {
  PlayPublish([](QWidget& dialog) {
    std::filesystem::current_path("/");
    Click(dialog, "Command2");
  });
  EXPECT_EQ(std::filesystem::current_path(), Folder.Path());
}

TEST_F(PublishFolderTest, AFolderThatIsGoneIsNamedInAMessage) {
  Messages.Shown.clear();
  std::filesystem::create_directory(Folder.Path() / "gone");
  PlayPublish([this](QWidget& dialog) {
    std::filesystem::remove(Folder.Path() / "gone");
    OpenFolder(dialog, "gone");
    EXPECT_TRUE(dialog.isVisible());
    Click(dialog, "Command1");
  });
  ASSERT_EQ(Messages.Shown.size(), 1U);
  EXPECT_NE(LastMessage().Text.find("gone\ncould not be opened"), std::string::npos);
}

}  // namespace
}  // namespace tavrel::test
