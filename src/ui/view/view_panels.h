#pragma once

#include <QObject>

#include <vector>

#include "core/check/project_check.h"
#include "ui/app.h"
#include "ui/main/editor.h"
#include "ui/view/live_document.h"

class QAction;
class QDockWidget;
class QMainWindow;
class QToolButton;

namespace tavrel {

class CheckPanel;
class FindAllPanel;
class PreviewPanel;

/// The items of the View menu.
struct ViewItems {
  QAction* Preview;
  QAction* Check;
  QAction* FindAll;
};

/// The panels of the View menu, which can stand at any side of the window or by themselves.
class ViewPanels : public QObject {
  Q_OBJECT

 public:
  ViewPanels(App& app, const ViewItems& items, Editor& editor, QMainWindow& window);

  void ViewPreview_Click();
  void ViewCheck_Click();
  void ViewFindAll_Click();

 private:
  QDockWidget* MakeDock(QWidget* panel, QAction* item, Qt::DockWidgetArea area);
  void AddCount();
  /// Brings the visible panels up to date.
  void Update();
  void UpdateCheck();
  void MakeRoomForPreview();
  bool IsBehindAnother(QDockWidget& dock) const;
  bool Show(QDockWidget& dock, QAction& item);
  bool ShowAtBottom(QDockWidget& dock, QAction& item);
  void NameTabs();
  void GoAlong(int page);
  void Lead(FieldPart part);  // a copy: looking renews the lists that it stood in
  void TellReplaced(int count);

  App& app_;
  ViewItems items_;
  Editor& editor_;
  QMainWindow& window_;
  LiveDocument live_;
  ProjectCheck problems_;
  PreviewPanel* preview_;
  CheckPanel* check_;
  FindAllPanel* find_all_;
  QDockWidget* preview_dock_;
  QDockWidget* check_dock_;
  QDockWidget* find_all_dock_;
  QToolButton* count_;
  bool has_made_room_ = false;  ///< for the preview
};

}  // namespace tavrel
