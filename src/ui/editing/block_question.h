#pragma once

#include "ui/controls/dialog.h"

class QCheckBox;
class QPushButton;

namespace tavrel {

class LineField;

/// What the dialogs before a block delete and a block insert have in common: two numbers. Bad ones keep the
/// dialog open. The result lies in a check box that nobody sees, ticked if nothing is to be done.
class BlockQuestion : public Dialog {
  Q_OBJECT

 public:
  using Dialog::Dialog;

  /// Offers the numbers 1 and 2 and waits.
  void Ask();

  bool IsCancelled() const;

 public slots:
  void Command1_Click();
  void Command2_Click();

 protected:
  struct Controls {
    LineField* Text1 = nullptr;
    LineField* Text2 = nullptr;
    QCheckBox* Check1 = nullptr;
    QPushButton* Command1 = nullptr;
    QPushButton* Command2 = nullptr;
  };

  /// To be called once the form's controls exist.
  void UseControls(const Controls& controls);

  /// The numbers as typed.
  int Number1() const;
  int Number2() const;

  virtual bool CanBeDone() const = 0;

 private:
  Controls controls_;
};

}  // namespace tavrel
