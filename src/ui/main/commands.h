#pragma once

#include <QObject>

#include "ui/document/file_menu.h"
#include "ui/editing/block_commands.h"
#include "ui/editing/history_commands.h"
#include "ui/editing/link_commands.h"
#include "ui/editing/page_commands.h"
#include "ui/editing/search_commands.h"
#include "ui/editing/text_commands.h"
#include "ui/ipod/music_commands.h"
#include "ui/ipod/tools_commands.h"
#include "ui/planner/planner_commands.h"
#include "ui/shell/help_menu.h"

namespace Ui {
class Main;
}

namespace tavrel {

class PictureButton;

/// The main window's commands in their groups, each joined to its menu item and its button.
class Commands : public QObject {
  Q_OBJECT

 public:
  Commands(App& app, Ui::Main& ui, Editor& editor, SkinPictures& skins, QWidget* window);

 private:
  void ConnectFileMenu();
  void ConnectHistory();
  void ConnectPageMenu();
  void ConnectLinkMenu();
  void ConnectTextMenu();
  void ConnectFontMenu();
  void ConnectBlocksAndMusic();
  void ConnectHelpMenu();
  void ConnectToolBar();

  template <typename Group>
  void Connect(const PictureButton* button, Group& group, void (Group::*handler)());
  template <typename Group>
  void Connect(const QAction* item, Group& group, void (Group::*handler)());

  App& app_;
  Ui::Main& ui_;
  FileMenu file_menu_;
  ToolsCommands tools_;
  HistoryCommands history_;
  PageCommands pages_;
  LinkCommands links_;
  TextCommands text_;
  SearchCommands search_;
  BlockCommands blocks_;
  MusicCommands music_;
  PlannerCommands planner_;
  HelpMenu help_menu_;
};

}  // namespace tavrel
