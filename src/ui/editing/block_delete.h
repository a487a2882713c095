#pragma once

#include <memory>

#include "ui/controls/dialog.h"

namespace Ui {
class BlockDelete;
}

namespace tavrel {

/// Asks which pages to delete. Bad numbers keep it open. The result lies in a check box that nobody sees,
/// ticked if nothing is to be deleted.
class BlockDelete : public Dialog {
  Q_OBJECT

 public:
  BlockDelete(App& app, QWidget* parent);
  ~BlockDelete() override;

  /// Offers pages 1 and 2 and waits.
  void Ask();

  bool IsCancelled() const;
  /// The numbers as typed.
  int Start() const;
  int End() const;

 public slots:
  void Command1_Click();
  void Command2_Click();

 private:
  std::unique_ptr<Ui::BlockDelete> ui_;
};

}  // namespace tavrel
