#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QTest>
#include <QWheelEvent>

#include "monkey/monkey.h"
#include "monkey/texts.h"
#include "support/user.h"

// What a person does with the fields, grids and buttons of the main window.

namespace tavrel::test {
void Monkey::TypeIntoField() {
  static const std::vector<QString> fields = {"Text3",  "Text4",  "Text1", "Text1", "Text5",
                                              "Combo1", "Combo1", "Text6", "Combo2"};
  const QString name = dice_.AnyOf(fields);
  const bool is_target = name.startsWith("Combo");
  const QString text = is_target ? AnyTarget(dice_) : AnyTyped(dice_);
  Note("type into " + name.toStdString() + ": " + text.toStdString());
  by_ = By::Typing;
  // Dialogs have fields of the same names.
  auto& field = Find<QWidget>(*stage_->Window().centralWidget(), name);
  QWidget* place = &field;
  if (name == "Text1") place = screen_->Body.viewport();
  if (name == "Combo1") place = &screen_->LinkTarget.Field();
  if (name == "Combo2") place = &screen_->MusicLink.Field();
  QTest::mouseClick(place, Qt::LeftButton);
  if (focus_ != name.toStdString()) model_->LeaveField(focus_);
  QWidget* typing = name == "Text1" ? &field : place;
  const bool over = !dice_.OneIn(4);
  const Qt::KeyboardModifiers to_end = name == "Text1" ? Qt::ControlModifier : Qt::NoModifier;
  if (over) {
    QTest::keySequence(typing, QKeySequence::SelectAll);
    QTest::keyClick(typing, Qt::Key_Delete);
  } else {
    QTest::keyClick(typing, Qt::Key_End, to_end);
  }
  TypeText(*typing, text);
  const std::string before = over ? "" : model_->Typed(name.toStdString());
  model_->Type(name.toStdString(), before + Kept(text, ""));
  ++counts_.Typings;
}

void Monkey::PressKeys() {
  QWidget* focus = stage_->Window().focusWidget();
  if (focus == nullptr) return;
  struct Press {
    Qt::Key Key;
    Qt::KeyboardModifiers With = Qt::NoModifier;
  };
  static const std::vector<Press> presses = {{Qt::Key_Tab},
                                             {Qt::Key_Tab},
                                             {Qt::Key_Backtab, Qt::ShiftModifier},
                                             {Qt::Key_Return},
                                             {Qt::Key_Return},
                                             {Qt::Key_Enter, Qt::KeypadModifier},
                                             {Qt::Key_Return, Qt::ShiftModifier},
                                             {Qt::Key_Escape},
                                             {Qt::Key_Space},
                                             {Qt::Key_Left},
                                             {Qt::Key_Right},
                                             {Qt::Key_Up},
                                             {Qt::Key_Down},
                                             {Qt::Key_Home},
                                             {Qt::Key_End},
                                             {Qt::Key_PageUp},
                                             {Qt::Key_PageDown},
                                             {Qt::Key_Delete},
                                             {Qt::Key_Backspace},
                                             {Qt::Key_Backspace, Qt::ControlModifier},
                                             {Qt::Key_A, Qt::ControlModifier},
                                             {Qt::Key_C, Qt::ControlModifier},
                                             {Qt::Key_V, Qt::ControlModifier},
                                             {Qt::Key_V, Qt::ControlModifier},
                                             {Qt::Key_X, Qt::ControlModifier},
                                             {Qt::Key_Z, Qt::ControlModifier},
                                             {Qt::Key_Y, Qt::ControlModifier},
                                             {Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier},
                                             {Qt::Key_Left, Qt::ShiftModifier},
                                             {Qt::Key_Home, Qt::ShiftModifier},
                                             {Qt::Key_Insert, Qt::ShiftModifier},
                                             {Qt::Key_K, Qt::ControlModifier},
                                             {Qt::Key_S, Qt::ControlModifier},
                                             {Qt::Key_F3},
                                             {Qt::Key_F1},
                                             {Qt::Key_F, Qt::ControlModifier},
                                             {Qt::Key_M, Qt::ControlModifier},
                                             {Qt::Key_L, Qt::ControlModifier},
                                             {Qt::Key_F4},
                                             {Qt::Key_Down, Qt::AltModifier},
                                             {Qt::Key_Tab, Qt::ControlModifier},
                                             {Qt::Key_X},
                                             {Qt::Key_7}};
  if (dice_.OneIn(10)) QApplication::clipboard()->setText(AnyPasted(dice_));
  const Press& press = dice_.AnyOf(presses);
  Note("press key " +
       QKeySequence(QKeyCombination(press.With & ~Qt::KeypadModifier, press.Key)).toString().toStdString() +
       " in " + focus_);
  by_ = By::Keys;
  by_step_key_ = (press.Key == Qt::Key_Z || press.Key == Qt::Key_Y) && press.With != Qt::NoModifier;
  enter_ = press.Key == Qt::Key_Return || press.Key == Qt::Key_Enter;
  QTest::keyClick(focus, press.Key, press.With);
}

void Monkey::ClickPagesGrid() {
  const int row = dice_.OneIn(10)  ? dice_.Between(1, 999)
                  : dice_.OneIn(8) ? dice_.Between(995, 999)
                                   : dice_.Between(1, 12);
  Note("click page " + std::to_string(row));
  by_ = By::Click;
  moves_focus_ = focus_ != "MSFlexGrid2";
  ClickRow(screen_->Pages, row);
}

void Monkey::ClickLinksGrid() {
  const int row = dice_.OneIn(6) ? dice_.Between(1, 49) : dice_.Between(1, 5);
  Note("click link " + std::to_string(row));
  by_ = By::Click;
  moves_focus_ = focus_ != "MSFlexGrid1";
  ClickRow(screen_->Links, row);
}

void Monkey::ClickButton() {
  const int number = dice_.Between(2, 19);
  const QString name = number == 19 ? QString("Command4") : QString("Image%1").arg(number);
  // Files are not opened and made as often as pages are moved.
  if (number <= 3 && !dice_.OneIn(4)) return;
  Note("click " + name.toStdString());
  by_ = By::Click;
  moves_focus_ = number == 19 && focus_ != "Command4";
  QTest::mouseClick(&Find<QWidget>(*stage_->Window().centralWidget(), name), Qt::LeftButton);
}

void Monkey::OpenContextMenu() {
  QWidget* focus = stage_->Window().focusWidget();
  if (focus == nullptr) return;
  if (dice_.OneIn(3)) QApplication::clipboard()->setText(AnyPasted(dice_));
  Note("open the context menu of " + focus_);
  by_ = By::Keys;
  QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(3, 3), focus->mapToGlobal(QPoint(3, 3)));
  QApplication::sendEvent(focus, &event);
}

void Monkey::Fidget() {
  Main& window = stage_->Window();
  const int kind = dice_.Below(3);
  Note("fidget " + std::to_string(kind));
  if (kind == 0) window.resize(dice_.Between(300, 1200), dice_.Between(200, 800));
  const QList<QWidget*> widgets = window.findChildren<QWidget*>();
  QWidget* place = widgets[dice_.Below(static_cast<int>(widgets.size()))];
  if (kind == 1) QTest::mouseMove(place);
  if (kind == 2) {
    QWheelEvent turn(QPointF(2, 2), place->mapToGlobal(QPointF(2, 2)), {},
                     QPoint(0, dice_.OneIn(2) ? 120 : -120), {}, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(place, &turn);
  }
}

}  // namespace tavrel::test
