#include "ui/editing/block_delete.h"

#include "core/editing/blocks.h"
#include "ui/controls/program_control.h"
#include "ui_block_delete.h"

namespace tavrel {

BlockDelete::BlockDelete(App& app, QWidget* parent)
    : Dialog(app, parent), ui_(std::make_unique<Ui::BlockDelete>()) {
  ui_->setupUi(this);
  PrepareControls();
  ui_->Command2->setDefault(true);
  On(app_.Control, ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  On(app_.Control, ui_->Command2, &QPushButton::clicked, this, [this] { Command2_Click(); });
}

BlockDelete::~BlockDelete() = default;

void BlockDelete::Ask() {
  ui_->Check1->setChecked(true);
  ui_->Text1->SetBytes("001");
  ui_->Text2->SetBytes("002");
  ui_->Text1->setFocus();
  ui_->Text1->selectAll();
  exec();
}

bool BlockDelete::IsCancelled() const {
  return ui_->Check1->isChecked();
}

int BlockDelete::Start() const {
  return ui_->Text1->Number();
}

int BlockDelete::End() const {
  return ui_->Text2->Number();
}

void BlockDelete::Command1_Click() {
  reject();
}

void BlockDelete::Command2_Click() {
  if (!CanDeletePages(Start(), End())) return;
  ui_->Check1->setChecked(false);
  accept();
}

}  // namespace tavrel
