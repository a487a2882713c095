#include "ui/editing/block_copy.h"

#include "ui/controls/hourglass.h"
#include "ui/controls/program_control.h"
#include "ui/editing/page_range_name.h"
#include "ui_block_copy.h"

namespace tavrel {

BlockCopy::BlockCopy(App& app, QWidget* parent)
    : Dialog(app, parent), ui_(std::make_unique<Ui::BlockCopy>()) {
  ui_->setupUi(this);
  PrepareControls();
  On(app_.Control, ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  On(app_.Control, ui_->Command2, &QPushButton::clicked, this, [this] { Command2_Click(); });
}

BlockCopy::~BlockCopy() = default;

int BlockCopy::exec() {
  ui_->Text1->setFocus();
  ui_->Text1->selectAll();
  return Dialog::exec();
}

void BlockCopy::Command1_Click() {
  reject();
}

void BlockCopy::Command2_Click() {
  const int start = ui_->Text1->Number();
  const int end = ui_->Text2->Number();
  const int to = ui_->Text3->Number();
  if (!CanCopyPages(start, end, to)) return;
  const Hourglass hourglass;
  const PageRange pages = RangeBetween(start, end);
  app_.Steps.Name(tr("Copy %1 to page %2").arg(NameOf(pages)).arg(to).toStdString());
  CopyPages(app_.State, pages, to);
  accept();
}

}  // namespace tavrel
