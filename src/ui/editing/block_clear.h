#pragma once

#include <memory>

#include "ui/controls/dialog.h"

namespace Ui {
class BlockClear;
}

namespace tavrel {

/// Empties a range of pages. Bad numbers keep it open.
class BlockClear : public Dialog {
  Q_OBJECT

 public:
  BlockClear(App& app, QWidget* parent);
  ~BlockClear() override;

  /// Begins with the first number.
  int exec() override;

 public slots:
  void Command1_Click();
  void Command2_Click();

 private:
  std::unique_ptr<Ui::BlockClear> ui_;
};

}  // namespace tavrel
