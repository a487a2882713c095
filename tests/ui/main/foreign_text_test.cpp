#include "support/window_test.h"

namespace tavrel::test {
namespace {

using ForeignTextTest = WindowTest;

/// Every byte but CR, LF, the blank (which is trimmed) and what markup is made of.
std::string AllPlainBytes() {
  std::string bytes;
  for (int byte = 0; byte <= 0xFF; ++byte) {
    const char c = static_cast<char>(byte);
    if (c != '\r' && c != '\n' && c != ' ' && c != '<' && c != '>') bytes += c;
  }
  return bytes;
}

TEST_F(ForeignTextTest, EveryByteOfAVisitedPageSurvivesSaving) {
  const std::string all = AllPlainBytes();
  const std::string record = "<title>" + all + "</title><note>" + all + "</note><text>" + all + "</text>" +
                             "<link><linktext>" + all + "</linktext><linkto>M" + all + "</linkto></link>" +
                             "<music>" + all + "</music><music>M1</music>";
  const std::string file = "\r\n 1 ," + record + "\r\n";
  OpenDocument("Bytes.dat", file);
  EXPECT_EQ(Save(), file);
}

TEST_F(ForeignTextTest, ALoneCarriageReturnStaysContent) {
  const std::string file = "\r\n 1 ,<title>a\rb</title><text>c\rd<p>e\r\r<p></text>\r\n";
  OpenDocument("Cr.dat", file);
  EXPECT_EQ(Body().Bytes(), "c\rd\r\ne\r\r\r\n");
  EXPECT_EQ(Body().Length(), 10);
  EXPECT_EQ(Save(), file);
}

TEST_F(ForeignTextTest, ALoneLineFeedInMemoryStaysContent) {
  OpenDocument("Trio.dat", kTrio);
  State.Pages[2] = "<text>a\nb</text>";
  ClickRow(PagesGrid(), 2);
  ClickRow(PagesGrid(), 1);
  EXPECT_EQ(State.Pages[2], "<text>a\nb</text>");
}

TEST_F(ForeignTextTest, ALineBreakInAOneLineFieldSurvivesAVisit) {
  const std::string file =
      "\r\n 1 "
      ",<title>a<p>b</title><note>c<p>d</note><link><linktext>e<p>f</linktext><linkto>002</linkto></link>"
      "<music>g<p>h</music><music>M1</music>\r\n";
  OpenDocument("Breaks.dat", file);
  EXPECT_EQ(Title().Bytes(), "a\r\nb");
  EXPECT_EQ(Save(), file);
}

TEST_F(ForeignTextTest, ATypedLineBreakMarkBecomesALineBreakWhenReopened) {
  OpenDocument("Trio.dat", kTrio);
  TypeInto(Body(), "x<p>y");
  Save();
  OpenExisting("Trio.dat");
  EXPECT_EQ(Body().Bytes(), "x\r\ny");
}

TEST_F(ForeignTextTest, AMillionCharacterLineOpensAndSaves) {
  const std::string file = "\r\n 1 ,<text>" + std::string(1000000, 'w') + "</text>\r\n";
  OpenDocument("Long.dat", file);
  EXPECT_EQ(Save(), file);
}

TEST_F(ForeignTextTest, AFileWithLineFeedsOpensAndIsSavedWithCarriageReturns) {
  std::string file(kGuide);
  std::erase(file, '\r');
  OpenDocument("Guide.dat", file);
  EXPECT_EQ(PagesGrid().TextMatrix(999, 1), "Last");
  EXPECT_EQ(Save(), kGuide);
}

TEST_F(ForeignTextTest, TypedLettersAreStoredAsOneByteEach) {
  OpenDocument("Trio.dat", kTrio);
  TypeInto(Title(), u"Caf\u00E9 \u20AC"_qs);
  EXPECT_NE(Save().find("<title>Caf\xE9 \x80</title>"), std::string::npos);
}

TEST_F(ForeignTextTest, LongTextsInOneLineFieldsAreKeptWhole) {
  const std::string longest(100000, 'w');
  const std::string file = "\r\n 1 ,<title>" + longest + "</title><note>" + longest +
                           "</note><link><linktext>" + longest + "</linktext><linkto>M" + longest +
                           "</linkto></link><music>" + longest + "</music><music>M1</music>\r\n";
  OpenDocument("Long.dat", file);
  EXPECT_EQ(Save(), file);
}

TEST_F(ForeignTextTest, DeletingHalfALineBreakNeverBreaksTheFile) {
  OpenDocument("Breaks.dat", "\r\n 1 ,<title>a<p>5000 b, c</title><text>precious</text>\r\n");
  Title().setFocus();
  Title().setCursorPosition(1);
  PressKey(Title(), Qt::Key_Delete);
  EXPECT_EQ(Save(), "\r\n 1 ,<title>a<p>5000 b, c</title><text>precious</text>\r\n");
}

}  // namespace
}  // namespace tavrel::test
