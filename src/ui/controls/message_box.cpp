#include "ui/controls/message_box.h"

#include <QMessageBox>

namespace tavrel {
namespace {

QMessageBox::Icon BoxIcon(Icon icon) {
  switch (icon) {
    case Icon::Information:
      return QMessageBox::Information;
    case Icon::Question:
      return QMessageBox::Question;
    case Icon::Exclamation:
      return QMessageBox::Warning;
    case Icon::Critical:
      return QMessageBox::Critical;
    case Icon::None:
      break;
  }
  return QMessageBox::NoIcon;
}

}  // namespace

bool MessageBoxes::Show(QWidget* parent, const Message& message) {
  QMessageBox box(parent);
  box.setObjectName("MessageBox");
  box.setTextFormat(Qt::PlainText);
  box.setText(QString::fromStdString(message.Text).replace("\r\n", "\n"));
  box.setWindowTitle(QString::fromStdString(message.Title));
  box.setIcon(BoxIcon(message.Icon));
  const bool asks = message.Buttons == Buttons::OkCancel;
  box.setStandardButtons(asks ? QMessageBox::Ok | QMessageBox::Cancel : QMessageBox::Ok);
  box.setDefaultButton(QMessageBox::Ok);
  return box.exec() == QMessageBox::Ok;
}

}  // namespace tavrel
