#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QWheelEvent>

#include "monkey/monkey.h"
#include "monkey/texts.h"
#include "support/user.h"
#include "ui/controls/picture_button.h"

// What a person does with the main window.

namespace tavrel::test {
namespace {

const std::vector<QString> kPageItems = {"EditDelete",       "EditCopyPage", "EditPastePage",
                                         "EditPageUp",       "EditPageDown", "EditInsert",
                                         "EditPageDeleteIt", "EditClear",    "EditCopyPage"};
const std::vector<QString> kEditItems = {
    "EditLinkUp",    "EditLinkDown",   "EditLinkDelete",  "EditCut",        "EditCopy",
    "EditPaste",     "EditSearch",     "EditFindNext",    "EditReplace",    "EditDeleteText",
    "EditFontSmall", "EditFontNormal", "EditFontLarge",   "EditMusic",      "EditProjectPlanner",
    "EditBlockCopy", "EditBlockClear", "EditBlockDelete", "EditBlockInsert"};
const std::vector<QString> kFileItems = {
    "FileSave",   "FileSave",    "FileSave",   "FileSaveAs",  "FileNew",      "FileOpen",     "FileClose",
    "FileBackup", "FileRestore", "FileDelete", "ToolsManage", "ToolsPublish", "ToolsPublish", "ToolsImport"};
const std::vector<QString> kHelpItems = {"HelpHelp",  "HelpWebSite",   "HelpIpodSite", "HelpiTunesSite",
                                         "HelpEmail", "HelpCustomise", "HelpAbout",    "FileExit"};
const std::vector<QString> kCoverItems = {"FileNew",     "FileNew",     "FileOpen",  "FileOpen",
                                          "FileOpen",    "FileOpen",    "FileOpen",  "ToolsImport",
                                          "ToolsImport", "ToolsManage", "FileBackup"};

std::vector<QMenu*> MenusTo(QMainWindow& window, QAction& item) {
  std::vector<QMenu*> menus;
  QAction* wanted = &item;
  while (!window.menuBar()->actions().contains(wanted)) {
    QMenu* holder = nullptr;
    for (QMenu* menu : window.findChildren<QMenu*>()) {
      if (menu->actions().contains(wanted)) holder = menu;
    }
    if (holder == nullptr) Break("no menu holds " + item.objectName().toStdString());
    menus.insert(menus.begin(), holder);
    wanted = holder->menuAction();
  }
  return menus;
}

}  // namespace

void Monkey::ActInEditor() {
  const int kind = dice_.Below(100);
  if (kind < 24) {
    TypeIntoField();
  } else if (kind < 42) {
    PressKeys();
  } else if (kind < 52) {
    ClickPagesGrid();
  } else if (kind < 60) {
    ClickLinksGrid();
  } else if (kind < 70) {
    ClickButton();
  } else if (kind < 78) {
    ChooseItem(kPageItems);
  } else if (kind < 88) {
    ChooseItem(kEditItems);
  } else if (kind < 94) {
    ChooseItem(kFileItems);
  } else if (kind < 96) {
    ChooseItem(kHelpItems);
  } else if (kind < 98) {
    OpenContextMenu();
  } else {
    Fidget();
  }
}

void Monkey::ActOnCover() {
  if (dice_.OneIn(200)) {
    Note("close the window");
    stage_->Window().close();
  } else if (dice_.OneIn(8)) {
    ChooseItem(dice_.OneIn(2) ? kHelpItems : kFileItems);
  } else if (dice_.OneIn(12)) {
    // The Edit menu is off.
    ChooseItem(kEditItems);
  } else if (dice_.OneIn(20)) {
    Fidget();
  } else {
    ChooseItem(kCoverItems);
  }
}

void Monkey::TypeIntoField() {
  static const std::vector<QString> fields = {"Text3",  "Text4",  "Text1", "Text1", "Text5",
                                              "Combo1", "Combo1", "Text6", "Combo2"};
  const QString name = dice_.AnyOf(fields);
  const bool is_target = name.startsWith("Combo");
  const QString text = is_target ? AnyTarget(dice_) : AnyTyped(dice_);
  Note("type into " + name.toStdString() + ": " + text.toStdString());
  by_ = By::Typing;
  auto& field = Find<QWidget>(stage_->Window(), name);
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
  QTest::mouseClick(&Find<QWidget>(stage_->Window(), name), Qt::LeftButton);
}

void Monkey::ChooseItem(const std::vector<QString>& items) {
  auto& item = Find<QAction>(stage_->Window(), dice_.AnyOf(items));
  if (item.objectName() == "FileExit" && !dice_.OneIn(5)) return;
  for (const QMenu* menu : MenusTo(stage_->Window(), item)) {
    if (!menu->menuAction()->isEnabled()) return;
  }
  by_ = By::Menu;
  const bool by_mouse = dice_.OneIn(20);
  Note("choose " + item.objectName().toStdString() + (by_mouse ? " in its menu" : ""));
  if (by_mouse) {
    ChooseByMouse(item);
  } else {
    item.trigger();
  }
}

void Monkey::ChooseByMouse(QAction& item) {
  QMainWindow& window = stage_->Window();
  const std::vector<QMenu*> menus = MenusTo(window, item);
  player_.LeavesPopups = true;
  ++player_.Popups;
  QMenuBar* bar = window.menuBar();
  QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(menus.front()->menuAction()).center());
  for (std::size_t i = 1; i < menus.size() && menus[i - 1]->isVisible(); ++i) {
    QTest::mouseClick(menus[i - 1], Qt::LeftButton, {},
                      menus[i - 1]->actionGeometry(menus[i]->menuAction()).center());
    for (int left = 50; left > 0 && !menus[i]->isVisible(); --left) QTest::qWait(2);
  }
  player_.LeavesPopups = false;
  if (menus.back()->isVisible())
    QTest::mouseClick(menus.back(), Qt::LeftButton, {}, menus.back()->actionGeometry(&item).center());
  for (auto menu = menus.rbegin(); menu != menus.rend(); ++menu) (*menu)->close();
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
