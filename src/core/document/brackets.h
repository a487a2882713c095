#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace tavrel {

/// Goes through the "<" and ">" of a text in their order.
class BracketWalker {
 public:
  /// The text must outlive the walker.
  explicit BracketWalker(std::string_view text);

  /// Whether publishing makes links of them: the first is "<", and there is a ">". Else it leaves all as they
  /// are.
  bool AreLinks() const { return are_links_; }

  /// Where the next one stands; kNotFound behind the last.
  std::size_t Next();

 private:
  std::string_view text_;
  std::size_t opening_;
  std::size_t closing_;
  bool are_links_;
};

/// A link in a text: "<words>".
struct InlineLink {
  std::size_t Position;    ///< of the "<"
  std::size_t Length;      ///< up to the ">" and with it; 1 if there is none
  std::string_view Words;  ///< between the brackets
  bool IsClosed;           ///< a ">" comes before the next "<"
};

/// What publishing makes of the brackets of a text.
struct Brackets {
  std::size_t First = std::string_view::npos;  ///< where the first one stands
  bool AreLinks = false;                       ///< else they are published as they stand
  std::vector<InlineLink> Links;               ///< the k-th takes the page's k-th link
  std::vector<std::size_t> LoneClosings;       ///< positions of each ">" that closes nothing
};

Brackets BracketsOf(std::string_view text);

}  // namespace tavrel
