#pragma once

#include <string>
#include <string_view>

#include "core/editing/text_search.h"

namespace tavrel {

/// One text in which all matches are being replaced, in one pass from front to end. All parts must outlive
/// the pass.
class Replacement {
 public:
  /// The text may become up to `room` characters longer before the replacing stops.
  Replacement(std::string_view text, const TextSearch& search, std::string_view replacement,
              std::size_t room);

  std::string Run();

 private:
  bool PassNextMatch();
  bool PassNextMatchInText();
  bool IsWithinLimits() const;
  void ReplaceMatch();
  void Pass(std::size_t count);
  void PassToCandidate();

  std::string_view text_;
  const TextSearch& search_;
  std::string_view wanted_;
  std::string_view replacement_;
  std::size_t most_length_;
  std::size_t plain_;   ///< so much of the replacement is not searched or cannot begin a match
  std::string done_;    ///< what was searched and, at its end, may be a match
  std::string ahead_;   ///< ends of replacements that are searched next, their last character first
  std::size_t at_ = 0;  ///< where the text goes on behind them
};

}  // namespace tavrel
