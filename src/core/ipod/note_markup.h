#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// What goes out of a note before its links are looked for.
namespace tavrel {

/// What was done to a text, one replacement after the other.
class Replacements {
 public:
  void Add(std::size_t at, std::size_t removed, std::size_t added) { done_.push_back({at, removed, added}); }

  /// Where a byte of the text stood before anything was done to it.
  std::size_t Undone(std::size_t place) const;

 private:
  struct Replacement {
    std::size_t At;
    std::size_t Removed;
    std::size_t Added;
  };
  std::vector<Replacement> done_;
};

/// Replaces every `wanted` that stands in a text, from left to right.
void ReplaceAll(std::string& text, std::string_view wanted, std::string_view replacement,
                Replacements& replacements);

/// Cuts the title element out of a note and gives it; nothing if there is none.
std::string CutTitle(std::string& note, Replacements& replacements);

/// Makes line ends of the markup for them, and takes out what only frames a text.
void ConvertMarkup(std::string& note, Replacements& replacements);

/// Cuts the first meta element out of a note.
void CutMeta(std::string& note, Replacements& replacements);

}  // namespace tavrel
