#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/document/global.h"

namespace tavrel::bench {

using Edit = std::function<void(Global&)>;
using Texts = std::vector<std::string>;
using TextViews = std::vector<std::string_view>;

/// From now on freed memory is kept for reuse, so that no work pays for getting it from the system.
void KeepFreedMemory();

/// A document to edit and the pages that it gets back before each edit.
class EditedDocument {
 public:
  /// The full-size document.
  EditedDocument();

  /// The full-size document with other texts on its first pages and none behind them.
  explicit EditedDocument(const Texts& texts);

  const Global& State() const { return *state_; }

  /// The seconds that an edit takes of pages whose bytes nobody else keeps, so that none have to be copied.
  double TimeOf(const Edit& edit);

  double TimeOfCopyingPages() const;
  double TimeOfCopyingTexts() const;
  TextViews PageTexts() const;

 private:
  std::unique_ptr<Global> state_ = std::make_unique<Global>();
  decltype(Global::Pages) pages_;
};

}  // namespace tavrel::bench
