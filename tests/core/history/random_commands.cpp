#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "core/editing/blocks.h"
#include "core/editing/page_commands.h"
#include "core/editing/random_pages.h"
#include "core/editing/search.h"
#include "core/history/random_editor.h"
#include "core/planner/plan_pages.h"

// The commands of the program that change a document, each between the storing and showing of the page that
// goes with it.

namespace tavrel::test {
namespace {

/// None is replaced for ever.
const std::vector<std::pair<std::string, std::string>> kWordings = {
    {"cat", "dog"}, {"a", ""}, {"dog", "<text>x</text>"}, {"xyz", "b"}};

}  // namespace

template <typename Command>
void RandomEditor::Run(const std::string& name, const Command& command) {
  const Typing before = Now();
  const std::optional<std::string> with_redo = editor_.RedoRecord();
  done_ += (name.empty() ? "unnamed" : name) + "; ";
  editor_.Run(name, command);
  literal_.AddCommand(name.empty() ? "Edit page " + std::to_string(before.Page) : name, before,
                      DocumentCopy(editor_.State), Now(), with_redo);
}

template <typename Command>
void RandomEditor::RunStored(const std::string& name, const Command& command) {
  Run(name, [&] {
    editor_.SavePage();
    command();
    editor_.LoadPage(editor_.State.CurrentPage);
  });
}

template <typename Command>
void RandomEditor::RunDropping(const std::string& name, const Command& command) {
  Run(name, [&] {
    command();
    editor_.LoadPage(editor_.State.CurrentPage);
  });
}

void RandomEditor::RunAnyPageCommand() {
  Global& state = editor_.State;
  switch (random_() % 8) {
    case 0:
      return RunStored(NameOf("Insert"), [&] { InsertPage(state); });
    case 1:
      return RunStored(NameOf("Cut"), [&] { CutPage(state); });
    case 2:
      return Run({}, [&] {
        editor_.SavePage();
        CopyPage(state);
      });
    case 3:
      return RunDropping(NameOf("Paste"), [&] { PastePage(state); });
    case 4:
      return RunDropping(NameOf("Clear"), [&] { ClearPage(state); });
    case 5:
      return RunMovePage(-1);
    case 6:
      return RunMovePage(1);
    default:
      return RunStored({}, [&] { state.CurrentPage = static_cast<std::int16_t>(AnyPage(random_)); });
  }
}

/// Nothing happens at the ends of the document.
void RandomEditor::RunMovePage(int step) {
  Global& state = editor_.State;
  const std::string name = NameOf(step < 0 ? "Move up" : "Move down");
  if (!IsPage(state.CurrentPage + step)) return Run(name, [] {});
  RunStored(name, [&] { step < 0 ? MovePageUp(state) : MovePageDown(state); });
}

void RandomEditor::RunAnyBlockCommand() {
  Global& state = editor_.State;
  const int start = AnyPage(random_);
  const int end = std::clamp(start + Any(random_, -4, 4), 1, kLastPage);
  const PageRange pages = RangeBetween(start, end);
  const std::string name = " " + std::to_string(start) + " to " + std::to_string(end);
  const int to = AnyPage(random_);
  switch (random_() % 4) {
    case 0:
      return RunStored("Copy" + name + " to " + std::to_string(to), [&] {
        if (CanCopyPages(start, end, to)) CopyPages(state, pages, to);
      });
    case 1:
      return RunStored("Clear" + name, [&] { ClearPages(state, pages); });
    case 2:
      return RunBlockDelete(start, end);
    default:
      return RunBlockInsert(start, Any(random_, 1, 5));
  }
}

void RandomEditor::RunBlockDelete(int start, int end) {
  if (!CanDeletePages(start, end)) return;
  const PageRange pages = RangeBetween(start, end);
  RunStored("Delete " + std::to_string(start) + " to " + std::to_string(end), [&] {
    editor_.LoadPage(start);
    editor_.State.CurrentPage = static_cast<std::int16_t>(pages.First);
    editor_.SavePage();
    DeletePages(editor_.State, pages, CodePage::Windows1252());
  });
}

void RandomEditor::RunBlockInsert(int at, int count) {
  if (!CanInsertPages(at, count)) return;
  RunStored("Insert " + std::to_string(count) + " at " + std::to_string(at), [&] {
    editor_.LoadPage(at);
    editor_.SavePage();
    InsertPages(editor_.State, at, count);
  });
}

void RandomEditor::RunAnyOtherCommand() {
  Global& state = editor_.State;
  switch (random_() % 6) {
    case 0:
      return RunStored("Replace", [&] {
        const auto& [wanted, replacement] = AnyOf(random_, kWordings);
        ReplaceInPages(state, wanted, replacement, false, CodePage::Windows1252());
      });
    case 1:
      return RunInsertPlan();
    case 2:
      return Run("Music links", [&] {
        editor_.SavePage();
        for (int left = Any(random_, 0, 3); left > 0; --left)
          state.MusicLink(Any(random_, 0, 100)) = random_() % 2 == 0 ? "" : "<album>a</album>";
      });
    case 3:
      Run({}, [&] {
        editor_.SavePage();
        editor_.Steps.Saved();
      });
      return literal_.MarkSaved();
    case 4:
      // A copy under another name is saved without what is only typed.
      Run({}, [&] { editor_.Steps.Saved(); });
      return literal_.MarkSaved();
    default:
      return RunSavePage();
  }
}

void RandomEditor::RunSavePage() {
  Run({}, [this] { editor_.SavePage(); });
}

void RandomEditor::RunInsertPlan() {
  Plan plan;
  plan.TopLeft = std::to_string(random_() % 2 == 0 ? Any(random_, 1, 9) : Any(random_, 940, 950));
  plan.North = plan.South = plan.East = plan.West = "go";
  for (PlanCell& cell : plan.Cells) {
    if (random_() % 3 != 0) continue;
    cell.Text = AnyWord();
    cell.East = cell.North = kTickOn;
  }
  RunStored("Insert plan at " + plan.TopLeft, [&] { InsertPlan(plan, editor_.State); });
}

}  // namespace tavrel::test
