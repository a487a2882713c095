#include "ui/main/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QTimer>

#include "core/document/document_file.h"
#include "core/editing/find_all.h"
#include "core/shell/messages.h"
#include "core/shell/program_folder.h"
#include "core/shell/settings.h"
#include "ui/controls/font_size.h"
#include "ui/controls/program_control.h"
#include "ui/controls/redraw.h"
#include "ui/controls/text_conversion.h"
#include "ui/main/command_steps.h"
#include "ui/main/commands.h"
#include "ui/main/field_notices.h"
#include "ui/main/hover_outline.h"
#include "ui/main/page_editor.h"
#include "ui/main/page_grids.h"
#include "ui/shell/skin_pictures.h"
#include "ui/view/view_panels.h"
#include "ui_main_window.h"

namespace tavrel {
namespace {

constexpr int kTimer1Interval = 1000;
constexpr qreal kTitleFont = 2.8;

}  // namespace

Main::Main(App& app)
    : app_(app), ui_(std::make_unique<Ui::Main>()), last_focus_(*this), timer1_(new QTimer(this)) {
  ui_->setupUi(this);
  timer1_->setObjectName("Timer1");
  timer1_->setInterval(kTimer1Interval);

  grids_ = std::make_unique<PageGrids>(app_, *ui_);
  page_ = std::make_unique<PageEditor>(app_, *ui_);
  skins_ = std::make_unique<SkinPictures>(app_.State, *ui_->Picture1, *ui_->Background);
  notices_ = std::make_unique<FieldNotices>(*ui_);
  commands_ = std::make_unique<Commands>(app_, *ui_, *this, *skins_, this);
  outline_ = std::make_unique<HoverOutline>(
      ui_->ToolBar->findChildren<PictureButton*>(),
      QList<QWidget*>{ui_->Background, ui_->ToolBar, ui_->PagesPane, ui_->WritingPart, ui_->LinksPart});
  steps_ = std::make_unique<CommandSteps>(app_, *this);
  panels_ = std::make_unique<ViewPanels>(app_, ViewItems{ui_->ViewPreview, ui_->ViewCheck, ui_->ViewFindAll},
                                         *this, *this);
  ScaleFont(*ui_->CoverTitle, kTitleFont);
  ui_->Panes->setStretchFactor(1, 1);
  ui_->PagePane->setStretchFactor(0, 1);
  ConnectFields();
  NameSeparators();

  HideControls();
}

Main::~Main() = default;

void Main::ConnectFields() {
  ProgramControl& control = app_.Control;
  On(control, ui_->MSFlexGrid1, &Grid::Click, this, [this](int row) { MSFlexGrid1_Click(row); });
  On(control, ui_->MSFlexGrid2, &Grid::Click, this, [this](int row) { MSFlexGrid2_Click(row); });
  On(control, ui_->Text3, &LineField::returnPressed, this, [this] { Text3_KeyPress(); });
  On(control, ui_->Text3, &LineField::LostFocus, this, [this] { Text3_LostFocus(); });
  On(control, ui_->Text4, &LineField::returnPressed, this, [this] { Text4_KeyPress(); });
  On(control, ui_->Text4, &LineField::LostFocus, this, [this] { Text4_LostFocus(); });
  On(control, ui_->Text5, &LineField::returnPressed, this, [this] { Text5_KeyPress(); });
  On(control, ui_->Text5, &LineField::LostFocus, this, [this] { Text5_LostFocus(); });
  const LineField* target = &ui_->Combo1->Field();
  On(control, target, &LineField::returnPressed, this, [this] { Combo1_KeyPress(); });
  On(control, target, &LineField::LostFocus, this, [this] { Combo1_LostFocus(); });
  On(control, timer1_, &QTimer::timeout, this, [this] { Timer1_Timer(); });
}

void Main::NameSeparators() {
  // A form cannot name a separator.
  for (QAction* item : ui_->HelpMenu->actions()) {
    if (item->isSeparator()) item->setObjectName("HelpSep1");
  }
}

void Main::Form_Load() {
  ReturnToProgramFolder(app_.State);
  LoadSettings(app_.State, app_.System);
  LetWindowsRedraw();
  skins_->LoadAtStart();
  ui_->EditMenu->menuAction()->setEnabled(false);
  app_.State.DocPath.clear();
  app_.State.FindText.clear();
  timer1_->start();
}

void Main::closeEvent(QCloseEvent* event) {
  event->accept();
  app_.Control.Run([this] { Form_QueryUnload(); });
}

void Main::Form_QueryUnload() {
  emit Closed();
}

void Main::LoadDoc() {
  LoadDocument(app_.State);
  grids_->FillPages();
  app_.State.CurrentPage = 1;
  LoadPage(1);
  ui_->MSFlexGrid2->scrollToTop();
  app_.State.IsDocumentShown = true;
  app_.Steps.Start();
}

void Main::LoadPage(int page) {
  const PageFields fields = ReadPage(app_.State.Page(page));
  page_->ShowFields(fields);
  grids_->ShowLinks(fields);
  page_->FillTargets();
  page_->ShowMusicLink(fields);
  grids_->SelectLink(1);
  page_->ShowLink(fields.Links.front());
  app_.State.CurrentLink = 1;
  grids_->SelectPage(page);
  first_record_ = RecordOfFields();
  loaded_record_ = app_.State.Page(page);
  shown_record_ = first_record_;
  ++showing_;
}

void Main::SavePage() {
  UpdateGrid2();
  app_.State.Page(app_.State.CurrentPage).Update(BuildPage(StoredFields(), app_.CodePageInUse()));
  shown_record_ = app_.State.Page(app_.State.CurrentPage);
  UpdateGrid2();
  MoveFocusToBody();
}

void Main::MoveFocusToBody() {
  const QWidget* left = focusWidget();
  ui_->Text1->setFocus();
  // When a dialog has just closed, this window is not yet the active one again and its fields are not told.
  const bool was_link_field = left == ui_->Text5 || left == ui_->Combo1 || left == &ui_->Combo1->Field();
  if (was_link_field && !isActiveWindow()) UpdateGrid1();
}

void Main::StoreTyped() {
  if (!app_.State.IsDocumentShown) return;
  UpdateGrid1();
  SavePage();
}

PageFields Main::StoredFields() const {
  PageFields fields = page_->TypedFields();
  fields.Links = grids_->Links();
  return fields;
}

std::string Main::RecordOfFields() const {
  PageFields fields = StoredFields();
  fields.Links.at(static_cast<std::size_t>(app_.State.CurrentLink) - 1) = page_->TypedLink();
  return BuildPage(fields, app_.CodePageInUse());
}

std::string Main::PageToStore() const {
  std::string stored = BuildPage(StoredFields(), app_.CodePageInUse());
  return stored == shown_record_ ? app_.State.Page(app_.State.CurrentPage).Bytes() : stored;
}

std::string Main::TypedPage() const {
  return Now().Typed;
}

QWidget* Main::ControlWithFocus() const {
  QWidget* control = focusWidget();
  // A panel that floats is a window of its own, but its keys come here.
  QWidget* panel_control = QApplication::focusWidget();
  if (panel_control != nullptr && panel_control->window()->parentWidget() == this &&
      qobject_cast<QDockWidget*>(panel_control->window()) != nullptr)
    control = panel_control;
  return control == menuBar() ? last_focus_.Control() : control;
}

Place Main::At() const {
  return page_->CaretPlace(ControlWithFocus());
}

Shown Main::Now() const {
  const std::string& record = app_.State.Page(app_.State.CurrentPage);
  std::string typed = RecordOfFields();
  const bool is_untouched = typed == shown_record_;
  return {.At = At(),
          .Typed = is_untouched ? record : typed,
          .Showing = showing_,
          .Rewritten = is_untouched && typed != record ? std::optional(typed) : std::nullopt,
          .AtFirst = first_record_,
          .RecordAtFirst = loaded_record_};
}

std::optional<std::string> Main::TypedWithRedo() {
  if (FieldWithRedo() == nullptr) return std::nullopt;
  std::string typed;
  page_->WithRedo([&] { typed = TypedPage(); });
  return typed;
}

QWidget* Main::FieldWithUnheldWords() const {
  return page_->FieldWithUnheldWords();
}

QWidget* Main::FieldWithRedo() const {
  return page_->FieldWithRedo(ControlWithFocus());
}

void Main::ShowAt(const Place& place) {
  // The field that loses the focus must not write into the page that comes.
  page_->FocusOn(place);
  app_.State.CurrentPage = static_cast<std::int16_t>(place.Page);
  RefreshGrid2();
  LoadPage(place.Page);
  page_->ShowLink(grids_->LinkAt(place.Link));
  if (place.Row > 0) grids_->SelectLink(place.Row);
  app_.State.CurrentLink = static_cast<std::int16_t>(place.Link);
  page_->ShowCaret(place);
}

void Main::ShowPage(int page) {
  if (!app_.State.IsDocumentInEditor() || page == app_.State.CurrentPage) return;
  StoreTyped();
  app_.State.CurrentPage = static_cast<std::int16_t>(page);
  LoadPage(page);
}

void Main::ShowPart(const FieldPart& part) {
  if (!app_.State.IsDocumentInEditor() || part.Page < 1 || part.Page > kLastPage) return;
  const FieldPart shown = part.Link > kLastLink ? FieldPart{.Page = part.Page} : part;
  if (part.Page == app_.State.CurrentPage) {
    SelectHere(shown);
    return;
  }
  StoreTyped();
  ShowAt(page_->PlaceOf(shown));
  page_->Select(shown);
}

/// To store the page and show it anew would throw half-typed links away.
void Main::SelectHere(FieldPart part) {
  const std::string record = PageToStore();
  const std::string_view content = FieldContent(record, part);
  const bool is_as_read = record != BuildPage(StoredFields(), app_.CodePageInUse());
  if (!is_as_read) part.Link = grids_->RowOf(part.Link);
  if (part.Link > 0 && part.Link != app_.State.CurrentLink) MSFlexGrid1_Click(part.Link);
  page_->FocusOn(page_->PlaceOf(part));
  page_->Select(page_->PartInField(part, content));
}

void Main::TellRecovered(const QString& notice) {
  ui_->CoverRecovered->setText(notice);
  ui_->CoverRecovered->setVisible(!notice.isEmpty());
}

void Main::TellNotKept(const QString& reason) {
  if (reason.isEmpty()) {
    statusBar()->clearMessage();
  } else {
    statusBar()->showMessage(tr("If the program stops now, what is not saved is lost: %1")
                                 .arg(QString(reason).replace('\n', ' ')));
  }
}

void Main::ClearGrid1() {
  grids_->ClearLinks();
}

void Main::ClearGrid2() {
  grids_->ClearPages();
}

void Main::UpdateGrid1() {
  grids_->StoreLink(page_->TypedLink());
}

void Main::UpdateGrid2() {
  grids_->StorePage(ui_->Text3->Bytes(), ui_->Text4->Bytes());
}

void Main::RefreshGrid2() {
  grids_->RefreshPages();
}

void Main::RefreshMusicLinks() {
  page_->RefreshMusicTargets();
  page_->ShowMusicLink(ReadPage(app_.State.Page(app_.State.CurrentPage)));
}

void Main::ShowControls() {
  ui_->Cover->setCurrentWidget(ui_->Background);
  ui_->EditMenu->menuAction()->setEnabled(true);
  statusBar()->show();
  ui_->Text1->setFocus();
}

void Main::HideControls() {
  ui_->Cover->setCurrentWidget(ui_->Picture1);
  ui_->EditMenu->menuAction()->setEnabled(false);
  statusBar()->hide();
  app_.Steps.Start();
}

void Main::ShowDocumentName() {
  const QString name = ToText(DocumentName(app_.State));
  ui_->Label7->setText(name);
  ui_->Label7->setAccessibleName(tr("Project name: %1").arg(name));
  setWindowTitle(name + " - " + kProgramName);
}

void Main::ResetCaption() {
  setWindowTitle(kProgramName);
}

void Main::MSFlexGrid1_Click(int row) {
  UpdateGrid1();
  page_->ShowLink(grids_->LinkAt(row));
  grids_->SelectLink(row);
  app_.State.CurrentLink = static_cast<std::int16_t>(row);
  ui_->Text5->setFocus();
}

void Main::MSFlexGrid2_Click(int row) {
  SavePage();
  app_.State.CurrentPage = static_cast<std::int16_t>(row);
  LoadPage(row);
}

void Main::Text3_KeyPress() {
  UpdateGrid2();
}

void Main::Text3_LostFocus() {
  UpdateGrid2();
}

void Main::Text4_KeyPress() {
  UpdateGrid2();
}

void Main::Text4_LostFocus() {
  UpdateGrid2();
}

void Main::Text5_KeyPress() {
  UpdateGrid1();
}

void Main::Text5_LostFocus() {
  UpdateGrid1();
}

void Main::Combo1_KeyPress() {
  UpdateGrid1();
}

void Main::Combo1_LostFocus() {
  UpdateGrid1();
}

void Main::Timer1_Timer() {
  ui_->LengthBar->SetWidth(ui_->Text1->Length());
}

}  // namespace tavrel
