#pragma once

#include <memory>

#include "ui/editing/block_question.h"

namespace Ui {
class BlockDelete;
}

namespace tavrel {

/// Asks which pages to delete.
class BlockDelete : public BlockQuestion {
  Q_OBJECT

 public:
  BlockDelete(App& app, QWidget* parent);
  ~BlockDelete() override;

  /// The numbers as typed.
  int Start() const { return Number1(); }
  int End() const { return Number2(); }

 protected:
  bool CanBeDone() const override;

 private:
  std::unique_ptr<Ui::BlockDelete> ui_;
};

}  // namespace tavrel
