#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tavrel {

/// Takes the anchors out of a note one by one and leaves their text, in one pass however they are nested. An
/// anchor begins with the first '<a href="' that is left; the next "</a>" behind it goes with it. The note
/// must outlive the pass.
class AnchorCutter {
 public:
  explicit AnchorCutter(std::string_view note) : note_(note) { passed_.reserve(note.size()); }

  /// Takes the next anchor out and gives its target; nothing if there is none, and then the text is complete.
  /// Throws RunTimeError if the anchor has no closing quote or no "</a>".
  std::optional<std::string> CutNext();

  /// Where in the note the opening of the anchor ends that was looked at last.
  std::size_t Opening() const { return opening_; }

  /// The note without its anchors.
  std::string& Text() { return passed_; }

 private:
  bool PassThroughOpening();
  std::string TakeTarget();
  std::string TakeTargetOfNote();
  void CutClosing();
  bool PassThrough(char last);
  void ReadAhead(std::string_view part);
  std::size_t PlaceOfLastPassed() const;
  std::optional<char> Take();

  std::string_view note_;
  std::size_t at_ = 0;        ///< how far the note has been read
  std::string passed_;        ///< the text in front of the next anchor
  std::string ahead_;         ///< what was read on the way to a "</a>" and comes after `passed_`
  std::size_t ahead_at_ = 0;  ///< how much of it has been passed
  std::vector<std::pair<std::size_t, std::size_t>>
      origins_;  ///< where its parts begin, in it and in the note
  std::size_t opening_ = 0;
};

}  // namespace tavrel
