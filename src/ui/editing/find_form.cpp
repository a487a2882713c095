#include "ui/editing/find_form.h"

#include "ui_find_form.h"

namespace tavrel {

FindForm::FindForm(App& app, QWidget* parent)
    : SearchDialog(app, parent), ui_(std::make_unique<Ui::FindForm>()) {
  ui_->setupUi(this);
  UseControls({ui_->Text1, ui_->Check1, ui_->Check2, ui_->Command1, ui_->Command2});
}

FindForm::~FindForm() = default;

}  // namespace tavrel
