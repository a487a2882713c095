#include "ui/editing/search_dialog.h"

#include <QCheckBox>
#include <QPushButton>

#include "core/text/file_names.h"
#include "ui/controls/line_field.h"
#include "ui/controls/program_control.h"

namespace tavrel {

void SearchDialog::UseControls(const Controls& controls) {
  controls_ = controls;
  PrepareControls();
  On(app_.Control, controls_.Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  On(app_.Control, controls_.Command2, &QPushButton::clicked, this, [this] { Command2_Click(); });
}

void SearchDialog::Ask() {
  controls_.Text1->SetBytes(app_.State.FindText);
  controls_.Text1->selectAll();
  controls_.Text1->setFocus();
  controls_.Check2->setChecked(false);
  exec();
}

bool SearchDialog::IsCancelled() const {
  return controls_.Check2->isChecked();
}

bool SearchDialog::IsCaseMatched() const {
  return controls_.Check1->isChecked();
}

void SearchDialog::Command1_Click() {
  app_.State.FindText = TrimBlanks(controls_.Text1->Bytes());
  if (app_.State.FindText.empty()) controls_.Check2->setChecked(true);
  accept();
}

void SearchDialog::Command2_Click() {
  reject();
}

void SearchDialog::reject() {
  controls_.Check2->setChecked(true);
  Dialog::reject();
}

}  // namespace tavrel
