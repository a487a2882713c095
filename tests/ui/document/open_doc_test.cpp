#include <QAbstractButton>

#include "ui/document/document_test.h"

namespace tavrel::test {
namespace {

class OpenDocTest : public DocumentTest {
 protected:
  void PlayOpen(const Robot::Step& step) { Play("FileOpen", "OpenDoc", step); }
};

TEST_F(OpenDocTest, OpenWithoutASelectionWaits) {
  Folder.Write("Guide.dat", kGuide);
  PlayOpen([](QWidget& dialog) {
    Click(dialog, "Command1");
    EXPECT_TRUE(dialog.isVisible());
    Click(dialog, "Command2");
  });
  ExpectNoDocument();
  EXPECT_TRUE(Messages.Shown.empty());
}

TEST_F(OpenDocTest, ADoubleClickOpens) {
  Folder.Write("Trio.dat", kTrio);
  Folder.Write("Guide.dat", kGuide);
  PlayOpen([](QWidget& dialog) { DoubleClickListRow(Find<QListWidget>(dialog, "List1"), "Trio"); });
  ExpectDocument("Trio");
  EXPECT_EQ(Title().Bytes(), "A");
  EXPECT_EQ(Save(), kTrio);
}

TEST_F(OpenDocTest, EnterInTheListDoesNothing) {
  Folder.Write("Guide.dat", kGuide);
  PlayOpen([](QWidget& dialog) {
    auto& list = Find<QListWidget>(dialog, "List1");
    ClickListRow(list, "Guide");
    PressKey(list, Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible());
    Click(dialog, "Command2");
  });
  ExpectNoDocument();
}

TEST_F(OpenDocTest, EnterOnAButtonPressesThatButton) {
  Folder.Write("Guide.dat", kGuide);
  PlayOpen([](QWidget& dialog) {
    ClickListRow(Find<QListWidget>(dialog, "List1"), "Guide");
    auto& open = Find<QWidget>(dialog, "Command1");
    open.setFocus();
    PressKey(open, Qt::Key_Return);
  });
  ExpectDocument("Guide");
}

TEST_F(OpenDocTest, NamesThatAreCutToTheSameTextOpenTheirOwnFiles) {
  const std::string same = "Twenty-five characters...";
  ASSERT_EQ(same.size(), 25U);
  for (const char* last : {"a", "b"}) {
    const std::string file = same + last + ".dat";
    Folder.Write(file, std::string("\r\n 1 ,<title>file ") + last + "</title>\r\n");
    DateFile(file);
  }
  const char* last = "ab";
  for (int row = 0; row < 2; ++row) {
    PlayOpen([&](QWidget& dialog) {
      auto& list = Find<QListWidget>(dialog, "List1");
      EXPECT_EQ(Rows(list), QStringList(2, "Twenty-five characters...03-03-06"));
      ClickRowAt(list, row);
      Click(dialog, "Command1");
    });
    EXPECT_EQ(State.DocPath, same + last[row] + ".dat");
    EXPECT_EQ(Title().Bytes(), std::string("file ") + last[row]);
  }
}

TEST_F(OpenDocTest, CancelLeavesNoDocumentButKeepsThePagesInMemory) {
  OpenDocument("Guide.dat", kGuide);
  const std::string page_1 = State.Page(1);
  PlayOpen([this](QWidget& dialog) {
    EXPECT_TRUE(State.DocPath.empty());
    EXPECT_EQ(Window().windowTitle(), "Tavrel Writer");
    Click(dialog, "Command2");
  });
  ExpectNoDocument();
  EXPECT_EQ(State.Page(1), page_1);
  EXPECT_TRUE(page_1.starts_with("<title>One</title><note>n1</note><text>Alpha</text>"));
}

TEST_F(OpenDocTest, AfterCancelNothingIsOpenToSaveCloseOrPublishAndNothingIsAsked) {
  OpenDocument("Guide.dat", kGuide);
  PlayOpen([](QWidget& dialog) { Click(dialog, "Command2"); });
  Messages.Shown.clear();
  for (const char* item : {"FileSave", "FileSaveAs", "FileClose", "ToolsPublish"}) Choose(item);
  PlayOpen([](QWidget& dialog) { Click(dialog, "Command2"); });
  CreateDocument("N");
  EXPECT_EQ(MessageTexts(), (Texts{"Nothing to save!    ", "Nothing to save!    ", "Nothing to close!    ",
                                   "Nothing to publish!    "}));
}

TEST_F(OpenDocTest, EscAndTheFrameCancel) {
  for (const bool by_key : {true, false}) {
    OpenDocument("Guide.dat", kGuide);
    PlayOpen([by_key](QWidget& dialog) {
      auto& list = Find<QListWidget>(dialog, "List1");
      ClickListRow(list, "Guide");
      if (by_key) {
        PressKey(list, Qt::Key_Escape);
      } else {
        dialog.close();
      }
    });
    ExpectNoDocument();
    EXPECT_FALSE(State.Page(999).empty());
  }
}

TEST_F(OpenDocTest, AFileChangedOnTheDiskReplacesTheWholeDocument) {
  OpenDocument("Guide.dat", kGuide);
  OpenDocument("Guide.dat", kTrio);
  ExpectDocument("Guide");
  EXPECT_EQ(State.Page(1), "<title>A</title><text>one</text>");
  EXPECT_EQ(State.Page(3), "<title>C</title><text>three</text>");
  EXPECT_TRUE(State.Page(5).empty());
  EXPECT_TRUE(State.Page(999).empty());
  EXPECT_EQ(PagesGrid().TextMatrix(5, 1), "");
}

TEST_F(OpenDocTest, OpeningEmptiesMusicLinksToo) {
  OpenDocument("Songs.dat", kSongs);
  OpenDocument("Trio.dat", kTrio);
  EXPECT_TRUE(State.MusicLink(1).empty());
  EXPECT_TRUE(State.MusicLink(3).empty());
}

TEST_F(OpenDocTest, ADocumentWithACapitalExtensionOpens) {
  Folder.Write("OLD.DAT", kTrio);
  OpenExisting("OLD.DAT");
  EXPECT_EQ(State.DocPath, "OLD.DAT");
  EXPECT_EQ(Save(), kTrio);
}

TEST_F(OpenDocTest, ShowsItsCaptions) {
  PlayOpen([](QWidget& dialog) {
    EXPECT_EQ(Find<QAbstractButton>(dialog, "Command1").text(), "Open");
    EXPECT_EQ(Find<QAbstractButton>(dialog, "Command1").toolTip(), "Open project");
    EXPECT_EQ(Find<QAbstractButton>(dialog, "Command2").text(), "Cancel");
    EXPECT_EQ(TabOrder(dialog), (Texts{"List1", "Command1", "Command2"}));
    Click(dialog, "Command2");
  });
}

}  // namespace
}  // namespace tavrel::test
