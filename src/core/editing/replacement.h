#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace tavrel {

/// Looks for the same text in many others.
using Searcher = std::boyer_moore_horspool_searcher<std::string_view::const_iterator>;

/// The place of the searcher's text from `from` on; the text's size if there is none.
std::size_t PositionIn(std::string_view text, std::size_t from, const Searcher& searcher);

/// One text in which all matches are being replaced, in one pass from front to end. The text is searched in
/// its folded form, in which capitals may have become small letters, and replaced in its own. All parts must
/// outlive the pass.
class Replacement {
 public:
  Replacement(std::string_view text, std::string_view folded, std::string_view wanted,
              std::string_view replacement, const Searcher& searcher);

  std::string Run();

 private:
  bool FindNext();
  bool IsMatchHere() const;
  bool IsWithinLimits() const;
  void ReplaceMatch();
  void Drop(std::size_t count);
  void Pass(std::size_t count);

  std::string_view text_;
  std::string_view folded_;
  std::string_view wanted_;
  std::string_view replacement_;
  const Searcher& searcher_;
  std::string done_;    ///< what no later match can change
  std::string ahead_;   ///< ends of replacements that are searched next, their last character first
  std::size_t at_ = 0;  ///< where the text goes on behind them
};

}  // namespace tavrel
