#pragma once

#include <QObject>
#include <QPointer>

#include "monkey/dice.h"
#include "monkey/record.h"

class QMenu;
class QWidget;

namespace tavrel {
class Main;
}

namespace tavrel::test {

/// Sees the windows that come up, records what is pressed in them and plays at random in those that keep the
/// program waiting until they are closed.
class Player : public QObject {
  Q_OBJECT

 public:
  Player(Dice& dice, Record& record);
  ~Player() override;

  /// Records the commands of a main window.
  void Watch(Main& window);

  /// One random act in a window that stands by itself.
  void Poke(QWidget& window);

  /// Whether the menus and lists that open are closed by whoever opened them.
  bool LeavesPopups = false;

  int Dialogs = 0;
  int Popups = 0;  ///< menus and lists that it has played with

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Hook(QWidget& dialog);
  void Record(Event event);
  void RecordPress(QWidget& window, const QString& control);
  void Play(QWidget* dialog);
  void PlayPopup(QWidget* popup);
  void Close(QWidget& dialog);
  void PressDoing(QWidget& dialog);
  void PokeControl(QWidget& control);
  void PressAnyKey(QWidget& window);
  QString TextFor(const QWidget& field);

  Dice& dice_;
  tavrel::test::Record& record_;
};

/// Types a text into a field that has the focus, a character at a time.
void TypeText(QWidget& field, const QString& text);

}  // namespace tavrel::test
