#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>

#include "ui/document/document_test.h"

namespace tavrel::test {
namespace {

class SaveAsTest : public DocumentTest {
 protected:
  void PlaySaveAs(const Robot::Step& step) { Play("FileSaveAs", "SaveAs", step); }
};

TEST_F(SaveAsTest, StoresTheDocumentUnderTheNewName) {
  OpenDocument("Guide.dat", kGuide);
  SaveAs("Second");
  ExpectDocument("Second");
  EXPECT_EQ(Folder.Read("Second.dat"), kGuide);
  EXPECT_EQ(Folder.Read("Guide.dat"), kGuide);
  EXPECT_TRUE(Messages.Shown.empty());
}

TEST_F(SaveAsTest, LeavesOutWhatWasTypedSinceThePageWasLast) {
  OpenDocument("Trio.dat", kTrio);
  TypeInto(Body(), "edited");
  SaveAs("Copy");
  EXPECT_EQ(Folder.Read("Copy.dat"), kTrio);
  ExpectDocument("Copy");
  EXPECT_EQ(Body().Bytes(), "edited");

  EXPECT_EQ(Save(),
            "\r\n 1 ,<title>A</title><text>edited</text>\r\n 2 ,<title>B</title><text>two</text>\r\n"
            " 3 ,<title>C</title><text>three</text>\r\n");
  EXPECT_EQ(Folder.Read("Trio.dat"), kTrio);
  ExpectDocument("Copy");
}

TEST_F(SaveAsTest, CancelChangesNothing) {
  OpenDocument("Guide.dat", kGuide);
  ClickRow(PagesGrid(), 5);
  PlaySaveAs([](QWidget& dialog) {
    TypeInto(dialog, "Text1", "Other");
    Click(dialog, "Command2");
  });
  ExpectDocument("Guide");
  EXPECT_FALSE(Folder.Has("Other.dat"));
  EXPECT_EQ(State.CurrentPage, 5);
  EXPECT_EQ(Title().Bytes(), "Five");
  EXPECT_EQ(PagesGrid().Row(), 5);
}

TEST_F(SaveAsTest, EscAndTheFrameCancel) {
  OpenDocument("Guide.dat", kGuide);
  for (const bool by_key : {true, false}) {
    PlaySaveAs([by_key](QWidget& dialog) {
      TypeInto(dialog, "Text1", "Other");
      if (by_key) {
        PressKey(Find<QWidget>(dialog, "Text1"), Qt::Key_Escape);
      } else {
        dialog.close();
      }
    });
    ExpectDocument("Guide");
  }
  EXPECT_FALSE(Folder.Has("Other.dat"));
}

TEST_F(SaveAsTest, EnterInTheNameBoxDoesNothing) {
  OpenDocument("Guide.dat", kGuide);
  PlaySaveAs([](QWidget& dialog) {
    TypeInto(dialog, "Text1", "Other\n");
    PressKey(Find<QWidget>(dialog, "List1"), Qt::Key_Enter);
    EXPECT_TRUE(dialog.isVisible());
    Click(dialog, "Command2");
  });
  ExpectDocument("Guide");
  EXPECT_FALSE(Folder.Has("Other.dat"));
}

TEST_F(SaveAsTest, AsksBeforeOverwritingEvenTheDocumentsOwnFile) {
  OpenDocument("Guide.dat", kGuide);
  Folder.Write("Guide.dat", "newer on the disk");
  Messages.Answers = {false};
  PlaySaveAs([this](QWidget& dialog) {
    TypeInto(dialog, "Text1", "Guide");
    Click(dialog, "Command1");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(Folder.Read("Guide.dat"), "newer on the disk");
    Click(dialog, "Command1");
  });
  EXPECT_EQ(Seen(Messages.Shown), (Texts{kOverwrite, kOverwrite}));
  EXPECT_EQ(Folder.Read("Guide.dat"), kGuide);
  ExpectDocument("Guide");
}

TEST_F(SaveAsTest, OverwritesAnotherDocumentOnceAllowed) {
  Folder.Write("Trio.dat", kTrio);
  OpenDocument("Guide.dat", kGuide);
  SaveAs("Trio");
  EXPECT_EQ(Seen(Messages.Shown), Texts{kOverwrite});
  EXPECT_EQ(Folder.Read("Trio.dat"), kGuide);
  ExpectDocument("Trio");
}

TEST_F(SaveAsTest, TheNameIsTrimmedAndThenCleaned) {
  OpenDocument("Guide.dat", kGuide);
  SaveAs("  My.Notes & Co?  ");
  ExpectDocument("MyNotes  Co");
  EXPECT_EQ(Folder.Read("MyNotes  Co.dat"), kGuide);
}

TEST_F(SaveAsTest, ANameThatCleansToNothingIsWaitedFor) {
  OpenDocument("Guide.dat", kGuide);
  for (const char* name : {"", "  ", "./\\&"}) {
    PlaySaveAs([name](QWidget& dialog) {
      TypeInto(dialog, "Text1", name);
      Click(dialog, "Command1");
      EXPECT_TRUE(dialog.isVisible()) << name;
      Click(dialog, "Command2");
    });
  }
  ExpectDocument("Guide");
  EXPECT_TRUE(Messages.Shown.empty());
}

TEST_F(SaveAsTest, ANameOutsidePlainLettersIsAFileOfThatName) {
  OpenDocument("Guide.dat", kGuide);
  SaveAs(QString::fromUtf8("Caf\u00e9"));
  EXPECT_EQ(Folder.Read(std::filesystem::path(u8"Caf\u00e9.dat")), kGuide);
  EXPECT_EQ(Find<QLabel>(Window(), "Label7").text(), QString::fromUtf8("Caf\u00e9"));
}

TEST_F(SaveAsTest, EveryOpeningStartsAfresh) {
  OpenDocument("Guide.dat", kGuide);
  for (int opening = 0; opening < 2; ++opening) {
    PlaySaveAs([](QWidget& dialog) {
      EXPECT_EQ(Find<QLineEdit>(dialog, "Text1").text(), "");
      TypeInto(dialog, "Text1", "Other");
      Click(dialog, "Command2");
    });
  }
}

TEST_F(SaveAsTest, ShowsItsCaptions) {
  OpenDocument("Guide.dat", kGuide);
  PlaySaveAs([](QWidget& dialog) {
    EXPECT_EQ(Find<QLabel>(dialog, "Label1").text(), "Enter a new project name:");
    EXPECT_EQ(Find<QAbstractButton>(dialog, "Command1").text(), "Save");
    EXPECT_EQ(Find<QAbstractButton>(dialog, "Command2").text(), "Cancel");
    EXPECT_EQ(TabOrder(dialog), (Texts{"Text1", "List1", "Command1", "Command2"}));
    Click(dialog, "Command2");
  });
}

}  // namespace
}  // namespace tavrel::test
