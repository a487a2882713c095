#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/history/document_copy.h"

namespace tavrel::test {

/// What the editor shows and somebody has typed there.
struct Typing {
  int Page = 1;
  std::string Typed;  ///< the page with all that is typed on it
  std::size_t Showing = 0;
  std::optional<std::string> Rewritten;  ///< what storing the page changes it to if nothing is typed on it
  std::string AtFirst;                   ///< what storing would have made of it when it was shown
  std::string RecordAtFirst;             ///< the page then
};

/// The rules of undo, over whole copies of the document before and after each step.
class LiteralHistory {
 public:
  explicit LiteralHistory(const DocumentCopy& document) : now_(document), states_{document} {}

  /// A command has run. What had been typed before it and is no longer in the fields, or what it has stored
  /// of the page that is still in them, is a step of its own. If all that it did was to rewrite a page on
  /// which nothing was typed, that goes with the last step, or else with the next one.
  /// `with_redo` is the page as the field's own redo would have made it. If the command has made no step but
  /// shown a page anew, that becomes one that is taken back, where no other can be made again.
  void AddCommand(const std::string& name, const Typing& before, const DocumentCopy& after,
                  const Typing& shown, const std::optional<std::string>& with_redo = {});
  void MarkSaved() { saved_ = done_; }

  /// The names of the steps taken, and the pages to show; nothing if there is none to take.
  struct Taken {
    std::string Name;
    int Page;
  };
  std::optional<Taken> Undo(const Typing& shown, const std::string& with_redo);
  std::optional<Taken> Redo(const Typing& shown);

  const DocumentCopy& Document() const { return now_; }
  bool IsSaved() const { return saved_ == done_; }
  std::size_t Done() const { return done_; }
  std::size_t Steps() const { return steps_.size(); }

 private:
  /// Leads from the state with its own number to the next.
  struct Step {
    std::string Name;
    int PageBefore;
    int PageAfter;
    std::size_t Showing;  ///< that a page was stored in which stayed shown; 0 for all other steps
  };

  void Add(Step step, DocumentCopy after);
  void AddEdit(const Typing& before, const std::string& stored, std::size_t showing);
  bool IsTyped(const Typing& shown) const { return Document().Page(shown.Page) != shown.Typed; }
  void AddSteps(const std::string& name, const Typing& before, const DocumentCopy& after,
                const Typing& shown);
  void AddUndone(const Typing& before, const std::string& with_redo);
  void Rewrite(const Typing& before);
  std::size_t StoringsSince(const Typing& shown) const;
  void TakeBack();

  DocumentCopy now_;
  std::vector<DocumentCopy> states_;
  std::vector<Step> steps_;
  std::size_t done_ = 0;
  std::optional<std::size_t> saved_ = 0;
};

}  // namespace tavrel::test
