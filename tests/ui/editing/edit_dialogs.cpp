#include "ui/editing/edit_dialogs.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>

namespace tavrel::test {

void EditDialogsTest::Play(const QString& menu_item, const QString& dialog, const Robot::Step& step) {
  Player.Expect(dialog, step);
  Choose(menu_item);
  EXPECT_EQ(Player.StepsLeft(), 0) << dialog.toStdString() << " did not open";
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

void EditDialogsTest::SearchFor(const QString& text, bool match_case) {
  Play("EditSearch", "FindForm", [&](QWidget& dialog) {
    SetTicked(dialog, "Check1", match_case);
    TypeInto(dialog, "Text1", text);
    Click(dialog, "Command1");
    EXPECT_FALSE(dialog.isVisible());
  });
}

void EditDialogsTest::Replace(const QString& text, const QString& replacement, bool match_case) {
  Play("EditReplace", "ReplaceForm", [&](QWidget& dialog) {
    SetTicked(dialog, "Check1", match_case);
    TypeInto(dialog, "Text1", text);
    TypeInto(dialog, "Text2", replacement);
    Click(dialog, "Command1");
    EXPECT_FALSE(dialog.isVisible());
  });
}

void EditDialogsTest::RunBlock(const QString& dialog_name, const QStringList& numbers) {
  Play("Edit" + dialog_name, dialog_name, [&](QWidget& dialog) {
    TypeNumbers(dialog, numbers);
    Click(dialog, "Command2");
    EXPECT_FALSE(dialog.isVisible());
  });
}

void EditDialogsTest::ExpectCurrentPage(int page) {
  EXPECT_EQ(State.CurrentPage, page);
  EXPECT_EQ(PagesGrid().Row(), page);
}

void Dismiss(QWidget& dialog, Dismissal way, const QString& cancel) {
  switch (way) {
    case Dismissal::Cancel:
      Click(dialog, cancel);
      break;
    case Dismissal::Escape:
      PressKey(dialog.focusWidget() != nullptr ? *dialog.focusWidget() : dialog, Qt::Key_Escape);
      break;
    case Dismissal::Frame:
      dialog.close();
      break;
  }
  EXPECT_FALSE(dialog.isVisible());
}

void SetTicked(const QWidget& dialog, const QString& box, bool ticked) {
  auto& check = Find<QCheckBox>(dialog, box);
  if (check.isChecked() != ticked) {
    check.setFocus();
    PressKey(check, Qt::Key_Space);
  }
  EXPECT_EQ(check.isChecked(), ticked);
}

void TypeNumbers(const QWidget& dialog, const QStringList& numbers) {
  int field = 0;
  for (const QString& number : numbers) TypeInto(dialog, QString("Text%1").arg(++field), number);
}

QStringList ShownNumbers(const QWidget& dialog) {
  QStringList numbers;
  for (int field = 1; field <= 3; ++field) {
    const auto* box = dialog.findChild<LineField*>(QString("Text%1").arg(field));
    if (box != nullptr) numbers << box->text();
  }
  return numbers;
}

QString Caption(const QWidget& window, const QString& name) {
  if (const auto* label = window.findChild<QLabel*>(name)) return label->text();
  return Find<QAbstractButton>(window, name).text();
}

}  // namespace tavrel::test
