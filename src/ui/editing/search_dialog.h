#pragma once

#include "ui/controls/dialog.h"

class QCheckBox;
class QPushButton;

namespace tavrel {

class LineField;

/// What Find and Replace have in common: a text to look for and whether case matters. The result lies in a
/// check box that nobody sees, ticked if the search is not wanted.
class SearchDialog : public Dialog {
  Q_OBJECT

 public:
  using Dialog::Dialog;

  /// Offers the text last searched for and waits.
  void Ask();

  bool IsCancelled() const;
  bool IsCaseMatched() const;

 public slots:
  void Command1_Click();
  void Command2_Click();

  /// Cancel, Esc and the window's frame.
  void reject() override;

 protected:
  struct Controls {
    LineField* Text1 = nullptr;
    QCheckBox* Check1 = nullptr;
    QCheckBox* Check2 = nullptr;
    QPushButton* Command1 = nullptr;
    QPushButton* Command2 = nullptr;
  };

  /// To be called once the form's controls exist.
  void UseControls(const Controls& controls);

 private:
  Controls controls_;
};

}  // namespace tavrel
