#pragma once

#include <memory>

#include "ui/editing/block_question.h"

namespace Ui {
class BlockInsert;
}

namespace tavrel {

/// Asks how many blank pages to insert, and where.
class BlockInsert : public BlockQuestion {
  Q_OBJECT

 public:
  BlockInsert(App& app, QWidget* parent);
  ~BlockInsert() override;

  /// The numbers as typed.
  int At() const { return Number1(); }
  int Count() const { return Number2(); }

 protected:
  bool CanBeDone() const override;

 private:
  std::unique_ptr<Ui::BlockInsert> ui_;
};

}  // namespace tavrel
