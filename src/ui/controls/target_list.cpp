#include "ui/controls/target_list.h"

#include <QStringListModel>
#include <QWheelEvent>

#include "ui/controls/line_field.h"

namespace tavrel {

TargetList::TargetList(QWidget* parent)
    : QComboBox(parent), field_(new LineField(this)), items_(new QStringListModel(this)) {
  setLineEdit(field_);
  setModel(items_);
  setInsertPolicy(QComboBox::NoInsert);
  setCompleter(nullptr);
  setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
}

void TargetList::SetCodePage(const CodePage& code_page) {
  field_->SetCodePage(code_page);
}

void TargetList::SetItems(const QStringList& items) {
  const QString typed = currentText();
  items_->setStringList(items);
  setCurrentIndex(-1);
  setEditText(typed);
}

QStringList TargetList::Items() const {
  return items_->stringList();
}

std::string TargetList::Bytes() const {
  return field_->Bytes();
}

void TargetList::SetBytes(std::string_view bytes) {
  setCurrentIndex(-1);
  field_->SetBytes(bytes);
}

void TargetList::wheelEvent(QWheelEvent* event) {
  event->ignore();
}

}  // namespace tavrel
