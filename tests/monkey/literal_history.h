#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

/// What can be taken back, by the letter: whole documents, one after another.
namespace tavrel::test {

/// All records of a document.
struct LiteralDocument {
  std::array<std::string, 1001> Pages;
  std::array<std::string, 101> Music;

  bool operator==(const LiteralDocument&) const = default;
};

/// Where somebody was writing, and what was selected.
struct LiteralPlace {
  int Page = 1;
  int Link = 1;  ///< the one in the entry fields
  int Row = 1;   ///< the one that is selected in the links grid; 0: none
  std::string Field = "Text1";
  int Anchor = 0;
  int Caret = 0;
};

struct LiteralStep {
  std::string Name;  ///< empty: nobody knows
  std::shared_ptr<const LiteralDocument> Before = {};
  std::shared_ptr<const LiteralDocument> After = {};
  LiteralPlace From = {};
  LiteralPlace To = {};
  int Showing = 0;  ///< of a page that was stored and went on standing in the fields: which showing of it
};

/// The steps of one document.
class LiteralHistory {
 public:
  void Start() { *this = {}; }
  void Add(LiteralStep step);
  void MarkSaved() { saved_ = static_cast<int>(Done.size()); }
  bool IsSaved() const { return saved_ == static_cast<int>(Done.size()); }

  LiteralStep Undo();
  LiteralStep Redo();

  /// More than what the steps keep by any way of keeping only the records that changed.
  std::size_t Bytes() const { return bytes_; }

  std::vector<LiteralStep> Done;
  std::vector<LiteralStep> Undone;  ///< the last one is the first to be made again

 private:
  int saved_ = 0;  ///< so many steps were done when it was saved; -1: no way leads there
  std::size_t bytes_ = 0;
};

}  // namespace tavrel::test
