#include <QStatusBar>

#include "ui/editing/text_commands_test.h"

namespace tavrel::test {
namespace {

/// What texts become on their way between the body and the clipboard.
using TextTransferTest = TextCommandsTest;

constexpr const char* kABreakB =
    "a\xA0"
    "b\r\n\r\nc";

TEST_F(TextTransferTest, LineBreaksOfAllKindsArePasted) {
  EXPECT_EQ(Pasted(u"a\r\nb\nc\u2028d\re\u2029f"_qs), "a\r\nb\r\nc\r\nd\r\ne\r\nf");
  EXPECT_EQ(Pasted("\r\n\n"), "\r\n\r\n");
  EXPECT_EQ(Pasted("\n\r\n\r"), "\r\n\r\n\r\n");
  ClickRow(PagesGrid(), 2);
  EXPECT_EQ(State.Pages[1], "<title>A</title><text>\r\n\r\n\r\n</text>");
}

TEST_F(TextTransferTest, CharactersBeyondTheCodePageBecomeQuestionMarksAndAreTold) {
  EXPECT_EQ(Pasted(u"\u4E2D\u00E9\u20AC"_qs), "?\xE9\x80");
  auto& status_bar = Find<QStatusBar>(Window(), "StatusBar");
  EXPECT_EQ(status_bar.currentMessage(), "A character that an iPod note cannot hold became \"?\".");
  EXPECT_EQ(Pasted(u"x\U0001F600y\u200D\u0416"_qs), "x?y??");
  EXPECT_EQ(status_bar.currentMessage(), "3 characters that an iPod note cannot hold became \"?\".");
}

TEST_F(TextTransferTest, EveryCharacterOfTheCodePageIsPastedAndCopiedUnchanged) {
  QString all;
  std::string bytes;
  for (int byte = 0; byte <= 0xFF; ++byte) {
    const char c = static_cast<char>(byte);
    if (c == '\r' || c == '\n') continue;
    bytes += c;
    all += QChar(static_cast<char16_t>(CodePage::Windows1252().Character(c)));
  }
  EXPECT_EQ(Pasted(all), bytes);
  SelectAllWithKeys();
  SetClipboard("");
  Choose("EditCopy");
  EXPECT_EQ(Clipboard(), all);
}

TEST_F(TextTransferTest, LinesAreCopiedWithLineFeedsAndTheirNoBreakSpaces) {
  Body().SetBytes(kABreakB);
  SelectAllWithKeys();
  Choose("EditCopy");
  EXPECT_EQ(Clipboard(), u"a\u00A0b\n\nc"_qs);
  Choose("EditCut");
  EXPECT_EQ(Clipboard(), u"a\u00A0b\n\nc"_qs);
  EXPECT_EQ(Body().Bytes(), "");
  Choose("EditPaste");
  EXPECT_EQ(Body().Bytes(), kABreakB);
}

TEST_F(TextTransferTest, ALineBreakAloneCanBeCut) {
  Body().SetBytes("a\r\nb");
  SelectWithKeys(1, 1);
  Choose("EditCut");
  EXPECT_EQ(Clipboard(), "\n");
  EXPECT_EQ(Body().Bytes(), "ab");
}

TEST_F(TextTransferTest, AMegabyteInOneLineIsPastedAndStored) {
  const std::string text(1000000, 'w');
  EXPECT_TRUE(Pasted(QString::fromStdString(text)) == text);
  EXPECT_TRUE(Save() == "\r\n 1 ,<title>A</title><text>" + text +
                            "</text>\r\n 2 ,<title>B</title><text>two</text>\r\n"
                            " 3 ,<title>C</title><text>three</text>\r\n");
  SelectAllWithKeys();
  Choose("EditCut");
  EXPECT_EQ(Clipboard().size(), 1000000);
  EXPECT_EQ(Body().Bytes(), "");
}

TEST_F(TextTransferTest, AMegabyteOfLinesIsPastedCopiedAndCleared) {
  QString lines;
  std::string stored;
  for (int line = 0; line < 50000; ++line) {
    lines += "twenty characters, so\n";
    stored += "twenty characters, so\r\n";
  }
  EXPECT_TRUE(Pasted(lines) == stored);
  SetClipboard("");
  SelectAllWithKeys();
  Choose("EditCopy");
  EXPECT_TRUE(Clipboard() == lines);
  Choose("EditDeleteText");
  EXPECT_EQ(Body().Bytes(), "");
}

TEST_F(TextTransferTest, TextIsCarriedFromPageToPage) {
  SelectAllWithKeys();
  Choose("EditCut");
  ClickRow(PagesGrid(), 3);
  Choose("EditPaste");
  EXPECT_EQ(Save(),
            "\r\n"
            " 1 ,<title>A</title>\r\n"
            " 2 ,<title>B</title><text>two</text>\r\n"
            " 3 ,<title>C</title><text>onethree</text>\r\n");
}

}  // namespace
}  // namespace tavrel::test
