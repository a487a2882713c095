#include "ui/document/document_test.h"

namespace tavrel::test {
namespace {

using DocumentFileTest = DocumentTest;

/// A document of one page with this text.
std::string PageFile(const std::string& text) {
  return "\r\n 1 ,<text>" + text + "</text>\r\n";
}

TEST_F(DocumentFileTest, SavingWithoutEditsGivesTheSameBytes) {
  for (const std::string_view document : {kGuide, kSongs, kTrio, kFruit}) {
    OpenDocument("Same.dat", document);
    EXPECT_EQ(Save(), document);
  }
}

TEST_F(DocumentFileTest, APageKeepsItsNumber) {
  const std::string file = "\r\n 5 ,<title>Five</title><text>Gamma</text>\r\n";
  OpenDocument("One.dat", file);
  for (int page = 1; page <= 4; ++page) EXPECT_TRUE(State.Page(page).empty()) << page;
  EXPECT_EQ(State.Page(5), "<title>Five</title><text>Gamma</text>");
  EXPECT_EQ(Save(), file);
}

TEST_F(DocumentFileTest, LinesOfThePageTravelOnOneLine) {
  CreateDocument("N");
  TypeInto(Body(), "a\nb\nc");
  EXPECT_EQ(Save(), PageFile("a<p>b<p>c"));
  Reopen();
  EXPECT_EQ(Body().Bytes(), "a\r\nb\r\nc");
}

TEST_F(DocumentFileTest, ATypedLineBreakMarkIsALineBreakAfterReopening) {
  OpenDocument("Trio.dat", kTrio);
  TypeInto(Body(), "x<p>y");
  Save();
  EXPECT_EQ(Body().Bytes(), "x<p>y");
  Reopen();
  EXPECT_EQ(Body().Bytes(), "x\r\ny");
}

TEST_F(DocumentFileTest, CommasAndQuotesAreContent) {
  CreateDocument("N");
  TypeInto(Body(), "x, \"y\", z");
  EXPECT_EQ(Save(), PageFile("x, \"y\", z"));
  Reopen();
  EXPECT_EQ(Body().Bytes(), "x, \"y\", z");
}

TEST_F(DocumentFileTest, ALetterIsOneByteAndThereIsNoByteOrderMark) {
  CreateDocument("N");
  TypeInto(Title(), QString::fromUtf8("Caf\u00e9"));
  EXPECT_EQ(Save(), "\r\n 1 ,<title>Caf\xE9</title>\r\n");
  Reopen();
  EXPECT_EQ(Title().Bytes(), "Caf\xE9");
}

TEST_F(DocumentFileTest, NinetyNineMusicLinksAreStoredAndTheHundredthIsNot) {
  CreateDocument("N");
  std::string file;
  for (int link = 1; link <= 100; ++link) {
    const std::string record = "<song>S" + std::to_string(link) + "</song>";
    State.MusicLink(link) = record;
    if (link < 100) file += " " + std::to_string(link) + " ," + record + "\r\n";
  }
  EXPECT_EQ(Save(), file + "\r\n");

  Reopen();
  EXPECT_EQ(State.MusicLink(1), "<song>S1</song>");
  EXPECT_EQ(State.MusicLink(99), "<song>S99</song>");
  EXPECT_TRUE(State.MusicLink(100).empty());
  EXPECT_EQ(MusicLink().Items().size(), 99);
}

TEST_F(DocumentFileTest, ALineBreakMarkInAMusicLinkStaysAsItIs) {
  const std::string file = " 1 ,<song>a<p>b</song>\r\n\r\n";
  OpenDocument("Music.dat", file);
  EXPECT_EQ(State.MusicLink(1), "<song>a<p>b</song>");
  EXPECT_EQ(Save(), file);
}

TEST_F(DocumentFileTest, SavingMakesTheProgramsFolderTheCurrentOne) {
  OpenDocument("Guide.dat", kGuide);
  std::filesystem::create_directory(Folder.Path() / "elsewhere");
  std::filesystem::current_path(Folder.Path() / "elsewhere");
  EXPECT_EQ(Save(), kGuide);
  EXPECT_EQ(std::filesystem::current_path(), Folder.Path());
  EXPECT_FALSE(Folder.Has("elsewhere/Guide.dat"));
}

TEST_F(DocumentFileTest, SavingLetsPendingEventsRun) {
  OpenDocument("Trio.dat", kTrio);
  bool ran = false;
  QMetaObject::invokeMethod(
      &Window(), [&ran] { ran = true; }, Qt::QueuedConnection);
  Find<QAction>(Window(), "FileSave").trigger();
  EXPECT_TRUE(ran);
}

}  // namespace
}  // namespace tavrel::test
