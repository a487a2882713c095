#include "ui/editing/block_question.h"

#include <QCheckBox>
#include <QPushButton>

#include "ui/controls/line_field.h"
#include "ui/controls/program_control.h"

namespace tavrel {

void BlockQuestion::UseControls(const Controls& controls) {
  controls_ = controls;
  PrepareControls();
  On(app_.Control, controls_.Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  On(app_.Control, controls_.Command2, &QPushButton::clicked, this, [this] { Command2_Click(); });
}

void BlockQuestion::Ask() {
  controls_.Check1->setChecked(true);
  controls_.Text1->SetBytes("001");
  controls_.Text2->SetBytes("002");
  controls_.Text1->setFocus();
  controls_.Text1->selectAll();
  exec();
}

bool BlockQuestion::IsCancelled() const {
  return controls_.Check1->isChecked();
}

int BlockQuestion::Number1() const {
  return controls_.Text1->Number();
}

int BlockQuestion::Number2() const {
  return controls_.Text2->Number();
}

void BlockQuestion::Command1_Click() {
  reject();
}

void BlockQuestion::Command2_Click() {
  if (!CanBeDone()) return;
  controls_.Check1->setChecked(false);
  accept();
}

}  // namespace tavrel
