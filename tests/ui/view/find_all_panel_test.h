#pragma once

#include <QLabel>

#include "ui/view/view_test.h"

namespace tavrel::test {

/// The word in every kind of field of page 2, in other capitals in some, and on page 5; 0xE9 and 0xC9 are e
/// acute and its capital.
inline std::string Orchard() {
  return " 1 ,<song>Blue</song>\r\n"
         "\r\n"
         " 1 ,<title>Start</title><text>Nothing here</text><link>" +
         LinkRecord("On", "002") +
         "</link>\r\n"
         " 2 ,<title>Pear tart</title><note>my pear note</note><text>One pear,<p>two PEARs</text><link>" +
         LinkRecord("On", "005") + LinkRecord("The pear link", "001") +
         "</link><music>Pear song</music><music>M1</music>\r\n"
         " 5 ,<title>Caf\xE9</title><text>x<p>y<p>the CAF\xC9 pear</text>\r\n";
}

inline const Rows kPears = {"002 | Title | Pear tart",
                            "002 | Note | my pear note",
                            "002 | Text | One pear,  two PEARs",
                            "002 | Text | One pear,  two PEARs",
                            "002 | Link text 2 | The pear link",
                            "002 | Music text | Pear song",
                            "005 | Text | x  y  the CAF\u00C9 pear"};

/// Finds words in all pages with the panel.
class FindAllPanelTest : public ViewTest {
 protected:
  /// Opens a document and the panel.
  void OpenWith(const std::string& bytes) {
    OpenDocument("Doc.dat", bytes);
    Messages.Shown.clear();
    Choose("ViewFindAll");
    Settle();
  }

  void OpenOrchard() { OpenWith(Orchard()); }

  LineField& FindWhat() { return Find<LineField>(Window(), "FindWhat"); }
  RowList& Hits() { return Find<RowList>(Window(), "Hits"); }
  std::string Count() { return Find<QLabel>(Window(), "HitCount").text().toStdString(); }

  /// Types what to look for and waits until all hits are there.
  void Look(const QString& text) {
    TypeInto(FindWhat(), text);
    EXPECT_TRUE(WaitFor([&] { return QString::fromStdString(Count()).indexOf("searching") < 0; }));
  }

  Rows HitsOf(const QString& text) {
    Look(text);
    return RowsOf(Hits());
  }

  bool WaitForRows(int count) {
    LetSearchEnd(Window());
    return WaitFor([&] { return Hits().model()->rowCount() == count; });
  }
};

}  // namespace tavrel::test
