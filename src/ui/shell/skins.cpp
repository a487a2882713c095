#include "ui/shell/skins.h"

#include "core/shell/settings.h"
#include "ui/controls/program_control.h"
#include "ui/controls/redraw.h"
#include "ui_skins.h"

namespace tavrel {

Skins::Skins(App& app, QWidget* parent) : Dialog(app, parent), ui_(std::make_unique<Ui::Skins>()) {
  ui_->setupUi(this);
  PrepareControls();
  On(app_.Control, ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  Form_Load();
}

Skins::~Skins() = default;

void Skins::Form_Load() {
  ui_->Check1->setChecked(app_.State.UseSkin);
}

void Skins::Command1_Click() {
  app_.State.UseSkin = ui_->Check1->isChecked();
  SaveSettings(app_.State, app_.System);
  LetWindowsRedraw();
  accept();
}

}  // namespace tavrel
