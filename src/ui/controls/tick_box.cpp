#include "ui/controls/tick_box.h"

namespace tavrel {

TickBox::TickBox(QWidget* parent) : QCheckBox(parent) {}

int TickBox::Value() const {
  switch (checkState()) {
    case Qt::Checked:
      return 1;
    case Qt::PartiallyChecked:
      return 2;
    case Qt::Unchecked:
      break;
  }
  return 0;
}

void TickBox::SetValue(int value) {
  constexpr int kOn = 1;
  constexpr int kGreyed = 2;
  setCheckState(value == kOn ? Qt::Checked : value == kGreyed ? Qt::PartiallyChecked : Qt::Unchecked);
}

void TickBox::nextCheckState() {
  setCheckState(checkState() == Qt::Unchecked ? Qt::Checked : Qt::Unchecked);
}

}  // namespace tavrel
