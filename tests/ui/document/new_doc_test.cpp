#include <QCheckBox>
#include <QLineEdit>

#include "ui/document/document_test.h"

namespace tavrel::test {
namespace {

class NewDocTest : public DocumentTest {
 protected:
  void PlayNew(const Robot::Step& step) { Play("FileNew", "NewDoc", step); }
};

TEST_F(NewDocTest, CreateOpensTheNewDocument) {
  CreateDocument("N");
  ExpectDocument("N");
  EXPECT_TRUE(State.Page(1).empty());
  EXPECT_EQ(Title().Bytes(), "");
  EXPECT_EQ(State.CurrentPage, 1);
  EXPECT_TRUE(Messages.Shown.empty());
}

TEST_F(NewDocTest, EnterInTheNameBoxCreates) {
  PlayNew([](QWidget& dialog) { TypeInto(dialog, "Text1", "Guide\n"); });
  ExpectDocument("Guide");
  EXPECT_EQ(Folder.Read("Guide.dat"), "\r\n");
}

TEST_F(NewDocTest, TheNameIsTrimmedAndThenCleaned) {
  CreateDocument(" a&b ");
  ExpectDocument("ab");
  CreateDocument("My.Guide?");
  ExpectDocument("MyGuide");
  CreateDocument("a\\b/c*d:e");
  ExpectDocument("abcd:e");
}

TEST_F(NewDocTest, ANameIsNotTrimmedAgainAfterCleaning) {
  CreateDocument("& Guide");
  ExpectDocument(" Guide");
  CreateDocument("? ?");
  ExpectDocument(" ");
  EXPECT_TRUE(Folder.Has(" .dat"));
}

TEST_F(NewDocTest, ANameThatCleansToNothingIsWaitedFor) {
  for (const char* name : {"", "   ", "?*.", " & "}) {
    PlayNew([name](QWidget& dialog) {
      TypeInto(dialog, "Text1", name);
      Click(dialog, "Command1");
      EXPECT_TRUE(dialog.isVisible()) << name;
      PressKey(Find<QLineEdit>(dialog, "Text1"), Qt::Key_Return);
      EXPECT_TRUE(dialog.isVisible()) << name;
      Click(dialog, "Command2");
    });
  }
  ExpectNoDocument();
  EXPECT_TRUE(Messages.Shown.empty());
  EXPECT_EQ(Folder.Files().size(), 1U) << "only the settings file";
}

TEST_F(NewDocTest, CancelAtTheOverwriteQuestionKeepsTheFileAndTheDialog) {
  Folder.Write("Guide.dat", kGuide);
  Messages.Answers = {false};
  PlayNew([this](QWidget& dialog) {
    TypeInto(dialog, "Text1", "Guide");
    Click(dialog, "Command1");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(Messages.LastParent, &dialog);
    Click(dialog, "Command2");
  });
  EXPECT_EQ(Seen(Messages.Shown), Texts{kOverwrite});
  EXPECT_EQ(Folder.Read("Guide.dat"), kGuide);
  ExpectNoDocument();
}

TEST_F(NewDocTest, OkAtTheOverwriteQuestionReplacesTheFile) {
  Folder.Write("Guide.dat", kGuide);
  CreateDocument("Guide", {"Check1"});
  EXPECT_EQ(Seen(Messages.Shown), Texts{kOverwrite});
  EXPECT_EQ(Folder.Read("Guide.dat"),
            "\r\n 1 ,<title>Title</title><text>This is the first page of the document.</text>"
            "<note>First page of Tavrel</note><link></link>\r\n");
  ExpectDocument("Guide");
}

TEST_F(NewDocTest, TheDocumentIsGoneAsSoonAsTheDialogIsUp) {
  OpenDocument("Songs.dat", kSongs);
  PlayNew([this](QWidget& dialog) {
    EXPECT_TRUE(IsMemoryEmpty());
    EXPECT_TRUE(State.DocPath.empty());
    EXPECT_EQ(Window().windowTitle(), "Tavrel Writer");
    Click(dialog, "Command2");
  });
  ExpectNoDocument();
  EXPECT_TRUE(IsMemoryEmpty());
  EXPECT_EQ(Folder.Read("Songs.dat"), kSongs);
}

TEST_F(NewDocTest, EscAndTheFrameCancel) {
  for (const bool by_key : {true, false}) {
    OpenDocument("Guide.dat", kGuide);
    PlayNew([by_key](QWidget& dialog) {
      TypeInto(dialog, "Text1", "Other");
      if (by_key) {
        PressKey(Find<QWidget>(dialog, "Text1"), Qt::Key_Escape);
      } else {
        dialog.close();
      }
    });
    ExpectNoDocument();
    EXPECT_TRUE(IsMemoryEmpty());
  }
  EXPECT_FALSE(Folder.Has("Other.dat"));
}

TEST_F(NewDocTest, EveryOpeningStartsAfresh) {
  PlayNew([](QWidget& dialog) {
    for (const char* box : {"Check1", "Check2", "Check3"}) Click(dialog, box);
    TypeInto(dialog, "Text1", "Guide");
    Click(dialog, "Command2");
  });
  PlayNew([](QWidget& dialog) {
    for (const char* box : {"Check1", "Check2", "Check3"}) {
      EXPECT_FALSE(Find<QCheckBox>(dialog, box).isChecked()) << box;
    }
    EXPECT_EQ(Find<QLineEdit>(dialog, "Text1").text(), "");
    Click(dialog, "Command2");
  });
}

TEST_F(NewDocTest, TypingMayBeginAtOnce) {
  PlayNew([](QWidget& dialog) {
    EXPECT_EQ(TabOrder(dialog),
              (Texts{"Text1", "Check1", "Check2", "Check3", "List1", "Command1", "Command2"}));
    Click(dialog, "Command2");
  });
}

TEST_F(NewDocTest, ShowsItsCaptions) {
  PlayNew([](QWidget& dialog) {
    EXPECT_EQ(Find<QCheckBox>(dialog, "Check1").text(), "Title");
    EXPECT_EQ(Find<QCheckBox>(dialog, "Check2").text(), "Contents");
    EXPECT_EQ(Find<QCheckBox>(dialog, "Check3").text(), "About");
    EXPECT_EQ(Find<QAbstractButton>(dialog, "Command1").text(), "Create");
    EXPECT_EQ(Find<QAbstractButton>(dialog, "Command2").text(), "Cancel");
    Click(dialog, "Command2");
  });
}

// Entry 0 is outside the document's numbers, so that emptying the document does not reach it.
TEST_F(NewDocTest, AnEntryNumbered0StaysInMemoryAndIsWritten) {
  OpenDocument("Zero.dat", "\r\n 0 ,<title>zero</title>\r\n 1000 ,<title>beyond</title>\r\n");
  CreateDocument("N");
  EXPECT_EQ(Folder.Read("N.dat"), "\r\n 0 ,<title>zero</title>\r\n");
  EXPECT_EQ(State.Page(1000), "<title>beyond</title>");
}

}  // namespace
}  // namespace tavrel::test
