#include "ui/main/commands.h"

#include <QActionGroup>

#include "ui/controls/program_control.h"
#include "ui_main_window.h"

namespace tavrel {
namespace {

/// Keys, and behind them those that the system has for the same.
QList<QKeySequence> With(QKeySequence::StandardKey same, QList<QKeySequence> keys) {
  for (const QKeySequence& key : QKeySequence::keyBindings(same)) {
    if (!keys.contains(key)) keys << key;
  }
  return keys;
}

}  // namespace

Commands::Commands(App& app, Ui::Main& ui, Editor& editor, SkinPictures& skins, QWidget* window)
    : app_(app),
      ui_(ui),
      file_menu_(app, editor, window),
      tools_(app, editor, window),
      history_(app, editor, *ui.StatusBar),
      pages_(app, editor),
      links_(app, editor, *ui.MSFlexGrid1),
      text_(*ui.Text1),
      search_(app, editor, *ui.Text1, window),
      blocks_(app, editor, window),
      music_(app, editor, window),
      planner_(app, editor, window),
      help_menu_(app, skins, window) {
  ConnectFileMenu();
  ConnectHistory();
  ConnectPageMenu();
  ConnectLinkMenu();
  ConnectTextMenu();
  ConnectFontMenu();
  ConnectBlocksAndMusic();
  Connect(ui_.EditProjectPlanner, planner_, &PlannerCommands::EditProjectPlanner_Click);
  ConnectHelpMenu();
  ConnectToolBar();
}

void Commands::ConnectFileMenu() {
  Connect(ui_.FileNew, file_menu_, &FileMenu::FileNew_Click);
  Connect(ui_.FileOpen, file_menu_, &FileMenu::FileOpen_Click);
  Connect(ui_.FileSave, file_menu_, &FileMenu::FileSave_Click);
  Connect(ui_.FileSaveAs, file_menu_, &FileMenu::FileSaveAs_Click);
  Connect(ui_.FileClose, file_menu_, &FileMenu::FileClose_Click);
  Connect(ui_.FileBackup, file_menu_, &FileMenu::FileBackup_Click);
  Connect(ui_.FileRestore, file_menu_, &FileMenu::FileRestore_Click);
  Connect(ui_.FileDelete, file_menu_, &FileMenu::FileDelete_Click);
  Connect(ui_.FileExit, file_menu_, &FileMenu::FileExit_Click);
  Connect(ui_.ToolsPublish, tools_, &ToolsCommands::ToolsPublish_Click);
  Connect(ui_.ToolsManage, tools_, &ToolsCommands::ToolsManage_Click);
  Connect(ui_.ToolsImport, tools_, &ToolsCommands::ToolsImport_Click);
}

void Commands::ConnectHistory() {
  Connect(ui_.EditUndo, history_, &HistoryCommands::EditUndo_Click);
  Connect(ui_.EditRedo, history_, &HistoryCommands::EditRedo_Click);
  // People bring the keys from other programs, and systems have their own.
  ui_.EditUndo->setShortcuts(With(QKeySequence::Undo, {QKeySequence("Ctrl+Z")}));
  ui_.EditRedo->setShortcuts(
      With(QKeySequence::Redo, {QKeySequence("Ctrl+Y"), QKeySequence("Ctrl+Shift+Z")}));
  history_.NameIn(*ui_.EditMenu, *ui_.EditUndo, *ui_.EditRedo);
}

void Commands::ConnectPageMenu() {
  Connect(ui_.EditDelete, pages_, &PageCommands::EditDelete_Click);
  Connect(ui_.EditCopyPage, pages_, &PageCommands::EditCopyPage_Click);
  Connect(ui_.EditPastePage, pages_, &PageCommands::EditPastePage_Click);
  Connect(ui_.EditPageUp, pages_, &PageCommands::EditPageUp_Click);
  Connect(ui_.EditPageDown, pages_, &PageCommands::EditPageDown_Click);
  Connect(ui_.EditInsert, pages_, &PageCommands::EditInsert_Click);
  Connect(ui_.EditPageDeleteIt, pages_, &PageCommands::EditPageDeleteIt_Click);
  Connect(ui_.EditClear, pages_, &PageCommands::EditClear_Click);
}

void Commands::ConnectLinkMenu() {
  Connect(ui_.EditLinkUp, links_, &LinkCommands::EditLinkUp_Click);
  Connect(ui_.EditLinkDown, links_, &LinkCommands::EditLinkDown_Click);
  Connect(ui_.EditLinkDelete, links_, &LinkCommands::EditLinkDelete_Click);
}

void Commands::ConnectTextMenu() {
  Connect(ui_.EditCut, text_, &TextCommands::EditCut_Click);
  Connect(ui_.EditCopy, text_, &TextCommands::EditCopy_Click);
  Connect(ui_.EditPaste, text_, &TextCommands::EditPaste_Click);
  Connect(ui_.EditSearch, search_, &SearchCommands::EditSearch_Click);
  Connect(ui_.EditFindNext, search_, &SearchCommands::EditFindNext_Click);
  Connect(ui_.EditReplace, search_, &SearchCommands::EditReplace_Click);
  Connect(ui_.EditDeleteText, text_, &TextCommands::EditDeleteText_Click);
  // Every field sees to these keys itself; the menu only shows them.
  for (QAction* item : {ui_.EditCut, ui_.EditCopy, ui_.EditPaste})
    item->setShortcutContext(Qt::WidgetShortcut);
}

void Commands::ConnectFontMenu() {
  auto* sizes = new QActionGroup(this);
  for (QAction* item : {ui_.EditFontSmall, ui_.EditFontNormal, ui_.EditFontLarge}) sizes->addAction(item);
  Connect(ui_.EditFontSmall, text_, &TextCommands::EditFontSmall_Click);
  Connect(ui_.EditFontNormal, text_, &TextCommands::EditFontNormal_Click);
  Connect(ui_.EditFontLarge, text_, &TextCommands::EditFontLarge_Click);
}

void Commands::ConnectBlocksAndMusic() {
  Connect(ui_.EditBlockCopy, blocks_, &BlockCommands::EditBlockCopy_Click);
  Connect(ui_.EditBlockClear, blocks_, &BlockCommands::EditBlockClear_Click);
  Connect(ui_.EditBlockDelete, blocks_, &BlockCommands::EditBlockDelete_Click);
  Connect(ui_.EditBlockInsert, blocks_, &BlockCommands::EditBlockInsert_Click);
  Connect(ui_.EditMusic, music_, &MusicCommands::EditMusic_Click);
  On(app_.Control, ui_.Command4, &QAbstractButton::clicked, this, [this] { music_.Command4_Click(); });
}

void Commands::ConnectHelpMenu() {
  Connect(ui_.HelpHelp, help_menu_, &HelpMenu::HelpHelp_Click);
  Connect(ui_.HelpWebSite, help_menu_, &HelpMenu::HelpWebSite_Click);
  Connect(ui_.HelpIpodSite, help_menu_, &HelpMenu::HelpIpodSite_Click);
  Connect(ui_.HelpiTunesSite, help_menu_, &HelpMenu::HelpiTunesSite_Click);
  Connect(ui_.HelpEmail, help_menu_, &HelpMenu::HelpEmail_Click);
  Connect(ui_.HelpCustomise, help_menu_, &HelpMenu::HelpCustomise_Click);
  Connect(ui_.HelpAbout, help_menu_, &HelpMenu::HelpAbout_Click);
}

void Commands::ConnectToolBar() {
  Connect(ui_.Image2, file_menu_, &FileMenu::FileNew_Click);
  Connect(ui_.Image3, file_menu_, &FileMenu::FileOpen_Click);
  Connect(ui_.Image4, file_menu_, &FileMenu::FileSave_Click);
  Connect(ui_.Image5, text_, &TextCommands::EditCut_Click);
  Connect(ui_.Image6, text_, &TextCommands::EditCopy_Click);
  Connect(ui_.Image7, text_, &TextCommands::EditPaste_Click);
  Connect(ui_.Image8, pages_, &PageCommands::EditDelete_Click);
  Connect(ui_.Image9, pages_, &PageCommands::EditCopyPage_Click);
  Connect(ui_.Image10, pages_, &PageCommands::EditPastePage_Click);
  Connect(ui_.Image11, tools_, &ToolsCommands::ToolsManage_Click);
  Connect(ui_.Image12, tools_, &ToolsCommands::ToolsPublish_Click);
  Connect(ui_.Image13, pages_, &PageCommands::EditPageUp_Click);
  Connect(ui_.Image14, pages_, &PageCommands::EditPageDown_Click);
  Connect(ui_.Image15, pages_, &PageCommands::EditPageDeleteIt_Click);
  Connect(ui_.Image16, links_, &LinkCommands::EditLinkUp_Click);
  Connect(ui_.Image17, links_, &LinkCommands::EditLinkDown_Click);
  Connect(ui_.Image18, links_, &LinkCommands::EditLinkDelete_Click);
}

template <typename Group>
void Commands::Connect(const QAction* item, Group& group, void (Group::*handler)()) {
  On(app_.Control, item, &QAction::triggered, this, [&group, handler] { (group.*handler)(); });
}

template <typename Group>
void Commands::Connect(const PictureButton* button, Group& group, void (Group::*handler)()) {
  On(app_.Control, button, &PictureButton::clicked, this, [&group, handler] { (group.*handler)(); });
}

}  // namespace tavrel
