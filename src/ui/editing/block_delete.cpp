#include "ui/editing/block_delete.h"

#include "core/editing/blocks.h"
#include "ui_block_delete.h"

namespace tavrel {

BlockDelete::BlockDelete(App& app, QWidget* parent)
    : BlockQuestion(app, parent), ui_(std::make_unique<Ui::BlockDelete>()) {
  ui_->setupUi(this);
  UseControls({ui_->Text1, ui_->Text2, ui_->Check1, ui_->Command1, ui_->Command2});
}

BlockDelete::~BlockDelete() = default;

bool BlockDelete::CanBeDone() const {
  return CanDeletePages(Start(), End());
}

}  // namespace tavrel
