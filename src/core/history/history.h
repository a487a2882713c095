#pragma once

#include <cstddef>
#include <deque>
#include <string>
#include <vector>

#include "core/document/global.h"

namespace tavrel {

/// Where somebody is writing.
struct Place {
  int Page = 1;       ///< the page in the editor
  int Link = 1;       ///< the row of the links grid that the entry fields hold
  std::string Field;  ///< the name of the field with the caret
  int Anchor = 0;     ///< the character, from 0, at which the selection began
  int Caret = 0;      ///< the character, from 0, in front of which the caret stands
  int Row = 1;        ///< the row of the links grid that is selected; 0: none
};

/// The pages and music links at a moment. It shares their bytes with the document.
struct Records {
  decltype(Global::Pages) Pages;
  decltype(Global::MusicLinks) MusicLinks;
};

/// Makes records those of the document.
void Follow(const Global& global, Records& records);

/// One record that a step has changed.
struct Change {
  int Number;
  Record Before;
  Record After;
};

/// What one command did to the document.
struct Step {
  std::string Name;
  std::vector<Change> Pages;
  std::vector<Change> MusicLinks;
  Place Before;
  Place After;
  std::size_t Showing = 0;  ///< of a page that was stored and stayed in the fields: which showing of it
  std::size_t Bytes = 0;    ///< what the history counts for it

  bool IsEmpty() const { return Pages.empty() && MusicLinks.empty(); }
};

/// What has changed since a moment, as a step without a name and places.
Step Difference(const Records& before, const Global& now);

/// The steps that have been made to the document, and those that have been taken back.
class History {
 public:
  static constexpr std::size_t kMostBytes = 64U << 20U;

  /// Forgets all steps. The document is as it was saved.
  void Start();

  /// Takes in a step that has been made. Those taken back are forgotten, and so are the oldest while all
  /// together keep more than kMostBytes, but never the newest.
  void Add(Step step);

  /// Takes in a step that Redo would make next, in place of those taken back.
  const Step& AddUndone(Step step);

  /// Takes in a change that is no step, as when a page that nobody has touched is stored in another order. It
  /// goes with the last step, or else with the next one.
  void Amend(const Change& change);

  /// The document has been saved as it stands.
  void MarkSaved() { saved_ = static_cast<std::ptrdiff_t>(done_); }
  bool IsSaved() const { return saved_ == static_cast<std::ptrdiff_t>(done_); }

  /// The steps that Undo and Redo would take; null if there are none.
  const Step* NextUndo() const { return StepBack(0); }
  const Step* NextRedo() const { return done_ == steps_.size() ? nullptr : &steps_[done_]; }
  /// The step that Undo would take after `count` others; null if there are not so many.
  const Step* StepBack(std::size_t count) const;

  /// Takes back the last step; there must be one.
  const Step& Undo(Global& global);
  /// Makes again the step taken back last; there must be one.
  const Step& Redo(Global& global);

 private:
  void LetUndoneStepsBeginWith(const Change& change);
  void ForgetUndone();
  void ForgetOldest();

  std::deque<Step> steps_;
  std::vector<Change> head_;  ///< what has changed before the first step
  std::size_t done_ = 0;      ///< so many steps are not taken back
  /// So many were done when the document was saved; negative: that cannot be reached.
  std::ptrdiff_t saved_ = 0;
  std::size_t bytes_ = 0;
};

}  // namespace tavrel
