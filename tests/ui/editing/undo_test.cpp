#include "ui/editing/undo_test.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QTest>

#include "ui/controls/text_field.h"

namespace tavrel::test {

const std::string kWorldPage1 =
    "<title>One</title><note>n1</note><text>Alpha</text><link><linktext>Two</linktext><linkto>002</linkto>"
    "<linktext>Song</linktext><linkto>M1</linkto></link>";
const std::string kWorldPage2 =
    "<title>Two</title><note>n2</note><text>Beta words</text><link><linktext>a</linktext><linkto>001</linkto>"
    "<linktext>b</linktext><linkto>003</linkto><linktext>c</linktext><linkto>005</linkto></link>"
    "<music>Play</music><music>M1</music>";
const std::string kWorldPage3 = "<title>Three</title><text>Gamma words</text>";

const std::string_view kWorld =
    " 1 ,<song>Blue</song><artist>Kim Low</artist>\r\n"
    " 3 ,<playlist>Road</playlist>\r\n"
    "\r\n"
    " 1 "
    ",<title>One</title><note>n1</note><text>Alpha</text><link><linktext>Two</linktext><linkto>002</linkto>"
    "<linktext>Song</linktext><linkto>M1</linkto></link>\r\n"
    " 2 ,<title>Two</title><note>n2</note><text>Beta words</text><link><linktext>a</linktext>"
    "<linkto>001</linkto><linktext>b</linktext><linkto>003</linkto><linktext>c</linktext><linkto>005</linkto>"
    "</link><music>Play</music><music>M1</music>\r\n"
    " 3 ,<title>Three</title><text>Gamma words</text>\r\n"
    " 5 ,<title>Five</title><text>Delta</text><link><linktext>Last</linktext><linkto>999</linkto></link>\r\n"
    " 999 ,<title>Last</title><text>Omega</text>\r\n";

namespace {

std::string Line(const std::string& name, const std::string& text) {
  return name + ": " + text + "\n";
}

}  // namespace

void UndoTest::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  PressKey(*Window().focusWidget(), key, modifiers);
}

void UndoTest::PressUndo() {
  Press(Qt::Key_Z, Qt::ControlModifier);
}

void UndoTest::PressRedo() {
  Press(Qt::Key_Y, Qt::ControlModifier);
}

void UndoTest::PressOtherRedo() {
  Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
}

void UndoTest::ClickButton(const QString& name) {
  Click(Window(), name);
  ActivateWindow(Window());
}

std::string UndoTest::ItemInMenu(const QString& name) {
  QMenuBar* bar = Window().menuBar();
  auto& menu = Find<QMenu>(Window(), "EditMenu");
  QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(menu.menuAction()).center());
  EXPECT_TRUE(menu.isVisible());
  const auto& item = Find<QAction>(Window(), name);
  const std::string caption = item.text().toStdString() + (item.isEnabled() ? "" : " (grey)");
  menu.close();
  ActivateWindow(Window());
  return caption;
}

std::string UndoTest::Told() {
  return Window().statusBar()->currentMessage().toStdString();
}

std::string UndoTest::Focus() {
  const QWidget* focus = Window().focusWidget();
  return focus == nullptr ? "nowhere" : focus->objectName().toStdString();
}

std::string UndoTest::Document() const {
  std::string document;
  for (std::size_t link = 0; link < State.MusicLinks.size(); ++link) {
    if (!State.MusicLinks[link].empty()) document += Line("M" + std::to_string(link), State.MusicLinks[link]);
  }
  for (std::size_t page = 0; page < State.Pages.size(); ++page) {
    if (!State.Pages[page].empty()) document += Line(std::to_string(page), State.Pages[page]);
  }
  return document;
}

std::string UndoTest::Fields() {
  return Line("title", Title().Bytes()) + Line("note", Note().Bytes()) + Line("body", Body().Bytes()) +
         Line("link text", LinkText().Bytes()) + Line("link to", LinkTarget().Bytes()) +
         Line("music text", MusicText().Bytes()) + Line("music link", MusicLink().Bytes());
}

std::string UndoTest::PagesRows() {
  const Grid& grid = PagesGrid();
  const QColor white = Qt::white;
  std::string rows;
  for (int page = 1; page <= kLastPage; ++page) {
    const QColor title = grid.CellBackColor(page, 1);
    const QColor note = grid.CellBackColor(page, 2);
    if (title == white && note == white && grid.TextMatrix(page, 1).empty() &&
        grid.TextMatrix(page, 2).empty())
      continue;
    rows += Line("row " + std::to_string(page), grid.TextMatrix(page, 1) + " | " + grid.TextMatrix(page, 2) +
                                                    " | " + (title.name() + ' ' + note.name()).toStdString());
  }
  return rows;
}

std::string UndoTest::LinksRows() {
  std::string rows;
  for (int row = 1; row <= kLastLink; ++row) {
    const std::string text = LinksGrid().TextMatrix(row, 0) + " | " + LinksGrid().TextMatrix(row, 1);
    if (text != " | ") rows += Line("link " + std::to_string(row), text);
  }
  return rows;
}

std::string UndoTest::CaretAndFocus() {
  const TextField* field = FieldOf(Window().focusWidget());
  if (field == nullptr) return Line("focus", Focus());
  return Line("focus",
              Focus() + " " + std::to_string(field->Anchor()) + " to " + std::to_string(field->Caret()));
}

std::string UndoTest::Screen() {
  return Document() + Line("page", std::to_string(State.CurrentPage)) +
         Line("selected page", std::to_string(PagesGrid().Row())) +
         Line("link", std::to_string(State.CurrentLink)) +
         Line("selected link", std::to_string(LinksGrid().Row())) + Fields() + PagesRows() + LinksRows() +
         Line("targets", LinkTarget().Items().join(' ').toStdString()) +
         Line("music", MusicLink().Items().join(' ').toStdString()) + CaretAndFocus();
}

void UndoTest::ClearPage5() {
  Show(5);
  // Chosen with the mouse it takes as long as a test does.
  Find<QAction>(Window(), "EditClear").trigger();
  Show(2);
}

void UndoTest::Answer(const QString& menu_item, const QString& dialog_name, const QStringList& texts,
                      const QString& button) {
  Player.Expect(dialog_name, [&](QWidget& dialog) {
    int field = 0;
    for (const QString& text : texts) TypeInto(dialog, QString("Text%1").arg(++field), text);
    Click(dialog, button);
    EXPECT_FALSE(dialog.isVisible());
  });
  Choose(menu_item);
  EXPECT_EQ(Player.StepsLeft(), 0) << dialog_name.toStdString() << " did not open";
}

void UndoTest::InsertPlan() {
  Choose("EditProjectPlanner");
  QWidget& planner = TopWindow("Planner");
  ActivateWindow(planner);
  TypeInto(planner, "Text1_0", "first cell");
  TypeInto(planner, "Text1_24", "last cell");
  Click(planner, "Command1");
  ActivateWindow(Window());
}

}  // namespace tavrel::test
