#include "ui/view/view_panels.h"

#include <QApplication>
#include <QDockWidget>
#include <QMainWindow>
#include <QScreen>
#include <QStatusBar>
#include <QTabBar>
#include <QToolButton>

#include <algorithm>
#include <string_view>
#include <utility>

#include "core/editing/find_all.h"
#include "core/editing/link_row.h"
#include "core/editing/shown_part.h"
#include "ui/controls/program_control.h"
#include "ui/controls/text_conversion.h"
#include "ui/view/check_panel.h"
#include "ui/view/find_all_panel.h"
#include "ui/view/preview_panel.h"

namespace tavrel {
namespace {

constexpr int kNoticeTime = 15000;

/// What stands at the part.
std::string_view WordsAt(const Global& document, const FieldPart& part) {
  const std::string_view content = FieldContent(document, part);
  return content.substr(std::min(part.Position, content.size()), part.Length);
}

/// Where a part of the document is by now, as far as that can be told: links may have moved, words may have
/// gone.
FieldPart PartNow(const Global& before, const Global& now, const FieldPart& part) {
  FieldPart moved = part;
  if (part.Where == Field::LinkText || part.Where == Field::LinkTarget)
    moved.Link = LinkRowNow(before.Page(part.Page).Bytes(), now.Page(part.Page).Bytes(), part.Link);
  const bool is_there = WordsAt(now, moved) == WordsAt(before, part);
  return is_there ? moved : WithoutWords(moved, FieldContent(now, moved).size());
}

}  // namespace

ViewPanels::ViewPanels(App& app, const ViewItems& items, Editor& editor, QMainWindow& window)
    : QObject(&window),
      app_(app),
      items_(items),
      editor_(editor),
      window_(window),
      live_(app, editor, this),
      preview_(new PreviewPanel),
      check_(new CheckPanel),
      find_all_(new FindAllPanel(app)),
      preview_dock_(MakeDock(preview_, items_.Preview, Qt::RightDockWidgetArea)),
      check_dock_(MakeDock(check_, items_.Check, Qt::BottomDockWidgetArea)),
      find_all_dock_(MakeDock(find_all_, items_.FindAll, Qt::BottomDockWidgetArea)),
      count_(new QToolButton) {
  AddCount();
  const auto run_aside = [this](const QAction* item, void (ViewPanels::*handler)()) {
    connect(item, &QAction::triggered, this,
            [this, handler] { app_.Control.RunAside([this, handler] { (this->*handler)(); }); });
  };
  run_aside(items_.Preview, &ViewPanels::ViewPreview_Click);
  run_aside(items_.Check, &ViewPanels::ViewCheck_Click);
  run_aside(items_.FindAll, &ViewPanels::ViewFindAll_Click);
  connect(&live_, &LiveDocument::Changed, this, [this] { app_.Control.RunAside([this] { Update(); }); });
  connect(preview_, &PreviewPanel::OptionsChanged, this, [this] { Update(); });
  On(app_.Control, check_, &CheckPanel::Chosen, this, [this](const FieldPart& part) { Lead(part); });
  On(app_.Control, find_all_, &FindAllPanel::Chosen, this, [this](const FieldPart& part) { Lead(part); });
  connect(find_all_, &FindAllPanel::CharactersReplaced, this, &ViewPanels::TellReplaced);
  On(app_.Control, preview_, &PreviewPanel::PageChosen, this, [this](int page) { GoAlong(page); });
}

QDockWidget* ViewPanels::MakeDock(QWidget* panel, QAction* item, Qt::DockWidgetArea area) {
  auto* dock = new QDockWidget(panel->windowTitle(), &window_);
  dock->setObjectName(panel->objectName() + "Dock");
  dock->setWidget(panel);
  window_.addDockWidget(area, dock);
  dock->hide();
  connect(dock, &QDockWidget::visibilityChanged, this, [this, dock, item](bool is_visible) {
    item->setChecked(!dock->isHidden());
    NameTabs();
    if (!is_visible) return;
    app_.Control.RunAside([this] {
      live_.Look();
      Update();
    });
  });
  return dock;
}

void ViewPanels::AddCount() {
  count_->setObjectName("ProblemCount");
  count_->setAutoRaise(true);
  count_->setFocusPolicy(Qt::NoFocus);  // the menu is the keyboard's way
  count_->setText(tr("No problems"));
  count_->setToolTip(tr("What would go wrong on the iPod"));
  connect(count_, &QAbstractButton::clicked, this, [this] {
    items_.Check->setChecked(true);
    ShowAtBottom(*check_dock_, *items_.Check);
  });
  window_.statusBar()->addPermanentWidget(count_);
}

void ViewPanels::ViewPreview_Click() {
  if (Show(*preview_dock_, *items_.Preview) && !std::exchange(has_made_room_, true)) MakeRoomForPreview();
}

/// The editor needs the room that it has, so the window grows as far as the screen does.
void ViewPanels::MakeRoomForPreview() {
  if (preview_dock_->isFloating()) return;
  const int needed = preview_->sizeHint().width();
  const bool is_free = !window_.isMaximized() && !window_.isFullScreen();
  const int most = window_.screen()->availableGeometry().right() - window_.x();
  if (is_free && most > window_.width())
    window_.resize(std::min(window_.width() + needed, most), window_.height());
  window_.resizeDocks({preview_dock_}, {needed}, Qt::Horizontal);
}

void ViewPanels::ViewCheck_Click() {
  ShowAtBottom(*check_dock_, *items_.Check);
}

void ViewPanels::ViewFindAll_Click() {
  if (!ShowAtBottom(*find_all_dock_, *items_.FindAll)) return;
  find_all_->FocusOnText();
  if (find_all_dock_->isFloating()) find_all_dock_->activateWindow();
}

bool ViewPanels::IsBehindAnother(QDockWidget& dock) const {
  const QList<QDockWidget*> sharing = window_.tabifiedDockWidgets(&dock);
  const bool is_shared = std::any_of(sharing.begin(), sharing.end(),
                                     [](const QDockWidget* other) { return !other->isHidden(); });
  // The toolkit moves a panel that lies behind another one out of the window and calls it visible.
  return is_shared && !window_.rect().intersects(dock.geometry());
}

/// False if the panel was closed: the item was ticked, and the panel not only behind another one.
bool ViewPanels::Show(QDockWidget& dock, QAction& item) {
  if (!item.isChecked() && dock.isVisible() && !IsBehindAnother(dock)) {
    dock.hide();
    return false;
  }
  item.setChecked(true);
  dock.show();
  dock.raise();
  return true;
}

/// The two lists share a place until people part them.
bool ViewPanels::ShowAtBottom(QDockWidget& dock, QAction& item) {
  QDockWidget& other = &dock == check_dock_ ? *find_all_dock_ : *check_dock_;
  const bool is_beside = !dock.isFloating() && !other.isFloating() && !other.isHidden() &&
                         window_.dockWidgetArea(&dock) == window_.dockWidgetArea(&other);
  if (is_beside && dock.isHidden()) window_.tabifyDockWidget(&other, &dock);
  return Show(dock, item);
}

void ViewPanels::NameTabs() {
  for (QTabBar* tabs : window_.findChildren<QTabBar*>(QString(), Qt::FindDirectChildrenOnly))
    tabs->setAccessibleName(tr("Panels"));
}

void ViewPanels::Update() {
  if (live_.IsOpen()) UpdateCheck();
  if (preview_dock_->isVisible()) live_.IsOpen() ? preview_->Show(live_.Document()) : preview_->ShowNothing();
  if (!check_dock_->isHidden() && !live_.IsOpen()) check_->Show({}, tr("No project is open."));
  if (find_all_dock_->isVisible()) find_all_->Show(live_.Document());
}

void ViewPanels::UpdateCheck() {
  std::vector<Finding> findings = problems_.Run(live_.Document(), app_.CodePageInUse(), preview_->Options());
  const auto count = static_cast<int>(findings.size());
  const QString problems = count == 0   ? tr("No problems")
                           : count == 1 ? tr("1 problem")
                                        : tr("%L1 problems").arg(count);
  count_->setText(problems);
  check_->Show(std::move(findings), problems);
}

void ViewPanels::GoAlong(int page) {
  QWidget* focus = QApplication::focusWidget();
  editor_.ShowPage(page);
  if (focus != nullptr) focus->setFocus();
  live_.Look();  // before people go on: the page that they came to is the one in the editor
}

/// What was written since the last look may have moved what the row showed.
void ViewPanels::Lead(FieldPart part) {
  const Global shown = live_.Document();
  live_.Look();
  editor_.ShowPart(PartNow(shown, live_.Document(), part));
  if (app_.State.IsDocumentInEditor()) window_.activateWindow();
}

void ViewPanels::TellReplaced(int count) {
  window_.statusBar()->showMessage(ReplacedNotice(count), kNoticeTime);
}

}  // namespace tavrel
