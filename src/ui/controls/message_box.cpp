#include "ui/controls/message_box.h"

#include <QCoreApplication>
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

QString Translated(const std::string& text) {
  return QCoreApplication::translate("Messages", text.c_str());
}

QString TranslatedText(const Message& message) {
  if (message.Pattern.empty()) return Translated(message.Text);
  const QString pattern = Translated(message.Pattern);
  const auto argument = [&](std::size_t i) { return QString::fromStdString(message.Arguments.at(i)); };
  return message.Arguments.size() == 1 ? pattern.arg(argument(0)) : pattern.arg(argument(0), argument(1));
}

}  // namespace

bool MessageBoxes::Show(QWidget* parent, const Message& message) {
  QMessageBox box(parent);
  box.setObjectName("MessageBox");
  box.setTextFormat(Qt::PlainText);
  box.setText(TranslatedText(message).replace("\r\n", "\n"));
  box.setWindowTitle(Translated(message.Title));
  box.setIcon(BoxIcon(message.Icon));
  const bool asks = message.Buttons == Buttons::OkCancel;
  box.setStandardButtons(asks ? QMessageBox::Ok | QMessageBox::Cancel : QMessageBox::Ok);
  box.setDefaultButton(QMessageBox::Ok);
  return box.exec() == QMessageBox::Ok;
}

}  // namespace tavrel
