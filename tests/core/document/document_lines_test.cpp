#include <gtest/gtest.h>
#include <string>

#include "core/document/document_file.h"
#include "core/text/run_time_error.h"

namespace tavrel::test {
namespace {

TEST(LinesOf, TellsTheLineOfEachPageAfterTheMusicLinks) {
  const DocumentLines lines = LinesOf(" 1 ,<song>S</song>\r\n\r\n 7 ,seven\r\n 2 ,two\r\n");
  EXPECT_EQ(lines.Pages[7], 3);
  EXPECT_EQ(lines.Pages[2], 4);
  EXPECT_EQ(lines.Pages[1], 0);
  EXPECT_EQ(lines.Damaged, 0);
}

TEST(LinesOf, TellsTheLineThatCountsOfAPageThatIsThereTwice) {
  EXPECT_EQ(LinesOf("\r\n 2 ,one\r\n 2 ,other\r\n").Pages[2], 3);
}

/// Whether reading the text throws, and at which line it is said to be damaged.
void ExpectDamage(const std::string& text, int line) {
  Global global;
  EXPECT_THROW(ReadDocumentText(text, global), RunTimeError) << text;
  EXPECT_EQ(LinesOf(text).Damaged, line) << text;
}

TEST(LinesOf, TellsTheLineAtWhichReadingThrows) {
  ExpectDamage(" 1 ,a\r\n 101 ,b\r\n\r\n", 2);
  ExpectDamage("\r\n 1 ,a\r\n 1001 ,b\r\n", 3);
  ExpectDamage("\r\n -1 ,a\r\n", 2);
  ExpectDamage(" 1 ,a\r\n 2 ,b\r\n", 2);
}

}  // namespace
}  // namespace tavrel::test
