#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

#include <utility>

#include "monkey/monkey.h"
#include "support/user.h"

// What a person chooses to do with the main window, and its menus.

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
  const bool has_reason = std::exchange(has_destroyed_, false) || std::exchange(has_stored_, false);
  const bool regrets = has_reason && dice_.OneIn(3);
  const bool has_undone = !model_->Steps().Undone.empty();
  if (regrets || dice_.OneIn(has_undone ? 8 : 16)) {
    StepsThroughHistory(regrets || !has_undone || dice_.OneIn(3));
    return;
  }
  if (dice_.OneIn(300)) {
    Replay();
    return;
  }
  if (dice_.OneIn(10)) {
    ActInPanels();
    return;
  }
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
  if (hostile_ && dice_.OneIn(200)) {
    Note("close the window");
    stage_->Window().close();
  } else if (dice_.OneIn(8)) {
    ChooseItem(dice_.OneIn(2) ? kHelpItems : kFileItems);
  } else if (dice_.OneIn(12)) {
    // The Edit menu is off.
    ChooseItem(kEditItems);
  } else if (dice_.OneIn(14)) {
    Fidget();
  } else if (dice_.OneIn(10)) {
    ActInPanels();
  } else {
    ChooseItem(kCoverItems);
  }
}

void Monkey::ChooseItem(const std::vector<QString>& items) {
  auto& item = Find<QAction>(stage_->Window(), dice_.AnyOf(items));
  if (item.objectName() == "FileExit" && (!hostile_ || !dice_.OneIn(5))) return;
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
  if (menus.front()->objectName() == "EditMenu" && menus.front()->isVisible()) CheckCaptions();
  // A menu takes the focus for a moment, at which a field forgets its selection.
  model_->MovePlace(screen_->PlaceIn(caret_field_));
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

}  // namespace tavrel::test
