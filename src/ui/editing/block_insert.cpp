#include "ui/editing/block_insert.h"

#include "core/editing/blocks.h"
#include "ui_block_insert.h"

namespace tavrel {

BlockInsert::BlockInsert(App& app, QWidget* parent)
    : BlockQuestion(app, parent), ui_(std::make_unique<Ui::BlockInsert>()) {
  ui_->setupUi(this);
  UseControls({ui_->Text1, ui_->Text2, ui_->Check1, ui_->Command1, ui_->Command2});
}

BlockInsert::~BlockInsert() = default;

bool BlockInsert::CanBeDone() const {
  return CanInsertPages(At(), Count());
}

}  // namespace tavrel
