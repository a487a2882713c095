#include <QProcess>

#include <algorithm>

#include "process/notes_program.h"
#include "process/process_test.h"

namespace tavrel::test {

const std::string kTwoPages =
    " 1 ,<song>Blue</song>\r\n"
    "\r\n"
    " 1 ,<title>Start</title><text>See <Part two>.</text><link><linktext>Part "
    "two</linktext><linkto>002</linkto>"
    "</link>\r\n"
    " 2 "
    ",<title>Two</title><text>one<p>two</text><link><linktext>Back</linktext><linkto>001</linkto></link>\r\n";

void NotesProgram::Run(const QStringList& words, const QString& output) {
  QProcess process;
  process.setWorkingDirectory(QString::fromStdU16String(folder_.Path().u16string()));
  if (!output.isEmpty()) process.setStandardOutputFile(output);
  process.start(TAVREL_NOTES, words);
  ASSERT_TRUE(process.waitForFinished(kPatience)) << "the program does not end";
  ASSERT_EQ(process.exitStatus(), QProcess::NormalExit);
  status_ = process.exitCode();
  said_ = process.readAllStandardOutput().toStdString();
  told_ = process.readAllStandardError().toStdString();
  std::erase(said_, '\r');
  std::erase(told_, '\r');
}

void NotesProgram::Check(const std::string& pages) {
  folder_.Write("Checked.dat", "\r\n" + pages);
  Run({"check", "Checked.dat"});
}

void NotesProgram::ExpectRefusal(const std::string& line) const {
  EXPECT_EQ(status_, 2);
  EXPECT_EQ(said_, "");
  EXPECT_EQ(told_, line + "\n");
}

void NotesProgram::ExpectRefusalBeginning(const std::string& beginning) const {
  EXPECT_EQ(status_, 2);
  EXPECT_EQ(said_, "");
  EXPECT_TRUE(told_.starts_with(beginning)) << told_;
  EXPECT_TRUE(told_.ends_with('\n')) << told_;
  EXPECT_EQ(std::count(told_.begin(), told_.end(), '\n'), 1) << told_;
}

}  // namespace tavrel::test
