#include "monkey/player.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QKeyEvent>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

#include <utility>

#include "monkey/stage.h"
#include "ui/controls/dated_file_list.h"
#include "ui/controls/grid.h"
#include "ui/controls/line_field.h"
#include "ui/controls/picture_button.h"

namespace tavrel::test {
namespace {

std::string NameOf(const QObject& object) {
  return object.objectName().toStdString();
}

bool IsEnter(const QEvent& event) {
  const int key = static_cast<const QKeyEvent&>(event).key();
  return key == Qt::Key_Return || key == Qt::Key_Enter;
}

}  // namespace

Player::Player(Dice& dice, tavrel::test::Record& record) : dice_(dice), record_(record) {
  qApp->installEventFilter(this);
}

Player::~Player() {
  qApp->removeEventFilter(this);
}

void Player::Watch(Main& window) {
  for (const QAction* item : window.findChildren<QAction*>()) {
    connect(item, &QAction::triggered, this,
            [this, item] { Record({.What = Event::Kind::Command, .Control = NameOf(*item)}); });
  }
  const auto watch_button = [this](const QAbstractButton* button) {
    connect(button, &QAbstractButton::clicked, this,
            [this, button] { Record({.What = Event::Kind::Command, .Control = NameOf(*button)}); });
  };
  for (const PictureButton* button : window.findChildren<PictureButton*>()) watch_button(button);
  watch_button(window.findChild<QToolButton*>("Command4"));
  for (const Grid* grid : window.findChildren<Grid*>()) {
    connect(grid, &Grid::Click, this, [this, grid](int row) {
      Record({.What = Event::Kind::GridClick, .Window = "Main", .Control = NameOf(*grid), .Number = row});
    });
  }
  connect(&window, &Main::Closed, this, [this] {
    Record({.What = Event::Kind::Ended});
    record_.IsOver = true;
  });
}

bool Player::eventFilter(QObject* watched, QEvent* event) {
  auto* widget = qobject_cast<QWidget*>(watched);
  if (widget == nullptr) return false;
  if (event->type() == QEvent::Show && widget->isWindow()) {
    if (auto* dialog = qobject_cast<QDialog*>(widget)) {
      Hook(*dialog);
      Record({.What = Event::Kind::Shown, .Window = NameOf(*dialog)});
      if (dialog->isModal()) {
        QMetaObject::invokeMethod(
            this, [this, shown = QPointer<QWidget>(dialog)] { Play(shown); }, Qt::QueuedConnection);
      }
    } else if (widget->windowType() == Qt::Popup && !LeavesPopups) {
      QMetaObject::invokeMethod(
          this, [this, shown = QPointer<QWidget>(widget)] { PlayPopup(shown); }, Qt::QueuedConnection);
    }
  } else if (event->type() == QEvent::KeyPress && IsEnter(*event)) {
    const bool is_field = qobject_cast<LineField*>(widget) != nullptr;
    if (is_field && qobject_cast<QDialog*>(widget->window()) != nullptr)
      RecordPress(*widget->window(), "Enter:" + widget->objectName());
  } else if (event->type() == QEvent::MouseButtonDblClick) {
    auto* list = qobject_cast<DatedFileList*>(widget->parentWidget());
    const auto* click = static_cast<const QMouseEvent*>(event);
    if (list != nullptr && list->viewport() == widget && list->itemAt(click->position().toPoint()) != nullptr)
      RecordPress(*list->window(), "Twice:" + list->objectName());
  }
  return false;
}

void Player::Hook(QWidget& dialog) {
  if (dialog.property("is_watched").toBool()) return;
  dialog.setProperty("is_watched", true);
  for (const QPushButton* button : dialog.findChildren<QPushButton*>()) {
    // Before what the button does.
    connect(button, &QPushButton::released, this,
            [this, &dialog, button] { RecordPress(dialog, button->objectName()); });
  }
  for (const Grid* grid : dialog.findChildren<Grid*>()) {
    connect(grid, &Grid::Click, this, [this, &dialog, grid](int row) {
      Record({.What = Event::Kind::GridClick,
              .Window = NameOf(dialog),
              .Control = NameOf(*grid),
              .Number = row});
    });
  }
  connect(qobject_cast<QDialog*>(&dialog), &QDialog::finished, this, [this, &dialog](int result) {
    Record({.What = Event::Kind::Closed,
            .Window = NameOf(dialog),
            .Values = ValuesIn(dialog),
            .Number = result});
  });
}

void Player::Record(Event event) {
  if (!record_.IsOver) record_.Events.push_back(std::move(event));
}

void Player::RecordPress(QWidget& window, const QString& control) {
  Record({.What = Event::Kind::Pressed,
          .Window = NameOf(window),
          .Control = control.toStdString(),
          .Values = ValuesIn(window)});
}

void Player::Play(QWidget* dialog) {
  if (dialog == nullptr || !dialog->isVisible()) return;
  const QPointer<QWidget> shown(dialog);
  ++Dialogs;
  Activate(*dialog);
  const bool is_box = dialog->objectName() == "MessageBox";
  int left = is_box ? dice_.Below(2) : dice_.Between(0, 7);
  const auto is_open = [&] { return shown != nullptr && shown->isVisible(); };
  for (; left > 0 && is_open() && !record_.IsOver; --left) {
    Poke(*dialog);
    QCoreApplication::processEvents();
  }
  if (is_open() && !record_.IsOver && !dice_.OneIn(4)) PressDoing(*dialog);
  if (is_open()) Close(*dialog);
}

void Player::PressDoing(QWidget& dialog) {
  std::vector<QPushButton*> buttons;
  for (QPushButton* button : dialog.findChildren<QPushButton*>()) {
    if (button->isVisible() && button->isEnabled()) buttons.push_back(button);
  }
  if (!buttons.empty()) QTest::mouseClick(dice_.AnyOf(buttons), Qt::LeftButton);
}

void Player::Close(QWidget& dialog) {
  const QPointer<QWidget> shown(&dialog);
  const auto is_open = [&] { return shown != nullptr && shown->isVisible(); };
  if (dice_.OneIn(2)) QTest::keyClick(&dialog, Qt::Key_Escape);
  if (is_open()) dialog.close();
  Expect(!is_open(), "the dialog can be closed");
}

void Player::PlayPopup(QWidget* popup) {
  ++Popups;
  const QPointer<QWidget> shown(popup);
  const auto is_open = [&] { return shown != nullptr && shown->isVisible(); };
  for (int left = dice_.Between(0, 4); left > 0 && is_open(); --left) {
    const Qt::Key key = dice_.AnyOf<Qt::Key>({Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_Return});
    QWidget* focus = popup->focusWidget() != nullptr ? popup->focusWidget() : popup;
    QTest::keyClick(focus, key);
  }
  for (int left = 3; left > 0 && is_open(); --left) QTest::keyClick(popup, Qt::Key_Escape);
  if (is_open()) popup->close();
}

}  // namespace tavrel::test
