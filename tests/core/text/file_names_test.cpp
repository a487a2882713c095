#include "core/text/file_names.h"

#include <gtest/gtest.h>
#include <string>

namespace tavrel::test {
namespace {

TEST(TrimBlanks, RemovesBlanksAtBothEnds) {
  EXPECT_EQ(TrimBlanks("  a b  "), "a b");
  EXPECT_EQ(TrimBlanks("a"), "a");
  EXPECT_EQ(TrimBlanks("   "), "");
  EXPECT_EQ(TrimBlanks(""), "");
}

TEST(TrimBlanks, KeepsOtherWhiteSpace) {
  for (const char* text : {"\tx\t", "\r\nx\r\n", "\xA0x\xA0", "\vx\f", "\r\n \r\n"})
    EXPECT_EQ(TrimBlanks(text), text);
  EXPECT_EQ(TrimBlanks(" \t "), "\t");
}

TEST(CleanName, RemovesWhatAFileNameShouldNotHold) {
  EXPECT_EQ(CleanName("My.Guide?"), "MyGuide");
  EXPECT_EQ(CleanName(" a&b "), "ab");
  EXPECT_EQ(CleanName("a\\b/c*d"), "abcd");
  EXPECT_EQ(CleanName("My.Notes & Co?"), "MyNotes  Co");
}

TEST(CleanName, TrimsFirstAndOnlyOnce) {
  EXPECT_EQ(CleanName("& Guide"), " Guide");
  EXPECT_EQ(CleanName("Guide ?"), "Guide ");
  EXPECT_EQ(CleanName("? ?"), " ");
}

TEST(CleanName, MayLeaveNothing) {
  EXPECT_EQ(CleanName(""), "");
  EXPECT_EQ(CleanName("    "), "");
  EXPECT_EQ(CleanName("?*."), "");
  EXPECT_EQ(CleanName("  &  "), "");
}

TEST(CleanName, KeepsEveryOtherCharacter) {
  const std::string name = "a:b<c>d\"e'f|g,h;i(j)\t\xE9";
  EXPECT_EQ(CleanName(name), name);
}

TEST(FileListEntry, PadsTheNameTo25Characters) {
  std::tm date{};
  date.tm_mday = 3;
  date.tm_mon = 2;
  date.tm_year = 106;
  EXPECT_EQ(FileListEntry("Guide", date), "Guide" + std::string(20, ' ') + "03-03-06");
  EXPECT_EQ(FileListEntry("", date), std::string(25, ' ') + "03-03-06");
  EXPECT_EQ(FileListEntry("Caf\xE9", date), "Caf\xE9" + std::string(21, ' ') + "03-03-06");
}

TEST(FileListEntry, CutsTheNameAt25Characters) {
  std::tm date{};
  date.tm_mday = 31;
  date.tm_mon = 11;
  date.tm_year = 99;
  EXPECT_EQ(FileListEntry("abcdefghijklmnopqrstuvwxy", date), "abcdefghijklmnopqrstuvwxy31-12-99");
  EXPECT_EQ(FileListEntry("abcdefghijklmnopqrstuvwxyz", date), "abcdefghijklmnopqrstuvwxy31-12-99");
}

TEST(FileListEntry, WritesTheDayBeforeTheMonth) {
  std::tm date{};
  date.tm_mday = 9;
  date.tm_mon = 9;
  date.tm_year = 125;
  date.tm_min = 44;
  EXPECT_EQ(FileListEntry("x", date).substr(25), "09-10-25");
}

TEST(PathFromName, HoldsTheCharactersOfTheCodePage) {
  EXPECT_EQ(PathFromName("Caf\xE9 \x80.dat", CodePage::Windows1252()).u32string(), U"Caf\u00E9 \u20AC.dat");
}

TEST(NameInCodePage, IsOneByteACharacter) {
  EXPECT_EQ(NameInCodePage(U"Caf\u00E9 \u20AC.dat", CodePage::Windows1252()), "Caf\xE9 \x80.dat");
}

TEST(NameInCodePage, HasAQuestionMarkForWhatTheCodePageDoesNotHold) {
  EXPECT_EQ(NameInCodePage(U"\u4E2D\u6587.dat", CodePage::Windows1252()), "??.dat");
}

#ifndef _WIN32
TEST(NameInCodePage, SurvivesAFileNameThatIsNotText) {
  EXPECT_EQ(NameInCodePage("caf\xE9.dat", CodePage::Windows1252()), "caf?.dat");
}
#endif

TEST(WithoutExtension, DropsTheLastFourCharacters) {
  EXPECT_EQ(WithoutExtension("Guide.dat"), "Guide");
  EXPECT_EQ(WithoutExtension("my.notes.dat"), "my.notes");
  EXPECT_EQ(WithoutExtension(".dat"), "");
  EXPECT_EQ(WithoutExtension(""), "");
}

}  // namespace
}  // namespace tavrel::test
