#include <gtest/gtest.h>
#include <memory>
#include <string>

#include "core/document/document_file.h"
#include "core/text/run_time_error.h"
#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

class DocumentLinesTest : public testing::Test {
 protected:
  void Read(const std::string& text) {
    folder_.Write("file.dat", text);
    lines_ = {};
    ReadDocumentFile(folder_.Path() / "file.dat", *document_, lines_);
  }

  /// Checks that reading throws, and at which line the file is said to be damaged.
  void ExpectDamage(const std::string& text, int line) {
    EXPECT_THROW(Read(text), RunTimeError) << text;
    EXPECT_EQ(lines_.Read, line) << text;
  }

  TemporaryFolder folder_;
  std::unique_ptr<Global> document_ = std::make_unique<Global>();
  DocumentLines lines_;
};

TEST_F(DocumentLinesTest, EachPageIsToldWithItsLineAfterTheMusicLinks) {
  Read(" 1 ,<song>S</song>\r\n\r\n 7 ,seven<p>7\r\n 2 ,two\r\n");
  EXPECT_EQ(lines_.Pages[7], 3);
  EXPECT_EQ(lines_.Pages[2], 4);
  EXPECT_EQ(lines_.Pages[1], 0);
  EXPECT_EQ(lines_.Read, 4);
  EXPECT_EQ(document_->MusicLink(1), "<song>S</song>");
  EXPECT_EQ(document_->Page(7), "seven\r\n7");
}

TEST_F(DocumentLinesTest, OfAPageThatIsThereTwiceTheLineIsToldThatCounts) {
  Read("\r\n 2 ,one\r\n 2 ,other\r\n");
  EXPECT_EQ(lines_.Pages[2], 3);
}

TEST_F(DocumentLinesTest, DamageIsToldWithItsLineAndNothingIsChanged) {
  document_->Page(1) = "from before";
  ExpectDamage(" 1 ,a\r\n 101 ,b\r\n\r\n", 2);
  ExpectDamage("\r\n 1 ,a\r\n 1001 ,b\r\n", 3);
  ExpectDamage("\r\n -1 ,a\r\n", 2);
  ExpectDamage(" 1 ,a\r\n 2 ,b\r\n", 2);
  ExpectDamage("", 0);
  EXPECT_EQ(document_->Page(1), "from before");
  EXPECT_TRUE(document_->MusicLink(1).empty());
}

}  // namespace
}  // namespace tavrel::test
