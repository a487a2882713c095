#include "ui/view/preview_panel.h"

#include <QLayout>
#include <QStyle>

#include <string>
#include <variant>

#include "core/text/run_time_error.h"
#include "ui/controls/text_conversion.h"
#include "ui_preview_panel.h"

namespace tavrel {
namespace {

/// What a device reads of a page's note, or why it has none. What a page keeps for its author alone is not in
/// it.
std::string NoteOf(const Global& document, int page, const PublishOptions& options) {
  if (document.Page(page).empty()) return {};
  try {
    return NoteBeginning(document, page, options);
  } catch (const RunTimeError& error) {
    return error.what();
  }
}

}  // namespace

PreviewPanel::PreviewPanel(QWidget* parent) : QWidget(parent), ui_(std::make_unique<Ui::PreviewPanel>()) {
  ui_->setupUi(this);
  for (const ScreenModel& model : kScreenModels)
    ui_->Model->addItem(QString(model.IsColour ? tr("%1 x %2, colour") : tr("%1 x %2, greys"))
                            .arg(model.Width)
                            .arg(model.Height));
  for (const char* scale : {"1x", "2x", "3x"}) ui_->Scale->addItem(scale);
  ui_->Scale->setCurrentIndex(1);
  for (QComboBox* choice : {ui_->Model, ui_->Scale})
    connect(choice, &QComboBox::currentIndexChanged, this, [this] { ChangeScreen(); });
  for (QCheckBox* choice : {ui_->NotesMenuLink, ui_->BackgroundMusic})
    connect(choice, &QAbstractButton::toggled, this, [this] {
      ChangeOptions();
      emit OptionsChanged();
    });
  connect(ui_->Device, &PodView::Pressed, this, [this](const Followed& followed) { TellFollowed(followed); });
  connect(ui_->Device, &PodView::Moved, this, [this] { TellCut(); });
  ChangeScreen();
}

PreviewPanel::~PreviewPanel() = default;

void PreviewPanel::Show(const Global& document) {
  const int page = document.CurrentPage;
  const bool is_elsewhere = ui_->Device->Browser().Page() != page;
  const bool is_new = is_elsewhere && (page != edited_page_ || NoteOf(document, page, Options()) !=
                                                                   NoteOf(document_, page, Options()));
  document_ = document;
  edited_page_ = page;
  ChangeOptions();
  if (is_new) ui_->Device->Browser().Start(page);
  ui_->Device->Refresh();
}

void PreviewPanel::ShowNothing() {
  edited_page_ = 0;
  document_ = Global();
  ui_->Device->Browser() = PodBrowser(ScreenLook(kScreenModels.at(0)).Layout());
  ChangeScreen();
  ChangeOptions();
}

QSize PreviewPanel::sizeHint() const {
  const QMargins margins = layout()->contentsMargins();
  const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  return QWidget::sizeHint().expandedTo({ui_->Device->width() + bar + margins.left() + margins.right(), 0});
}

void PreviewPanel::ChangeScreen() {
  const auto model = static_cast<std::size_t>(ui_->Model->currentIndex());
  ui_->Device->SetScreen(kScreenModels.at(model), ui_->Scale->currentIndex() + 1);
}

void PreviewPanel::ChangeOptions() {
  ui_->Device->Browser().SetDocument(document_, Options());
  ui_->Device->Refresh();
}

PublishOptions PreviewPanel::Options() const {
  return {.NotesMenuLink = ui_->NotesMenuLink->isChecked(),
          .BackgroundMusic = ui_->BackgroundMusic->isChecked()};
}

void PreviewPanel::TellFollowed(const Followed& followed) {
  if (!followed.Music.empty())
    Tell(tr("An iPod would play: %1").arg(QString::fromLatin1(followed.Music.c_str())));
  if (followed.Page > 0 && ui_->GoAlong->isChecked()) emit PageChosen(followed.Page);
}

void PreviewPanel::TellCut() {
  const auto* note = std::get_if<NoteScreen>(&ui_->Device->Browser().Shown());
  const bool is_cut = note != nullptr && note->Shown().IsCut;
  Tell(is_cut ? tr("The note is cut: an iPod shows its first 4,096 bytes.") : QString());
}

void PreviewPanel::Tell(const QString& notice) {
  ui_->Notice->setText(notice);
}

}  // namespace tavrel
