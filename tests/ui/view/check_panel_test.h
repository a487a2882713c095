#pragma once

#include <QAbstractButton>
#include <QLabel>

#include "ui/view/view_test.h"

namespace tavrel::test {

inline const std::string kNoTitle = "The page has no title, so the Notes menu shows its file name.";
inline const std::string kLoneBracket = "The bracket links nothing; it is published as it stands.";
inline const std::string kStrange = "An iPod may not show one of the characters.";
inline const std::string kUnreached = "No links lead here from page 001.";

/// Something wrong in every field, on pages 1 to 4; 0x80 is the euro sign, which is not in Latin-1.
inline std::string Wrong() {
  return " 100 ,<song>Blue</song>\r\n"
         "\r\n"
         " 1 ,<title>Start</title><text>Go</text><link>" +
         LinkRecord("Two", "002") + LinkRecord("Three", "003") + LinkRecord("Nowhere", "007") +
         "</link>\r\n"
         " 2 ,<text>one<p>ab < c</text>\r\n"
         " 3 ,<title>Caf\x80</title><link>" +
         LinkRecord("", "001") + LinkRecord("Back\x80", "001") +
         "</link><music>Listen\x80</music><music>M6</music>\r\n"
         " 4 ,<title>Alone</title>\r\n";
}

/// A row of the list, and where it leads.
struct Problem {
  std::string Row;
  std::string Where;
};

inline const std::vector<Problem>& ProblemsOfWrong() {
  static const std::vector<Problem> kProblems = {
      {"001 | Link to 3 | Page 007 is empty.", "page 1, link 3, Combo1 [007]"},
      {"002 | Title | " + kNoTitle, "page 2, Text3 []"},
      {"002 | Text | " + kLoneBracket, "page 2, Text1 [<]"},
      {"003 | Title | " + kStrange, "page 3, Text3 [\u20AC]"},
      {"003 | Link text 1 | The link has no words, so it and the link behind it are not in the list below "
       "the "
       "text.",
       "page 3, link 1, Text5 []"},
      {"003 | Link text 2 | " + kStrange, "page 3, link 2, Text5 [\u20AC]"},
      {"003 | Music text | " + kStrange, "page 3, Text6 [\u20AC]"},
      {"003 | Music link | Music link M6 is empty, so the link leads to the Notes menu.",
       "page 3, Combo2 [M6]"},
      {"004 | Page | " + kUnreached, "page 4, Text1 []"},
  };
  return kProblems;
}

inline const std::string kProjectRow = " | Project | Music link M100 is not stored in the project's file.";

/// Three pages without problems, linked in a ring.
inline std::string Sound() {
  return "\r\n 1 ,<title>A</title><text>one</text><link>" + LinkRecord("b", "002") +
         "</link>\r\n 2 ,<title>B</title><text>two</text><link>" + LinkRecord("c", "003") +
         "</link>\r\n 3 ,<title>C</title><text>three</text>\r\n";
}

/// Looks at the list of what is wrong, and at the count in the status bar.
class CheckPanelTest : public ViewTest {
 protected:
  void OpenWith(const std::string& bytes) {
    OpenDocument("Doc.dat", bytes);
    Choose("ViewCheck");
    Settle();
  }

  RowList& Findings() { return Find<RowList>(Window(), "Findings"); }
  std::string Summary() { return Find<QLabel>(Window(), "Summary").text().toStdString(); }
  std::string Count() { return Find<QAbstractButton>(Window(), "ProblemCount").text().toStdString(); }

  void ExpectSoon(const Rows& rows, const std::string& count) {
    EXPECT_TRUE(WaitFor([&] { return RowsOf(Findings()) == rows && Count() == count; }))
        << testing::PrintToString(RowsOf(Findings())) << Count();
    EXPECT_EQ(Summary(), count);
  }

  /// Opens the document of problems once the list is there.
  void OpenWrong() {
    OpenWith(Wrong());
    ASSERT_TRUE(WaitFor([&] { return Findings().model()->rowCount() == 10; }));
  }
};

}  // namespace tavrel::test
