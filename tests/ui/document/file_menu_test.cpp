#include <QSignalSpy>

#include "ui/document/document_test.h"

namespace tavrel::test {
namespace {

using FileMenuTest = DocumentTest;

constexpr const char* kNewQuestion =
    "Tavrel Writer|question|Creating a new document will erase the    \r\n"
    "current one in memory. Continue?    |OK/Cancel";
constexpr const char* kOpenQuestion =
    "Tavrel Writer|question|Opening a new document will erase the    \r\n"
    "current one in memory. Continue?    |OK/Cancel";
constexpr const char* kCloseQuestion =
    "Tavrel Writer|question|Closing the document does not save it,    \r\n"
    "so any changes will be lost. Continue?    |OK/Cancel";
constexpr const char* kExitQuestion =
    "Tavrel Writer|question|If you exit without saving, you will lose    \r\n"
    "any changes to this project. Continue?    |OK/Cancel";

TEST_F(FileMenuTest, SaveAndSaveAsWithoutADocumentHaveNothingToSave) {
  Choose("FileSave");
  Choose("FileSaveAs");
  const std::string refusal = "Oops!|exclamation|Nothing to save!    |OK";
  EXPECT_EQ(Seen(Messages.Shown), (Texts{refusal, refusal}));
  EXPECT_EQ(Folder.Files().size(), 1U) << "only the settings file";
  ExpectNoDocument();
}

TEST_F(FileMenuTest, CloseWithoutADocumentHasNothingToClose) {
  Choose("FileClose");
  EXPECT_EQ(Seen(Messages.Shown), Texts{"Oops!|exclamation|Nothing to close!    |OK"});
  ExpectNoDocument();
}

TEST_F(FileMenuTest, NewAndOpenWithoutADocumentAskNothing) {
  Play("FileNew", "NewDoc", [](QWidget& dialog) { Click(dialog, "Command2"); });
  Play("FileOpen", "OpenDoc", [](QWidget& dialog) { Click(dialog, "Command2"); });
  EXPECT_TRUE(Messages.Shown.empty());
}

TEST_F(FileMenuTest, NewAsksEvenIfNothingWasChangedAndCancelChangesNothing) {
  OpenDocument("Guide.dat", kGuide);
  Messages.Answers = {false};
  const QString caption = Window().windowTitle();
  Choose("FileNew");
  EXPECT_EQ(Seen(Messages.Shown), Texts{kNewQuestion});
  EXPECT_EQ(Messages.LastParent, &Window());
  ExpectDocument("Guide");
  EXPECT_EQ(Window().windowTitle(), caption);
  EXPECT_EQ(Title().Bytes(), "One");
  EXPECT_EQ(Save(), kGuide);
}

TEST_F(FileMenuTest, OpenAsksEvenIfNothingWasChangedAndCancelChangesNothing) {
  OpenDocument("Guide.dat", kGuide);
  Messages.Answers = {false};
  const QString caption = Window().windowTitle();
  Choose("FileOpen");
  EXPECT_EQ(Seen(Messages.Shown), Texts{kOpenQuestion});
  ExpectDocument("Guide");
  EXPECT_EQ(Window().windowTitle(), caption);
  EXPECT_EQ(Save(), kGuide);
}

TEST_F(FileMenuTest, CloseAsksAndEmptiesTheDocument) {
  OpenDocument("Songs.dat", kSongs);
  Choose("FileClose");
  EXPECT_EQ(Seen(Messages.Shown), Texts{kCloseQuestion});
  ExpectNoDocument();
  EXPECT_TRUE(IsMemoryEmpty());
  EXPECT_EQ(Folder.Read("Songs.dat"), kSongs);
}

TEST_F(FileMenuTest, CancelAtTheCloseQuestionKeepsTheDocument) {
  OpenDocument("Guide.dat", kGuide);
  Messages.Answers = {false};
  Choose("FileClose");
  ExpectDocument("Guide");
  EXPECT_EQ(Save(), kGuide);
}

TEST_F(FileMenuTest, SaveSaysSo) {
  OpenDocument("Guide.dat", kGuide);
  Choose("FileSave");
  EXPECT_EQ(Seen(Messages.Shown), Texts{"Tavrel Writer|information|Project saved...    |OK"});
  EXPECT_EQ(Folder.Read("Guide.dat"), kGuide);
}

TEST_F(FileMenuTest, SaveStoresThePageInTheEditor) {
  OpenDocument("Trio.dat", kTrio);
  ClickRow(PagesGrid(), 2);
  TypeInto(Body(), "edited");
  EXPECT_EQ(Save(),
            "\r\n 1 ,<title>A</title><text>one</text>\r\n 2 ,<title>B</title><text>edited</text>\r\n"
            " 3 ,<title>C</title><text>three</text>\r\n");
}

TEST_F(FileMenuTest, ASavedDocumentIsAskedForAllTheSame) {
  OpenDocument("Guide.dat", kGuide);
  Save();
  Messages.Shown.clear();
  Messages.Answers = {false, false, false, false};
  for (const char* item : {"FileNew", "FileOpen", "FileClose", "FileExit"}) Choose(item);
  EXPECT_EQ(Seen(Messages.Shown), (Texts{kNewQuestion, kOpenQuestion, kCloseQuestion, kExitQuestion}));
  EXPECT_EQ(Program.Ends, 0);
  ExpectDocument("Guide");
}

TEST_F(FileMenuTest, ExitAsksAndEndsTheProgramAtOnce) {
  OpenDocument("Guide.dat", kGuide);
  TypeInto(Title(), "X");
  const QSignalSpy closed(&Window(), &Main::Closed);
  Choose("FileExit");
  EXPECT_EQ(Seen(Messages.Shown), Texts{kExitQuestion});
  EXPECT_EQ(Program.Ends, 1);
  EXPECT_TRUE(closed.isEmpty()) << "no window is asked whether it may close";
  EXPECT_TRUE(Window().isVisible());
  EXPECT_EQ(Folder.Read("Guide.dat"), kGuide);
}

TEST_F(FileMenuTest, CancelAtTheExitQuestionGoesOn) {
  OpenDocument("Guide.dat", kGuide);
  Messages.Answers = {false};
  Choose("FileExit");
  EXPECT_EQ(Program.Ends, 0);
  ExpectDocument("Guide");
}

TEST_F(FileMenuTest, ExitWithoutADocumentAsksNothing) {
  Choose("FileExit");
  EXPECT_TRUE(Messages.Shown.empty());
  EXPECT_EQ(Program.Ends, 1);
}

TEST_F(FileMenuTest, TheCloseBoxAsksNothingAndSavesNothing) {
  OpenDocument("Guide.dat", kGuide);
  TypeInto(Title(), "X");
  const QSignalSpy closed(&Window(), &Main::Closed);
  Window().close();
  EXPECT_EQ(closed.size(), 1);
  EXPECT_FALSE(Window().isVisible());
  EXPECT_TRUE(Messages.Shown.empty());
  EXPECT_EQ(Folder.Read("Guide.dat"), kGuide);
}

TEST_F(FileMenuTest, ANewDocumentAfterCloseHasNothingOfTheOldOne) {
  OpenDocument("Songs.dat", kSongs);
  Choose("FileClose");
  CreateDocument("N");
  EXPECT_EQ(Title().Bytes(), "");
  EXPECT_EQ(Body().Bytes(), "");
  EXPECT_EQ(LinksGrid().TextMatrix(1, 0), "");
  EXPECT_EQ(MusicText().Bytes(), "");
  EXPECT_EQ(PagesGrid().TextMatrix(2, 1), "");
  EXPECT_EQ(Save(), "\r\n");
}

}  // namespace
}  // namespace tavrel::test
