#pragma once

#include <memory>

#include "ui/controls/dialog.h"

namespace Ui {
class BlockCopy;
}

namespace tavrel {

/// Copies a range of pages over others. Bad numbers keep it open.
class BlockCopy : public Dialog {
  Q_OBJECT

 public:
  BlockCopy(App& app, QWidget* parent);
  ~BlockCopy() override;

  /// Begins with the first number.
  int exec() override;

 public slots:
  void Command1_Click();
  void Command2_Click();

 private:
  std::unique_ptr<Ui::BlockCopy> ui_;
};

}  // namespace tavrel
