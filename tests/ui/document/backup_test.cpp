#include <QApplication>

#include "ui/document/document_test.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;

using Operation = FailingFiles::Operation;

/// A name of this many letters.
std::string Letters(std::size_t count) {
  return std::string("abcdefghijklmnopqrstuvwxyzabcd").substr(0, count);
}

class BackupTest : public DocumentTest {
 protected:
  void PlayBackup(const Robot::Step& step) {
    Play("FileBackup", "Backup", [&](QWidget& dialog) {
      step(dialog);
      Click(dialog, "Command3");
    });
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_TRUE(Messages.Shown.empty());
  }

  static QListWidget& Documents(const QWidget& dialog) { return Find<QListWidget>(dialog, "List1"); }
  static QListWidget& Backups(const QWidget& dialog) { return Find<QListWidget>(dialog, "List2"); }

  static void BackUp(const QWidget& dialog, const QString& name) {
    ClickListRow(Documents(dialog), name);
    Click(dialog, "Command1");
  }

  static void Restore(const QWidget& dialog, const QString& name) {
    ClickListRow(Backups(dialog), name);
    Click(dialog, "Command2");
  }

  /// The names in a list, without their dates.
  static QStringList Names(const QListWidget& list) {
    QStringList names;
    for (const QString& row : Rows(list)) names << row.left(25).trimmed();
    return names;
  }
};

TEST_F(BackupTest, BacksUpTheSelectedDocumentAndListsAnew) {
  Folder.Write("Guide.dat", kGuide);
  Folder.Write("Trio.dat", kTrio);
  PlayBackup([](QWidget& dialog) {
    EXPECT_EQ(Names(Backups(dialog)), QStringList{});
    BackUp(dialog, "Guide");
    EXPECT_EQ(Names(Backups(dialog)), QStringList{"Guide.bak"});
    EXPECT_TRUE(Documents(dialog).selectedItems().isEmpty());
    EXPECT_TRUE(Backups(dialog).selectedItems().isEmpty());
    EXPECT_TRUE(dialog.isVisible());
  });
  EXPECT_EQ(Folder.Read("Guide.bak"), kGuide);
  EXPECT_EQ(Folder.Read("Guide.dat"), kGuide);
  EXPECT_FALSE(Folder.Has("Trio.bak"));
}

TEST_F(BackupTest, ReplacesBothWaysWithoutAQuestion) {
  Folder.Write("Guide.dat", kGuide);
  Folder.Write("Guide.bak", "older");
  PlayBackup([this](QWidget& dialog) {
    BackUp(dialog, "Guide");
    EXPECT_EQ(Folder.Read("Guide.bak"), kGuide);
    Folder.Write("Guide.dat", "changed");
    Restore(dialog, "Guide");
    EXPECT_EQ(Folder.Read("Guide.dat"), kGuide);
  });
}

TEST_F(BackupTest, CopiesBytesAsTheyAre) {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  bytes += "\r\n\n\r\x1A";
  Folder.Write("Guide.dat", bytes);
  Folder.Write("Empty.dat", "");
  PlayBackup([](QWidget& dialog) {
    BackUp(dialog, "Guide");
    BackUp(dialog, "Empty");
  });
  EXPECT_EQ(Folder.Read("Guide.bak"), bytes);
  EXPECT_EQ(Folder.Read("Empty.bak"), "");
}

TEST_F(BackupTest, RestoresADocumentThatIsGone) {
  Folder.Write("Guide.bak", kGuide);
  PlayBackup([](QWidget& dialog) {
    Restore(dialog, "Guide");
    EXPECT_EQ(Names(Documents(dialog)), QStringList{"Guide.dat"});
    EXPECT_TRUE(Backups(dialog).selectedItems().isEmpty());
  });
  EXPECT_EQ(Folder.Read("Guide.dat"), kGuide);
}

TEST_F(BackupTest, WithoutASelectionNothingHappens) {
  Folder.Write("Guide.dat", kGuide);
  Folder.Write("Trio.bak", kTrio);
  Start();
  const auto files = Folder.Files();
  PlayBackup([](QWidget& dialog) {
    Click(dialog, "Command1");
    Click(dialog, "Command2");
  });
  EXPECT_EQ(Folder.Files(), files);
}

TEST_F(BackupTest, ASelectionInTheOtherListDoesNotCount) {
  Folder.Write("Guide.dat", kGuide);
  Folder.Write("Trio.bak", kTrio);
  Start();
  const auto files = Folder.Files();
  PlayBackup([](QWidget& dialog) {
    ClickListRow(Documents(dialog), "Guide");
    Click(dialog, "Command2");
    Documents(dialog).clearSelection();
    ClickListRow(Backups(dialog), "Trio");
    Click(dialog, "Command1");
  });
  EXPECT_EQ(Folder.Files(), files);
}

TEST_F(BackupTest, WithEmptyListsAllDoesNothing) {
  Start();
  const auto files = Folder.Files();
  PlayBackup([](QWidget& dialog) {
    Click(dialog, "Command4");
    Click(dialog, "Command5");
  });
  EXPECT_EQ(Folder.Files(), files);
  EXPECT_TRUE(Program.Failures.empty());
}

TEST_F(BackupTest, BacksUpAll) {
  for (const char* name : {"a.dat", "b.dat", "c.dat"}) Folder.Write(name, std::string("of ") + name);
  Folder.Write("b.bak", "older");
  Folder.Write("d.bak", "kept");
  DateFile("c.dat");
  PlayBackup([](QWidget& dialog) {
    Click(dialog, "Command4");
    EXPECT_EQ(Names(Backups(dialog)), (QStringList{"a.bak", "b.bak", "c.bak", "d.bak"}));
    EXPECT_TRUE(Documents(dialog).selectedItems().isEmpty());
  });
  EXPECT_EQ(Folder.Read("a.bak"), "of a.dat");
  EXPECT_EQ(Folder.Read("b.bak"), "of b.dat");
  EXPECT_EQ(Folder.Read("c.bak"), "of c.dat");
  EXPECT_EQ(Folder.Read("d.bak"), "kept");
}

TEST_F(BackupTest, RestoresAll) {
  for (const char* name : {"a.bak", "b.bak"}) Folder.Write(name, std::string("of ") + name);
  Folder.Write("a.dat", "different");
  Folder.Write("c.dat", "kept");
  DateFile("b.bak");
  PlayBackup([](QWidget& dialog) {
    Click(dialog, "Command5");
    EXPECT_EQ(Names(Documents(dialog)), (QStringList{"a.dat", "b.dat", "c.dat"}));
    EXPECT_TRUE(Backups(dialog).selectedItems().isEmpty());
  });
  EXPECT_EQ(Folder.Read("a.dat"), "of a.bak");
  EXPECT_EQ(Folder.Read("b.dat"), "of b.bak");
  EXPECT_EQ(Folder.Read("c.dat"), "kept");
}

TEST_F(BackupTest, ANameEndsAtItsFirstFullStop) {
  Folder.Write("my.notes.dat", "of my.notes.dat");
  Folder.Write("my.dat", "of my.dat");
  PlayBackup([](QWidget& dialog) { BackUp(dialog, "my.notes.dat"); });
  EXPECT_EQ(Folder.Read("my.bak"), "of my.dat");
  EXPECT_FALSE(Folder.Has("my.notes.bak"));
}

TEST_F(BackupTest, RestoringTooANameEndsAtItsFirstFullStop) {
  Folder.Write("my.notes.bak", "of my.notes.bak");
  Folder.Write("my.bak", "of my.bak");
  PlayBackup([](QWidget& dialog) { Restore(dialog, "my.notes.bak"); });
  EXPECT_EQ(Folder.Read("my.dat"), "of my.bak");
  EXPECT_FALSE(Folder.Has("my.notes.dat"));
}

TEST_F(BackupTest, ANameOf24LettersIsTheLongestThatIsBackedUp) {
  Folder.Write(Letters(24) + ".dat", "bytes");
  PlayBackup([](QWidget& dialog) { BackUp(dialog, "abc"); });
  EXPECT_EQ(Folder.Read(Letters(24) + ".bak"), "bytes");
  EXPECT_TRUE(Program.Failures.empty());
}

/// Files whose copy cannot be made: the program ends and every file stays as it was.
class ImpossibleCopyTest : public BackupTest {
 protected:
  void ExpectFailure(const Robot::Step& step) {
    Start();
    const auto files = Folder.Files();
    PlayBackup(step);
    EXPECT_EQ(Program.Failures.size(), 1U);
    EXPECT_EQ(Folder.Files(), files);
  }
};

TEST_F(ImpossibleCopyTest, TheDocumentOfTheFirstFullStopIsMissing) {
  Folder.Write("my.notes.dat", "x");
  ExpectFailure([](QWidget& dialog) { BackUp(dialog, "my.notes"); });
}

TEST_F(ImpossibleCopyTest, ANameOf25LettersHasNoFullStopLeft) {
  Folder.Write(Letters(25) + ".dat", "x");
  ExpectFailure([](QWidget& dialog) { BackUp(dialog, "abc"); });
}

TEST_F(ImpossibleCopyTest, NorHasABackupsNameOf25Letters) {
  Folder.Write(Letters(25) + ".bak", "x");
  ExpectFailure([](QWidget& dialog) { Restore(dialog, "abc"); });
}

TEST_F(ImpossibleCopyTest, ADocumentHasGoneMeanwhile) {
  Folder.Write("Guide.bak", "kept");
  ExpectFailure([this](QWidget& dialog) {
    Folder.Write("Guide.dat", "x");
    Click(dialog, "Command2");
    Restore(dialog, "Guide");
    fs::remove(Folder.Path() / "Guide.dat");
    BackUp(dialog, "Guide");
  });
}

TEST_F(ImpossibleCopyTest, TheBackupIsAFolder) {
  Folder.Write("Guide.dat", "x");
  Folder.Write("Guide.bak/inside.txt", "y");
  ExpectFailure([](QWidget& dialog) {
    EXPECT_EQ(Backups(dialog).count(), 0);
    BackUp(dialog, "Guide");
  });
}

TEST_F(ImpossibleCopyTest, TheDocumentIsAFolder) {
  Folder.Write("Guide.bak", "x");
  Folder.Write("Guide.dat/inside.txt", "y");
  ExpectFailure([](QWidget& dialog) { Restore(dialog, "Guide"); });
}

TEST_F(ImpossibleCopyTest, AllEndsAtTheFirstFailure) {
  for (const char* name : {"a.dat", "b.dat", "c.dat", "b.bak/inside.txt"}) Folder.Write(name, name);
  PlayBackup([](QWidget& dialog) { Click(dialog, "Command4"); });
  EXPECT_EQ(Program.Failures.size(), 1U);
  EXPECT_TRUE(Folder.Has("a.bak"));
  EXPECT_FALSE(Folder.Has("c.bak"));
}

TEST_F(BackupTest, WithoutAFullStopAFileCalledDatIsCopied) {
  Folder.Write(Letters(25) + ".dat", "x");
  Folder.Write("dat", "of dat");
  PlayBackup([](QWidget& dialog) { BackUp(dialog, "abc"); });
  EXPECT_EQ(Folder.Read("bak"), "of dat");
  EXPECT_TRUE(Program.Failures.empty());
}

class FailingCopyTest : public BackupTest, public testing::WithParamInterface<Operation> {};

TEST_P(FailingCopyTest, EndsTheProgramAndLeavesTheOldFile) {
  Folder.Write("Guide.dat", kGuide);
  Folder.Write("Guide.bak", "older");
  Start();
  const auto files = Folder.Files();
  for (const bool back_up : {true, false}) {
    System.Files.FailAt(GetParam(), 1, std::errc::no_space_on_device);
    PlayBackup([back_up](QWidget& dialog) { back_up ? BackUp(dialog, "Guide") : Restore(dialog, "Guide"); });
    EXPECT_EQ(Folder.Files(), files);
  }
  EXPECT_EQ(Program.Failures.size(), 2U);
}

INSTANTIATE_TEST_SUITE_P(Operations, FailingCopyTest,
                         testing::Values(Operation::CreateNew, Operation::Write, Operation::Flush,
                                         Operation::Close, Operation::Replace));

}  // namespace
}  // namespace tavrel::test
