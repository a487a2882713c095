#include "ui/controls/dialog.h"

#include <QKeyEvent>
#include <QPushButton>

#include <algorithm>

#include "ui/controls/file_list.h"
#include "ui/controls/folder_list.h"
#include "ui/controls/line_field.h"

namespace tavrel {

Dialog::Dialog(App& app, QWidget* parent) : QDialog(parent), app_(app) {}

void Dialog::PrepareControls() {
  for (QPushButton* button : findChildren<QPushButton*>()) button->setAutoDefault(false);
  for (LineField* field : findChildren<LineField*>()) field->SetCodePage(app_.CodePageInUse());
  for (FolderList* list : findChildren<FolderList*>()) list->SetPlatform(app_.System);
  for (FileList* list : findChildren<FileList*>()) list->SetPlatform(app_.System);
  // Wrapped labels need more height in larger fonts than the form gives them.
  if (hasHeightForWidth()) resize(width(), std::max(height(), heightForWidth(width())));
}

void Dialog::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  auto* button = qobject_cast<QPushButton*>(focusWidget());
  if (enter && button != nullptr) {
    button->click();
  } else {
    QDialog::keyPressEvent(event);
  }
}

}  // namespace tavrel
