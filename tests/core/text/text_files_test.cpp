#include "core/text/text_files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "core/text/run_time_error.h"
#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

using namespace std::string_literals;
using testing::HasSubstr;
using testing::ThrowsMessage;
using LineList = std::vector<std::string>;

LineList LinesIn(std::string_view text) {
  LineList lines;
  for (LineReader reader(text); !reader.AtEnd();) lines.emplace_back(reader.Next());
  return lines;
}

TEST(LineReader, EndsLinesAtBothKindsOfLineEnd) {
  EXPECT_EQ(LinesIn("a\r\nb\r\n"), (LineList{"a", "b"}));
  EXPECT_EQ(LinesIn("a\nb\n"), (LineList{"a", "b"}));
  EXPECT_EQ(LinesIn("a\nb\r\nc\n"), (LineList{"a", "b", "c"}));
}

TEST(LineReader, HasNoLineInAnEmptyText) {
  EXPECT_EQ(LinesIn(""), LineList());
}

TEST(LineReader, GivesEmptyLines) {
  EXPECT_EQ(LinesIn("\r\n"), (LineList{""}));
  EXPECT_EQ(LinesIn("\n\r\na\r\n\n"), (LineList{"", "", "a", ""}));
}

TEST(LineReader, GivesALastLineWithoutItsEnd) {
  EXPECT_EQ(LinesIn("a\r\nb"), (LineList{"a", "b"}));
  EXPECT_EQ(LinesIn("b"), (LineList{"b"}));
}

TEST(LineReader, TakesALoneCarriageReturnForContent) {
  EXPECT_EQ(LinesIn("a\rb\r\n"), (LineList{"a\rb"}));
  EXPECT_EQ(LinesIn("a\r\r\nb"), (LineList{"a\r", "b"}));
  EXPECT_EQ(LinesIn("a\r"), (LineList{"a\r"}));
}

TEST(LineReader, KeepsEveryOtherByte) {
  const std::string line = "\0\x1A\x80\xFF\t,\""s;
  EXPECT_EQ(LinesIn(line + "\r\n" + line + "\n"), (LineList{line, line}));
}

/// How much of a file is read at a time.
constexpr std::size_t kPart = 64 * 1024;

class FileLineReaderTest : public testing::Test {
 protected:
  /// Checks that a file with this text has the same lines.
  void ExpectSameLines(const std::string& text) {
    folder_.Write("file", text);
    LineList lines;
    for (FileLineReader reader(folder_.Path() / "file"); !reader.AtEnd();) lines.emplace_back(reader.Next());
    EXPECT_TRUE(lines == LinesIn(text)) << text.size() << " bytes";
  }

  TemporaryFolder folder_;
};

TEST_F(FileLineReaderTest, GivesTheLinesOfShortFiles) {
  for (const char* text : {"", "a", "\n", "\r\n", "a\r\nb", "a\rb\n\r", "\n\r\na\r\n\n"})
    ExpectSameLines(text);
}

TEST_F(FileLineReaderTest, GivesLinesThatAreReadInSeveralParts) {
  for (const std::size_t length : {kPart - 2, kPart - 1, kPart, kPart + 1, 3 * kPart, 3 * kPart + 7}) {
    const std::string line(length, 'x');
    for (const char* end : {"\n", "\r\n", "\r", ""}) {
      ExpectSameLines(line + end);
      ExpectSameLines("a\n" + line + end + "b");
      ExpectSameLines(line + end + line + end);
    }
  }
}

TEST_F(FileLineReaderTest, TellsOfAFileThatIsMissing) {
  EXPECT_THAT([&] { FileLineReader(folder_.Path() / "none"); },
              ThrowsMessage<FileError>(HasSubstr("could not be read")));
}

TEST(ReadWholeFile, GivesEveryByte) {
  const TemporaryFolder folder;
  std::string bytes;
  for (int i = 0; i < 100'000; ++i) bytes += static_cast<char>(i * 7 % 256);
  folder.Write("bytes", bytes);
  EXPECT_EQ(ReadWholeFile(folder.Path() / "bytes"), bytes);
}

TEST(ReadWholeFile, GivesFilesOfAnyLength) {
  constexpr std::size_t kFirstPart = 8 * 1024;
  const TemporaryFolder folder;
  for (const std::size_t length :
       {kFirstPart - 1, kFirstPart, kFirstPart + 1, 2 * kFirstPart, 5 * kFirstPart, 100 * kFirstPart + 7}) {
    std::string bytes(length, 'x');
    bytes.back() = 'y';
    folder.Write("file", bytes);
    EXPECT_TRUE(ReadWholeFile(folder.Path() / "file") == bytes) << length;
  }
}

TEST(ReadWholeFile, GivesNothingForAnEmptyFile) {
  const TemporaryFolder folder;
  folder.Write("empty", "");
  EXPECT_EQ(ReadWholeFile(folder.Path() / "empty"), "");
}

TEST(ReadWholeFile, NamesAMissingFile) {
  const TemporaryFolder folder;
  const std::filesystem::path file = folder.Path() / "missing.dat";
  EXPECT_THAT([&] { ReadWholeFile(file); }, ThrowsMessage<FileError>(HasSubstr(PathText(file))));
}

TEST(ReadWholeFile, RefusesAFolder) {
  const TemporaryFolder folder;
  EXPECT_THAT([&] { ReadWholeFile(folder.Path()); },
              ThrowsMessage<FileError>(HasSubstr(PathText(folder.Path()))));
}

#ifndef _WIN32
TEST(ReadWholeFile, ReadsAFileThatDoesNotKnowItsSize) {
  // The system makes this file up while it is read and gives its size as 0.
  EXPECT_THAT(ReadWholeFile("/proc/self/status"), HasSubstr("Pid:"));
}
#endif

}  // namespace
}  // namespace tavrel::test
