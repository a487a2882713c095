#include "ui/view/view_test.h"

#include <QAbstractButton>
#include <QApplication>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <stdexcept>

namespace tavrel::test {
namespace {

constexpr int kPatience = 10000;  // milliseconds; machines under load are slow

QPoint MiddleOfRow(RowList& list, int row) {
  const QModelIndex cell = list.model()->index(row, 1);
  if (!cell.isValid()) throw std::runtime_error("no row " + std::to_string(row) + " in the list");
  list.scrollTo(cell);
  return list.visualRect(cell).center();
}

std::string RowText(const RowList& list, int row) {
  QStringList cells;
  for (int column = 0; column < list.model()->columnCount(); ++column)
    cells << list.model()->index(row, column).data().toString();
  return cells.join(" | ").toStdString();
}

QString SelectedIn(QWidget* control) {
  if (const auto* body = qobject_cast<BodyField*>(control)) return body->SelectedText();
  if (const auto* list = qobject_cast<TargetList*>(control)) return list->Field().selectedText();
  if (const auto* line = qobject_cast<LineField*>(control)) return line->selectedText();
  return {};
}

}  // namespace

std::string LinkRecord(const std::string& text, const std::string& target) {
  return "<linktext>" + text + "</linktext><linkto>" + target + "</linkto>";
}

ViewTest::~ViewTest() {
  for (const std::string& failure : Program.Failures) ADD_FAILURE() << failure;
}

void ViewTest::ClickFrame(const QString& dock, const QString& button) {
  Click(Dock(dock), "qt_dockwidget_" + button + "button");
}

void ViewTest::PressOnFocus(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QWidget* focus = QApplication::focusWidget();
  if (focus == nullptr) throw std::runtime_error("nothing has the focus");
  PressKey(*focus, key, modifiers);
}

void ViewTest::TypeInFront(QWidget& field, const QString& text) {
  auto* box = qobject_cast<QPlainTextEdit*>(&field);
  Click(box != nullptr ? *box->viewport() : field);
  PressKey(field, Qt::Key_Home, box != nullptr ? Qt::ControlModifier : Qt::NoModifier);
  QTest::keyClicks(&field, text);
}

Rows ViewTest::RowsOf(const RowList& list) {
  Rows rows;
  for (int row = 0; row < list.model()->rowCount(); ++row) rows.push_back(RowText(list, row));
  return rows;
}

int ViewTest::RowWith(const RowList& list, const std::string& text) {
  const Rows rows = RowsOf(list);
  for (std::size_t row = 0; row < rows.size(); ++row) {
    if (rows[row].find(text) != std::string::npos) return static_cast<int>(row);
  }
  throw std::runtime_error("no row with '" + text + "' in: " + testing::PrintToString(rows));
}

std::string ViewTest::SelectedRow(const RowList& list) {
  const QModelIndexList selected = list.selectionModel()->selectedRows();
  return selected.size() == 1 ? RowText(list, selected.front().row()) : "";
}

void ViewTest::LetSearchEnd(const QWidget& panel) {
  const auto* search = panel.findChild<QTimer*>("SearchTimer");
  EXPECT_TRUE(search == nullptr || QTest::qWaitFor([&] { return !search->isActive(); }, kPatience));
}

void ViewTest::ClickRowOf(RowList& list, int row) {
  LetSearchEnd(*list.parentWidget());
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, MiddleOfRow(list, row));
  LetSearchEnd(*list.parentWidget());
}

void ViewTest::DoubleClickRowOf(RowList& list, int row) {
  LetSearchEnd(*list.parentWidget());
  const QPoint middle = MiddleOfRow(list, row);
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, middle);
  LetSearchEnd(*list.parentWidget());
  QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, middle);
  LetSearchEnd(*list.parentWidget());
}

void ViewTest::PressEnterOnRowOf(RowList& list, int row) {
  LetSearchEnd(*list.parentWidget());
  list.setFocus();
  PressKey(list, Qt::Key_Home);
  for (int passed = 0; passed < row; ++passed) PressKey(list, Qt::Key_Down);
  PressKey(list, Qt::Key_Return);
  LetSearchEnd(*list.parentWidget());
}

bool ViewTest::WaitFor(const std::function<bool()>& is_so) {
  return QTest::qWaitFor(is_so, kPatience);
}

void ViewTest::LetPanelsLook() {
  QSignalSpy looks(&Find<QTimer>(Window(), "LookTimer"), &QTimer::timeout);
  EXPECT_TRUE(looks.wait(kPatience));
  LetSearchEnd(Window());
}

std::string ViewTest::Where() {
  QWidget* focus = QApplication::focusWidget();
  EXPECT_EQ(PagesGrid().Row(), State.CurrentPage);
  EXPECT_EQ(LinksGrid().Row(), State.CurrentLink);
  const std::string field = focus == nullptr ? "nowhere" : focus->objectName().toStdString();
  const bool is_link = field == "Text5" || field == "Combo1";
  return "page " + std::to_string(State.CurrentPage) + ", " +
         (is_link ? "link " + std::to_string(State.CurrentLink) + ", " : "") + field + " [" +
         SelectedIn(focus).toStdString() + "]";
}

}  // namespace tavrel::test
