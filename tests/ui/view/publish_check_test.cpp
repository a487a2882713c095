#include <QCheckBox>
#include <QLabel>

#include <optional>

#include "ui/view/view_test.h"

namespace tavrel::test {
namespace {

// A note's bytes: "<title>-T</title>" of page 1, the line of LineWrap, the line of NowPlaying with background
// music, the text, and the Notes menu link if it is wanted, each with CR LF behind it.
constexpr std::size_t kTitleLine = 7 + 2 + 8 + 2;
constexpr std::size_t kLineWrapLine = 38 + 2;
constexpr std::size_t kNowPlayingLine = 40 + 2;
constexpr std::size_t kNotesMenuLine = 26 + 2;
constexpr std::size_t kTextsEnd = 2;
/// The text that fills a note with background music and without the Notes menu link to its 4,096 bytes.
constexpr std::size_t kFillingText = 4096 - kTitleLine - kLineWrapLine - kNowPlayingLine - kTextsEnd;

/// One page called T with a text of this length.
std::string TextOf(std::size_t length) {
  return "\r\n 1 ,<title>T</title><text>" + std::string(length, 'x') + "</text>\r\n";
}

class PublishCheckTest : public ViewTest {
 protected:
  /// Chooses File > Publish, sets the two boxes as a person does and reads the line; leaves with the button.
  std::string Line(bool notes_menu = false, bool background = true, const QString& button = "Command1") {
    std::optional<std::string> line;
    Player.Expect("Publish", [&](QWidget& dialog) {
      Tick(dialog, "Check1", notes_menu);
      Tick(dialog, "Check2", background);
      line = LineIn(dialog);
      Click(dialog, button);
      EXPECT_FALSE(dialog.isVisible());
    });
    Choose("ToolsPublish");
    return line.value_or("no dialog");
  }

  static void Tick(const QWidget& dialog, const QString& box, bool is_wanted) {
    auto& check = Find<QCheckBox>(dialog, box);
    check.setFocus();
    if (check.isChecked() != is_wanted) PressKey(check, Qt::Key_Space);
    EXPECT_EQ(check.isChecked(), is_wanted);
  }

  /// What the line says; nothing if it is not there.
  static std::string LineIn(const QWidget& dialog) {
    const auto& line = Find<QLabel>(dialog, "CheckLine");
    return line.isVisible() ? line.text().toStdString() : "";
  }
};

const std::string kOneCut = "1 note will be cut; see View > Project check.";

TEST_F(PublishCheckTest, TheLineIsHiddenWhenNothingIsWrong) {
  OpenDocument("Guide.dat", kGuide);
  EXPECT_EQ(Line(), "");
  EXPECT_EQ(Line(true, false), "");
}

TEST_F(PublishCheckTest, WhatIsNeitherCutNorDeadIsNotMentioned) {
  // No title, a lone bracket, empty music that is not published, a page that is not reached.
  OpenDocument("Doc.dat", "\r\n 1 ,<text>a > b</text><link>" + LinkRecord("", "M7") +
                              "</link>\r\n 2 ,<title>T</title>\r\n");
  EXPECT_EQ(Line(), "");
}

TEST_F(PublishCheckTest, ANoteOfExactly4096BytesIsCutByNeitherBoxAlone) {
  OpenDocument("Doc.dat", TextOf(kFillingText));
  EXPECT_EQ(Line(false, true), "") << "4,096 bytes";
  EXPECT_EQ(Line(false, false), "") << "42 bytes less";
  EXPECT_EQ(Line(true, true), kOneCut) << "28 bytes more";
  EXPECT_EQ(Line(true, false), "") << "28 bytes more and 42 less";
}

TEST_F(PublishCheckTest, ANoteOfOneByteMoreIsCut) {
  OpenDocument("Doc.dat", TextOf(kFillingText + 1));
  EXPECT_EQ(Line(false, true), kOneCut);
  EXPECT_EQ(Line(false, false), "");
}

TEST_F(PublishCheckTest, TheNotesMenuLinkCutsOnTheVeryByte) {
  const std::size_t filling = kFillingText + kNowPlayingLine - kNotesMenuLine;
  OpenDocument("Doc.dat", TextOf(filling));
  EXPECT_EQ(Line(true, false), "");
  OpenDocument("More.dat", TextOf(filling + 1));
  EXPECT_EQ(Line(true, false), kOneCut);
}

TEST_F(PublishCheckTest, TheLineFollowsTheBoxesAtOnce) {
  OpenDocument("Doc.dat", TextOf(kFillingText));
  Player.Expect("Publish", [&](QWidget& dialog) {
    EXPECT_EQ(LineIn(dialog), "");
    Click(dialog, "Check1");
    EXPECT_EQ(LineIn(dialog), kOneCut);
    Click(dialog, "Check2");
    EXPECT_EQ(LineIn(dialog), "");
    Click(dialog, "Check2");
    EXPECT_EQ(LineIn(dialog), kOneCut);
    Click(dialog, "Check1");
    EXPECT_EQ(LineIn(dialog), "");
    Click(dialog, "Command1");
  });
  Choose("ToolsPublish");
}

TEST_F(PublishCheckTest, LinksThatLeadNowhereAreCounted) {
  OpenDocument("Doc.dat", "\r\n 1 ,<title>T</title><link>" + LinkRecord("x", "007") + "</link>\r\n");
  EXPECT_EQ(Line(), "1 link leads nowhere; see View > Project check.");
  OpenDocument("More.dat", "\r\n 1 ,<title>T</title><link>" + LinkRecord("x", "007") +
                               LinkRecord("y", "1000") + LinkRecord("z", "001") + "</link>\r\n");
  EXPECT_EQ(Line(), "2 links lead nowhere; see View > Project check.");
  OpenDocument("Music.dat", "\r\n 1 ,<title>T</title><link>" + LinkRecord("x", "M7") + "</link>\r\n");
  EXPECT_EQ(Line(), "1 link leads nowhere; see View > Project check.");
}

TEST_F(PublishCheckTest, CutNotesAndDeadLinksShareTheLine) {
  const std::string text = "<text>" + std::string(4000, 'x') + "</text>";
  OpenDocument("Doc.dat", "\r\n 1 ,<title>T</title>" + text + "<link>" + LinkRecord("x", "007") +
                              "</link>\r\n 2 ,<title>T</title>" + text + "\r\n");
  EXPECT_EQ(Line(), "2 notes will be cut, 1 link leads nowhere; see View > Project check.");
}

TEST_F(PublishCheckTest, WhatIsTypedAndNotStoredCounts) {
  OpenDocument("Doc.dat", TextOf(kFillingText));
  TypeInFront(Title(), "x");
  EXPECT_EQ(Line(), kOneCut);
}

TEST_F(PublishCheckTest, PublishingIsNeitherHinderedNorAskedAbout) {
  OpenDocument("Doc.dat", "\r\n 1 ,<title>T</title><text>" + std::string(5000, 'x') + "</text><link>" +
                              LinkRecord("x", "007") + "</link>\r\n");
  EXPECT_EQ(Line(false, false, "Command2"),
            "1 note will be cut, 1 link leads nowhere; see View > Project check.");
  EXPECT_EQ(Seen(Messages.Shown), Rows({"Publish|information|Finished...    |OK"}));
  EXPECT_EQ(Folder.Read("Doc/z001.txt"),
            "<title>-T</title>\r\n<meta name=\"LineWrap\" content=\"false\">\r\n" + std::string(5000, 'x') +
                "\r\n<a href=\"z007.txt\">x</a>\r\n");
}

}  // namespace
}  // namespace tavrel::test
