#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QTabBar>
#include <QTest>

#include "monkey/player.h"
#include "monkey/texts.h"
#include "ui/controls/grid.h"
#include "ui/controls/line_field.h"

// What can be done to one control of any window.

namespace tavrel::test {
namespace {

QAbstractItemView* ListOf(QWidget& control) {
  return qobject_cast<QAbstractItemView*>(&control);
}

bool IsControl(const QWidget& control) {
  if (!control.isVisible() || !control.isEnabled()) return false;
  const auto* button = qobject_cast<const QAbstractButton*>(&control);
  const auto* view = qobject_cast<const QAbstractItemView*>(&control);
  return button != nullptr || qobject_cast<const QLineEdit*>(&control) != nullptr ||
         qobject_cast<const QPlainTextEdit*>(&control) != nullptr ||
         qobject_cast<const QComboBox*>(&control) != nullptr ||
         qobject_cast<const QTabBar*>(&control) != nullptr || view != nullptr;
}

void ClickAnyRow(Dice& dice, QAbstractItemView& list) {
  const int rows = list.model()->rowCount();
  QPoint place(5, list.viewport()->height() - 3);
  if (rows > 0 && !dice.OneIn(8)) {
    const int row = dice.OneIn(2) ? dice.Below(rows) : dice.Below(std::min(rows, 8));
    const QModelIndex cell = list.model()->index(row, 0);
    list.scrollTo(cell);
    place = list.visualRect(cell).center();
  }
  const QPointer<QAbstractItemView> shown(&list);
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
  if (dice.OneIn(3) && shown != nullptr && shown->isVisible())
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
}

}  // namespace

void TypeText(QWidget& field, const QString& text) {
  for (qsizetype at = 0; at < text.size(); ++at) {
    const bool pair = text[at].isHighSurrogate() && at + 1 < text.size();
    QTest::sendKeyEvent(QTest::Click, &field, Qt::Key_unknown, text.mid(at, pair ? 2 : 1), Qt::NoModifier);
    if (pair) ++at;
  }
}

void Player::Poke(QWidget& window) {
  if (dice_.OneIn(4)) {
    PressAnyKey(window);
    return;
  }
  std::vector<QWidget*> controls;
  for (QWidget* control : window.findChildren<QWidget*>()) {
    if (IsControl(*control) && control->window() == &window) controls.push_back(control);
  }
  if (controls.empty()) return;
  QWidget* control = dice_.AnyOf(controls);
  // Buttons end most dialogs: less often.
  if (qobject_cast<QPushButton*>(control) != nullptr && dice_.OneIn(2)) control = dice_.AnyOf(controls);
  PokeControl(*control);
}

void Player::PokeControl(QWidget& control) {
  if (auto* list = ListOf(control)) {
    ClickAnyRow(dice_, *list);
    return;
  }
  if (auto* box = qobject_cast<QComboBox*>(&control); box != nullptr && !box->isEditable()) {
    QTest::keyClick(box, dice_.OneIn(2) ? Qt::Key_Down : Qt::Key_Up);
    return;
  }
  if (auto* tabs = qobject_cast<QTabBar*>(&control)) {
    QTest::mouseClick(tabs, Qt::LeftButton, {},
                      tabs->tabRect(dice_.Below(std::max(1, tabs->count()))).center());
    return;
  }
  if (auto* box = qobject_cast<QPlainTextEdit*>(&control)) {
    QTest::mouseClick(box->viewport(), Qt::LeftButton);
    TypeText(*box, TextFor(*box));
    return;
  }
  QTest::mouseClick(&control, Qt::LeftButton);
  if (qobject_cast<QLineEdit*>(&control) == nullptr) return;
  if (!dice_.OneIn(4)) QTest::keySequence(&control, QKeySequence::SelectAll);
  TypeText(control, TextFor(control));
}

QString Player::TextFor(const QWidget& field) {
  const QString window = field.window()->objectName();
  if (window.startsWith("Block")) return AnyNumber(dice_);
  if (window == "NewDoc" || window.startsWith("Save") || window == "Publish") return AnyName(dice_);
  if (window == "FindForm" || window == "ReplaceForm")
    return dice_.AnyOf<QString>({"cat", "a", "dog", "Apple", "", "<text>", "\u00c9", "aa", "\"", "1"});
  if (window == "Planner" && field.objectName() == "Text2") return AnyNumber(dice_);
  return AnyTyped(dice_);
}

void Player::PressAnyKey(QWidget& window) {
  struct Press {
    Qt::Key Key;
    Qt::KeyboardModifiers With = Qt::NoModifier;
  };
  static const std::vector<Press> presses = {{Qt::Key_Tab},
                                             {Qt::Key_Backtab, Qt::ShiftModifier},
                                             {Qt::Key_Return},
                                             {Qt::Key_Space},
                                             {Qt::Key_Down},
                                             {Qt::Key_Up},
                                             {Qt::Key_Left},
                                             {Qt::Key_Right},
                                             {Qt::Key_Home},
                                             {Qt::Key_End},
                                             {Qt::Key_PageDown},
                                             {Qt::Key_Delete},
                                             {Qt::Key_Backspace},
                                             {Qt::Key_A, Qt::ControlModifier},
                                             {Qt::Key_C, Qt::ControlModifier},
                                             {Qt::Key_V, Qt::ControlModifier},
                                             {Qt::Key_X, Qt::ControlModifier},
                                             {Qt::Key_Z, Qt::ControlModifier},
                                             {Qt::Key_Y, Qt::ControlModifier},
                                             {Qt::Key_Insert, Qt::ShiftModifier},
                                             {Qt::Key_Left, Qt::ShiftModifier}};
  QWidget* focus = window.focusWidget() != nullptr ? window.focusWidget() : &window;
  if (dice_.OneIn(12)) {
    QTest::keyClick(focus, Qt::Key_Escape);
    return;
  }
  const Press& press = dice_.AnyOf(presses);
  QTest::keyClick(focus, press.Key, press.With);
}

}  // namespace tavrel::test
