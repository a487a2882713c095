#include "ui/shell/recovery_keeper.h"

#include <QSignalSpy>

#include "support/window_test.h"
#include "ui/controls/hourglass.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;
using Operation = FailingFiles::Operation;

constexpr const char* kRecoveryFile = ".tavrel-1.recovery";

/// A recovery file of the document by its pages' lines.
std::string DraftOf(const std::string& name, const std::string& pages) {
  const std::string text = "\r\n" + pages;
  return "recovery," + std::to_string(text.size()) + "," + name + "\r\n" + text;
}

class RecoveryKeeperTest : public WindowTest {
 protected:
  /// What the recovery file holds after a look; empty if there is none.
  std::string Kept() {
    Keeper.Look();
    Keeper.WaitUntilKept();
    return Folder.Has(kRecoveryFile) ? Folder.Read(kRecoveryFile) : std::string();
  }

  RecoveryKeeper Keeper{Application, Folder.Path() / kRecoveryFile, [this] { return Window().TypedPage(); }};
};

const std::string kTypedTrio =
    DraftOf("Trio.dat",
            " 1 ,<title>new</title><text>one</text>\r\n 2 ,<title>B</title><text>two</text>\r\n"
            " 3 ,<title>C</title><text>three</text>\r\n");

TEST_F(RecoveryKeeperTest, NothingIsKeptWithoutADocument) {
  Start();
  EXPECT_EQ(Kept(), "");
}

TEST_F(RecoveryKeeperTest, NothingIsKeptOfADocumentAsItWasOpened) {
  OpenDocument("Trio.dat", kTrio);
  EXPECT_EQ(Kept(), "");
}

TEST_F(RecoveryKeeperTest, APageInAnotherOrderThanTheEditorsIsNotTakenForChanged) {
  OpenDocument("Default.dat", "\r\n 1 ,<text>one</text><title> A </title><link></link>\r\n");
  EXPECT_EQ(Kept(), "");
}

TEST_F(RecoveryKeeperTest, WhatIsTypedIsKeptWithoutStoringIt) {
  OpenDocument("Trio.dat", kTrio);
  TypeInto(Title(), "new");
  EXPECT_EQ(Kept(), kTypedTrio);
  EXPECT_EQ(State.Pages[1], "<title>A</title><text>one</text>");
  EXPECT_EQ(Folder.Read("Trio.dat"), kTrio);
  EXPECT_TRUE(Title().hasFocus());
}

TEST_F(RecoveryKeeperTest, EveryFieldIsKept) {
  OpenDocument("Tea.dat", "\r\n 1 ,<title>A</title>\r\n");
  TypeInto(Title(), "title");
  TypeInto(Note(), "note");
  TypeInto(Body(), "one\ntwo");
  TypeInto(MusicText(), "song");
  TypeInto(MusicLink(), "m1");
  TypeInto(LinkText(), "link");
  TypeInto(LinkTarget(), "2");
  EXPECT_EQ(Kept(),
            DraftOf("Tea.dat",
                    " 1 ,<title>title</title><note>note</note><text>one<p>two</text><link><linktext>link"
                    "</linktext><linkto>002</linkto></link><music>song</music><music>M1</music>\r\n"));
}

TEST_F(RecoveryKeeperTest, WhatIsTypedLaterReplacesIt) {
  OpenDocument("Trio.dat", kTrio);
  TypeInto(Title(), "first");
  Kept();
  TypeInto(Title(), "new");
  EXPECT_EQ(Kept(), kTypedTrio);
}

TEST_F(RecoveryKeeperTest, PagesThatWereStoredAreKept) {
  OpenDocument("Trio.dat", kTrio);
  TypeInto(Title(), "new");
  ClickRow(PagesGrid(), 3);
  EXPECT_EQ(Kept(), kTypedTrio);
}

TEST_F(RecoveryKeeperTest, TypingBackToWhatTheFileHoldsLeavesNothingToKeep) {
  OpenDocument("Trio.dat", kTrio);
  TypeInto(Title(), "new");
  Kept();
  TypeInto(Title(), "A");
  EXPECT_EQ(Kept(), "");
}

TEST_F(RecoveryKeeperTest, SavingLeavesNothingToKeep) {
  OpenDocument("Trio.dat", kTrio);
  TypeInto(Title(), "new");
  Kept();
  Save();
  EXPECT_EQ(Kept(), "");
  EXPECT_FALSE(Folder.Has(kRecoveryFile));
}

TEST_F(RecoveryKeeperTest, ClosingLeavesNothingToKeep) {
  OpenDocument("Trio.dat", kTrio);
  TypeInto(Title(), "new");
  Kept();
  Choose("FileClose");
  EXPECT_EQ(Kept(), "");
  EXPECT_FALSE(Folder.Has(kRecoveryFile));
}

TEST_F(RecoveryKeeperTest, AQuestionAnsweredWithCancelKeepsTheDraft) {
  OpenDocument("Trio.dat", kTrio);
  TypeInto(Title(), "new");
  Messages.Answers = {false};
  Choose("FileClose");
  EXPECT_EQ(Kept(), kTypedTrio);
}

TEST_F(RecoveryKeeperTest, OpeningAnotherDocumentLeavesNothingToKeep) {
  OpenDocument("Trio.dat", kTrio);
  TypeInto(Title(), "new");
  Kept();
  OpenDocument("Guide.dat", kGuide);
  EXPECT_EQ(Kept(), "");
}

TEST_F(RecoveryKeeperTest, SaveAsLeavesWhatIsStillUnstored) {
  OpenDocument("Trio.dat", kTrio);
  TypeInto(Title(), "new");
  Player.Expect("SaveAs", [](QWidget& dialog) {
    TypeInto(dialog, "Text1", "Four");
    Click(dialog, "Command1");
  });
  Choose("FileSaveAs");
  const std::string pages = kTypedTrio.substr(kTypedTrio.find("\r\n") + 4);
  EXPECT_EQ(Kept(), DraftOf("Four.dat", pages));
}

TEST_F(RecoveryKeeperTest, ADocumentWhoseFileIsDeletedIsKept) {
  OpenDocument("Trio.dat", kTrio);
  EXPECT_EQ(Kept(), "");
  fs::remove(Folder.Path() / "Trio.dat");
  EXPECT_EQ(Kept(), DraftOf("Trio.dat", std::string(kTrio.substr(2))));
}

TEST_F(RecoveryKeeperTest, ADocumentWhoseFileWasReplacedIsKept) {
  OpenDocument("Trio.dat", kTrio);
  EXPECT_EQ(Kept(), "");
  Folder.Write("Trio.dat", "\r\n 1 ,<title>restored</title>\r\n");
  EXPECT_EQ(Kept(), DraftOf("Trio.dat", std::string(kTrio.substr(2))));
}

TEST_F(RecoveryKeeperTest, WhatIsTypedIsKeptWhileADialogStandsOverIt) {
  OpenDocument("Trio.dat", kTrio);
  TypeInto(Title(), "new");
  std::string kept;
  Player.Expect("FindForm", [&](QWidget& dialog) {
    kept = Kept();
    Click(dialog, "Command2");
  });
  Choose("EditSearch");
  EXPECT_EQ(kept, kTypedTrio);
}

TEST_F(RecoveryKeeperTest, ACommandAtWorkIsNotDisturbed) {
  OpenDocument("Trio.dat", kTrio);
  TypeInto(Title(), "new");
  {
    const Hourglass hourglass;
    EXPECT_EQ(Kept(), "");
  }
  EXPECT_EQ(Kept(), kTypedTrio);
}

TEST_F(RecoveryKeeperTest, AFailureIsToldAsLongAsItLasts) {
  OpenDocument("Trio.dat", kTrio);
  TypeInto(Title(), "new");
  const QSignalSpy failed(&Keeper, &RecoveryKeeper::Failed);
  for (int nth = 0; nth < 2; ++nth) {
    System.Files.FailAt(Operation::Flush, 1, std::errc::no_space_on_device);
    EXPECT_EQ(Kept(), "");
    ASSERT_EQ(failed.size(), nth + 1);
    EXPECT_TRUE(failed.at(nth).at(0).toString().contains("No space left on device"));
  }
  EXPECT_EQ(Kept(), kTypedTrio);
  ASSERT_EQ(failed.size(), 3);
  EXPECT_EQ(failed.at(2).at(0).toString(), "");
}

TEST_F(RecoveryKeeperTest, APageThatIsTypedBackToWhatItWasBeforeSavingIsChanged) {
  OpenDocument("Trio.dat", kTrio);
  TypeInto(Title(), "new");
  Save();
  EXPECT_EQ(Kept(), "");
  TypeInto(Title(), "A");
  EXPECT_EQ(Kept(), DraftOf("Trio.dat", std::string(kTrio.substr(2))));
}

TEST_F(RecoveryKeeperTest, TheProgramIsToldWhenTheDocumentIsSettled) {
  OpenDocument("Trio.dat", kTrio);
  const int opened = Program.Settled;
  Save();
  EXPECT_EQ(Program.Settled, opened + 1);
  Choose("FileClose");
  EXPECT_EQ(Program.Settled, opened + 2);
}

TEST_F(RecoveryKeeperTest, ForgettingRemovesTheFileAndEndsTheKeeping) {
  OpenDocument("Trio.dat", kTrio);
  TypeInto(Title(), "new");
  Keeper.Start();
  Kept();
  Keeper.Forget();
  EXPECT_FALSE(Folder.Has(kRecoveryFile));
  EXPECT_FALSE(Find<QTimer>(Keeper, "Timer").isActive());
}

TEST_F(RecoveryKeeperTest, TheLastLookKeepsWhatWasTypedAMomentAgo) {
  OpenDocument("Trio.dat", kTrio);
  Kept();
  TypeInto(Title(), "new");
  Keeper.KeepLast();
  EXPECT_EQ(Folder.Read(kRecoveryFile), kTypedTrio);
}

TEST_F(RecoveryKeeperTest, TheTypingIsKeptByItselfEveryTwoSeconds) {
  OpenDocument("Trio.dat", kTrio);
  Keeper.Start();
  EXPECT_EQ(Find<QTimer>(Keeper, "Timer").interval(), 2000);
  TypeInto(Title(), "new");
  EXPECT_TRUE(QTest::qWaitFor([this] { return Folder.Has(kRecoveryFile); }, 30000));
  EXPECT_EQ(Folder.Read(kRecoveryFile), kTypedTrio);
}

TEST_F(RecoveryKeeperTest, WithoutAPlaceNothingIsKept) {
  RecoveryKeeper placeless(Application, {}, [this] { return Window().TypedPage(); });
  OpenDocument("Trio.dat", kTrio);
  TypeInto(Title(), "new");
  placeless.Start();
  placeless.KeepLast();
  placeless.Forget();
  EXPECT_EQ(Folder.Files().size(), 2U);  // the document and the settings
}

}  // namespace
}  // namespace tavrel::test
