#pragma once

#include <memory>

#include "ui/controls/dialog.h"

namespace Ui {
class BlockInsert;
}

namespace tavrel {

/// Asks how many blank pages to insert, and where. Bad numbers keep it open. The result lies in a check box
/// that nobody sees, ticked if nothing is to be inserted.
class BlockInsert : public Dialog {
  Q_OBJECT

 public:
  BlockInsert(App& app, QWidget* parent);
  ~BlockInsert() override;

  /// Offers two pages in front of page 1 and waits.
  void Ask();

  bool IsCancelled() const;
  /// The numbers as typed.
  int At() const;
  int Count() const;

 public slots:
  void Command1_Click();
  void Command2_Click();

 private:
  std::unique_ptr<Ui::BlockInsert> ui_;
};

}  // namespace tavrel
