#include "ui/editing/block_clear.h"

#include "ui/controls/hourglass.h"
#include "ui/controls/program_control.h"
#include "ui/editing/page_range_name.h"
#include "ui_block_clear.h"

namespace tavrel {

BlockClear::BlockClear(App& app, QWidget* parent)
    : Dialog(app, parent), ui_(std::make_unique<Ui::BlockClear>()) {
  ui_->setupUi(this);
  PrepareControls();
  On(app_.Control, ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  On(app_.Control, ui_->Command2, &QPushButton::clicked, this, [this] { Command2_Click(); });
}

BlockClear::~BlockClear() = default;

int BlockClear::exec() {
  ui_->Text1->setFocus();
  ui_->Text1->selectAll();
  return Dialog::exec();
}

void BlockClear::Command1_Click() {
  reject();
}

void BlockClear::Command2_Click() {
  const int start = ui_->Text1->Number();
  const int end = ui_->Text2->Number();
  if (!CanClearPages(start, end)) return;
  const Hourglass hourglass;
  const PageRange pages = RangeBetween(start, end);
  app_.Steps.Name(tr("Clear %1").arg(NameOf(pages)).toStdString());
  ClearPages(app_.State, pages);
  accept();
}

}  // namespace tavrel
