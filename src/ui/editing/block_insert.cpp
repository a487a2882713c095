#include "ui/editing/block_insert.h"

#include "core/editing/blocks.h"
#include "ui/controls/program_control.h"
#include "ui_block_insert.h"

namespace tavrel {

BlockInsert::BlockInsert(App& app, QWidget* parent)
    : Dialog(app, parent), ui_(std::make_unique<Ui::BlockInsert>()) {
  ui_->setupUi(this);
  PrepareControls();
  ui_->Command2->setDefault(true);
  On(app_.Control, ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  On(app_.Control, ui_->Command2, &QPushButton::clicked, this, [this] { Command2_Click(); });
}

BlockInsert::~BlockInsert() = default;

void BlockInsert::Ask() {
  ui_->Check1->setChecked(true);
  ui_->Text1->SetBytes("001");
  ui_->Text2->SetBytes("002");
  ui_->Text1->setFocus();
  ui_->Text1->selectAll();
  exec();
}

bool BlockInsert::IsCancelled() const {
  return ui_->Check1->isChecked();
}

int BlockInsert::At() const {
  return ui_->Text1->Number();
}

int BlockInsert::Count() const {
  return ui_->Text2->Number();
}

void BlockInsert::Command1_Click() {
  reject();
}

void BlockInsert::Command2_Click() {
  if (!CanInsertPages(At(), Count())) return;
  ui_->Check1->setChecked(false);
  accept();
}

}  // namespace tavrel
