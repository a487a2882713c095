#pragma once

#include <QColor>

#include <string>

#include "support/window_test.h"

namespace tavrel::test {

// The records of kGuide and kTrio.
inline const std::string kGuidePage1 =
    "<title>One</title><note>n1</note><text>Alpha</text><link><linktext>Two</linktext><linkto>002</linkto>"
    "<linktext>Five</linktext><linkto>005</linkto></link>";
inline const std::string kGuidePage2 =
    "<title>Two</title><text>Beta</text><link><linktext>One</linktext><linkto>001</linkto></link>";
inline const std::string kGuidePage5 =
    "<title>Five</title><text>Gamma</text><link><linktext>Last</linktext><linkto>999</linkto></link>";
inline const std::string kGuidePage999 = "<title>Last</title><text>Omega</text>";
inline const std::string kTrioPage1 = "<title>A</title><text>one</text>";
inline const std::string kTrioPage2 = "<title>B</title><text>two</text>";
inline const std::string kTrioPage3 = "<title>C</title><text>three</text>";

/// The commands of Edit > Page, chosen from the menu.
class PageCommandsTest : public WindowTest {
 protected:
  /// One link of a record.
  static std::string LinkTo(const std::string& target) {
    return "<linktext>x</linktext><linkto>" + target + "</linkto>";
  }

  void Show(int page) { ClickRow(PagesGrid(), page); }

  void ExpectRow(int row, const std::string& title, const QColor& colour) {
    SCOPED_TRACE("row " + std::to_string(row));
    EXPECT_EQ(PagesGrid().TextMatrix(row, 1), title);
    EXPECT_EQ(PagesGrid().CellBackColor(row, 1), colour);
    EXPECT_EQ(PagesGrid().CellBackColor(row, 2), colour);
  }

  void ExpectYellowRow(int row, const std::string& title) { ExpectRow(row, title, QColor(0xFF, 0xFF, 0xC0)); }
  void ExpectWhiteRow(int row) { ExpectRow(row, "", QColor(0xFF, 0xFF, 0xFF)); }

  /// What the fields show, and that the page is the current one and its row the selected one.
  void ExpectShown(int page, const std::string& title, const std::string& body) {
    EXPECT_EQ(State.CurrentPage, page);
    EXPECT_EQ(PagesGrid().Row(), page);
    EXPECT_EQ(Title().Bytes(), title);
    EXPECT_EQ(Body().Bytes(), body);
  }

  void ExpectBlankFields() {
    for (const LineField* field :
         {&Title(), &Note(), &LinkText(), &LinkTarget().Field(), &MusicText(), &MusicLink().Field()})
      EXPECT_EQ(field->Bytes(), "") << field->objectName().toStdString();
    EXPECT_EQ(Body().Bytes(), "");
    EXPECT_EQ(LinksGrid().TextMatrix(1, 0), "");
    EXPECT_EQ(LinksGrid().TextMatrix(1, 1), "");
  }
};

}  // namespace tavrel::test
