#include <iterator>
#include <utility>

#include "monkey/literal_page.h"
#include "monkey/model.h"

// Taking back and making again.

namespace tavrel::test {
namespace {

std::string EditName(int page) {
  return "Edit page " + std::to_string(page);
}

/// What a step is called that its command has not named.
std::string NameOfChange(const LiteralDocument& before, const LiteralDocument& after) {
  std::string name;
  for (std::size_t page = 0; page < before.Pages.size(); ++page) {
    if (before.Pages[page] == after.Pages[page]) continue;
    if (!name.empty()) return "Edit pages";
    name = EditName(static_cast<int>(page));
  }
  return name.empty() ? "Music links" : name;
}

LiteralDocument With(LiteralDocument document, std::size_t page, const std::string& record) {
  document.Pages.at(page) = record;
  return document;
}

}  // namespace

void Model::BeginCommand(const LiteralPlace& place, const std::map<std::string, std::string>& with_redo) {
  MovePlace(place);
  redone_ = with_redo.empty() ? std::nullopt : std::optional(TypedPageWith(with_redo));
  typed_ = TypedPage();
  rewritten_ = RecordOfFields();
  showing_before_ = showing_;
  step_name_.clear();
  is_name_known_ = true;
  is_saved_ = false;
  is_history_ = false;
  is_other_document_ = false;
}

void Model::MovePlace(const LiteralPlace& place) {
  place_ = place;
  place_.Page = editor_.CurrentPage;
  place_.Link = current_link_;
}

void Model::LeavePlace(LiteralPlace place_left) {
  // A link field writes its row, and the grid forgets where the keys have gone.
  if (Focus == "Text5" || Focus == "Combo1" || Focus == "MSFlexGrid1") place_left.Row = selected_link_;
  MovePlace(place_left);
}

void Model::EndCommand(const LiteralPlace& place) {
  if (!IsShown || is_other_document_) {
    steps_.Start();
    kept_ = std::make_shared<LiteralDocument>(Now());
    opened_ = kept_;
    // What the largest document needed would pass for growth.
    for (std::string& page : editor_.Pages) page.shrink_to_fit();
    return;
  }
  if (is_history_) return;
  const std::size_t steps = steps_.Done.size();
  if (IsOnlyRewritten()) {
    Amend();
  } else {
    AddSteps(place);
  }
  // A look at another page: the fields have forgotten what they had taken back.
  if (steps_.Done.size() == steps && showing_ != showing_before_ && redone_) AddUndone(*redone_);
  if (is_saved_) steps_.MarkSaved();
}

/// Whether the command has stored a page that nobody has touched, as the editor writes it.
bool Model::IsOnlyRewritten() const {
  const auto page = static_cast<std::size_t>(place_.Page);
  if (!IsRewritten() || kept_->Pages.at(page) == editor_.Pages.at(page)) return false;
  if (rewritten_.empty() && !step_name_.empty() && showing_ != showing_before_) return false;  // cleared
  LiteralDocument rewritten = *kept_;
  rewritten.Pages.at(page) = rewritten_;
  return rewritten == Now();
}

bool Model::IsRewritten() const {
  const auto page = static_cast<std::size_t>(place_.Page);
  return typed_ == kept_->Pages.at(page) && editor_.Pages.at(page) == rewritten_;
}

void Model::AddSteps(const LiteralPlace& place) {
  // What was typed before the command is a step of its own, whatever the command has done with it: thrown it
  // away with the fields, or stored all or some of it.
  const bool went_on = showing_ == showing_before_;
  AddEdit(went_on && !IsRewritten() ? Page(place_.Page) : typed_, went_on ? showing_ : 0);
  if (editor_.Pages == kept_->Pages && music_ == kept_->Music) return;
  LiteralDocument now = Now();
  LiteralStep step{.Name = step_name_, .From = place_, .To = place};
  step.To.Page = editor_.CurrentPage;
  step.To.Link = current_link_;
  if (step_name_.empty()) step.Name = NameOfChange(*kept_, now);
  if (!is_name_known_) step.Name.clear();
  AddStep(std::move(step), std::move(now));
}

/// Storing of the page on which the command began.
void Model::AddEdit(const std::string& record, int showing) {
  const auto page = static_cast<std::size_t>(place_.Page);
  if (kept_->Pages.at(page) == record) return;
  AddStep({.Name = EditName(place_.Page), .From = place_, .To = place_, .Showing = showing},
          With(*kept_, page, record));
}

void Model::AddStep(LiteralStep step, LiteralDocument after) {
  // The first step leads back to the document as it was opened, byte for byte.
  step.Before = steps_.Done.empty() ? opened_ : kept_;
  kept_ = std::make_shared<LiteralDocument>(std::move(after));
  step.After = kept_;
  steps_.Add(std::move(step));
}

/// Other steps that can be made again are worth more.
void Model::AddUndone(const std::string& redone) {
  const auto page = static_cast<std::size_t>(place_.Page);
  if (!steps_.Undone.empty() || kept_->Pages.at(page) == redone) return;
  steps_.Undone.push_back({.Name = EditName(place_.Page),
                           .Before = steps_.Done.empty() ? opened_ : kept_,
                           .After = std::make_shared<LiteralDocument>(With(*kept_, page, redone)),
                           .From = place_,
                           .To = place_});
}

/// Rewriting a page is no step. It goes with the last step, or else with the next one, and those that were
/// taken back can still be made again.
void Model::Amend() {
  const auto page = static_cast<std::size_t>(place_.Page);
  const std::string& record = editor_.Pages.at(page);
  const auto amended = [&](const LiteralDocument& document) {
    return std::make_shared<LiteralDocument>(With(document, page, record));
  };
  kept_ = amended(*kept_);
  if (!steps_.Done.empty()) steps_.Done.back().After = kept_;
  bool is_first = steps_.Done.empty();
  for (auto step = steps_.Undone.rbegin(); step != steps_.Undone.rend(); ++step) {
    const bool changes_it = step->Before->Pages.at(page) != step->After->Pages.at(page);
    if (!std::exchange(is_first, false)) step->Before = amended(*step->Before);
    if (changes_it) return;
    step->After = amended(*step->After);
  }
}

std::optional<LiteralStep> Model::Undo(const std::map<std::string, std::string>& with_redo) {
  is_history_ = true;
  if (!HasUndo()) return std::nullopt;
  const std::string typed = TypedPage();
  const std::string redone = TypedPageWith(with_redo);
  LiteralStep undone;
  bool has_gone_back = false;
  if (IsTyped()) {
    // With nothing typed since the page was stored, the fields have only gone back, all or some of them.
    has_gone_back = redone == Page(editor_.CurrentPage);
    const int storings = StoringsGoneBehind();
    if (storings == 0 && has_gone_back && !steps_.Done.empty() && steps_.Done.back().Showing == showing_) {
      undone = TakeBack();
      ShowAt(undone.From);
      return undone;
    }
    for (int left = storings; left > 0; --left) undone = TakeBack();
    if (storings == 0) AddEdit(typed, 0);
    has_gone_back = has_gone_back && storings > 0;
  }
  if (redone != typed && !has_gone_back) {
    // The fields are about to forget what they have taken back. Redo brings it all the same.
    AddEdit(redone, 0);
    undone = TakeBack();
  }
  if (!steps_.Done.empty()) undone = TakeBack();
  ShowAt(undone.From);
  return undone;
}

LiteralStep Model::TakeBack() {
  LiteralStep step = steps_.Undo();
  TakeOver(step.Before);
  return step;
}

std::optional<LiteralStep> Model::Redo(bool has_unheld_words) {
  is_history_ = true;
  if (has_unheld_words || !HasRedo()) return std::nullopt;
  LiteralStep step = steps_.Redo();
  TakeOver(step.After);
  ShowAt(step.To);
  return step;
}

std::optional<std::string> Model::UndoCaption() const {
  const std::size_t storings = IsTyped() ? static_cast<std::size_t>(StoringsGoneBehind()) : 0;
  if (IsTyped() && storings == 0) return "Undo " + EditName(editor_.CurrentPage);
  if (steps_.Done.empty()) return "Undo";
  const std::size_t steps = steps_.Done.size();
  // If there is nothing else, the last of those that the fields have gone behind is told.
  const std::string& name = steps_.Done[steps == storings ? 0 : steps - storings - 1].Name;
  return name.empty() ? std::nullopt : std::optional("Undo " + name);
}

std::optional<std::string> Model::RedoCaption() const {
  if (!HasRedo()) return "Redo";
  const std::string& name = steps_.Undone.back().Name;
  return name.empty() ? std::nullopt : std::optional("Redo " + name);
}

/// The undo of the fields knows nothing of storing. If it has gone back to what was there before the page was
/// stored, once or several times while it stood in the fields, those steps are taken back already.
int Model::StoringsGoneBehind() const {
  const auto page = static_cast<std::size_t>(editor_.CurrentPage);
  const std::string typed = TypedPage();
  int storings = 0;
  for (auto step = steps_.Done.rbegin(); step != steps_.Done.rend(); ++step) {
    if (step->Showing != showing_) return 0;
    ++storings;
    const std::string& stored = step->Before->Pages.at(page);
    if (stored == typed || (stored == record_at_first_ && at_first_ == typed)) return storings;
  }
  return 0;
}

void Model::TakeOver(std::shared_ptr<const LiteralDocument> document) {
  kept_ = std::move(document);
  editor_.Pages = kept_->Pages;
  music_ = kept_->Music;
}

void Model::ShowAt(const LiteralPlace& place) {
  editor_.CurrentPage = place.Page;
  RefreshGrid2();
  LoadPage(place.Page);
  entry_ = editor_.Fields.Links.at(static_cast<std::size_t>(place.Link) - 1);
  current_link_ = place.Link;
  selected_link_ = place.Row;
  Focus = place.Field;
}

}  // namespace tavrel::test
