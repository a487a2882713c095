#include "ui/editing/replace_form.h"

#include "ui_replace_form.h"

namespace tavrel {

ReplaceForm::ReplaceForm(App& app, QWidget* parent)
    : SearchDialog(app, parent), ui_(std::make_unique<Ui::ReplaceForm>()) {
  ui_->setupUi(this);
  UseControls({ui_->Text1, ui_->Check1, ui_->Check2, ui_->Command1, ui_->Command2});
  ui_->TagNotice->SetOwner(tr("A page"));
  ui_->TagNotice->Watch(*ui_->Text2, {"</text>"});
}

ReplaceForm::~ReplaceForm() = default;

std::string ReplaceForm::ReplacementText() const {
  return ui_->Text2->Bytes();
}

}  // namespace tavrel
