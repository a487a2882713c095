#include "ui/shell/about.h"

#include <QApplication>

#include "core/shell/messages.h"
#include "core/shell/program_info.h"
#include "core/shell/system_info.h"
#include "core/text/run_time_error.h"
#include "ui/controls/font_size.h"
#include "ui/controls/message_box.h"
#include "ui/controls/program_control.h"
#include "ui/shell/look.h"
#include "ui/shell/web_pages.h"
#include "ui_about.h"

namespace tavrel {
namespace {

constexpr int kIconSize = 64;
constexpr qreal kAboutTitleFont = 2;

}  // namespace

About::About(App& app, QWidget* parent) : Dialog(app, parent), ui_(std::make_unique<Ui::About>()) {
  ui_->setupUi(this);
  PrepareControls();
  ScaleFont(*ui_->lblTitle, kAboutTitleFont);
  On(app_.Control, ui_->cmdOK, &QPushButton::clicked, this, [this] { cmdOK_Click(); });
  On(app_.Control, ui_->cmdSysInfo, &QPushButton::clicked, this, [this] { cmdSysInfo_Click(); });
  On(app_.Control, ui_->Label3, &LinkLabel::clicked, this, [this] { Label3_Click(); });
  Form_Load();
}

About::~About() = default;

void About::Form_Load() {
  setWindowTitle(tr("About %1").arg(kProgramName));
  ui_->lblVersion->setText(tr("Version %1").arg(QString::fromStdString(VersionNumber())));
  ui_->lblTitle->setText(kProgramName);
  ui_->Label3->setText(kHomePage);
  ui_->cmdOK->setFocus();
  ui_->picIcon->setPixmap(ProgramIcon().pixmap(kIconSize));
}

void About::cmdOK_Click() {
  accept();
}

void About::cmdSysInfo_Click() {
  StartSysInfo();
}

void About::Label3_Click() {
  OpenWebPage(app_, this, kHomePage);
}

void About::StartSysInfo() {
  try {
    StartSystemInfo(app_.System);
  } catch (const RunTimeError&) {
    app_.Messages.Show(this, messages::SystemInfoUnavailable());
  }
}

}  // namespace tavrel
