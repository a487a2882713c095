#include "ui/controls/dialog.h"

#include <QKeyEvent>
#include <QLayout>
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
}

void Dialog::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  KeepRoomForText();
}

void Dialog::showEvent(QShowEvent* event) {
  KeepRoomForText();
  QDialog::showEvent(event);
}

void Dialog::KeepRoomForText() {
  const QSize least = layout()->totalMinimumSize();
  const int tall = layout()->hasHeightForWidth() ? layout()->minimumHeightForWidth(width()) : 0;
  setMinimumSize(least.width(), std::max(least.height(), tall));
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
