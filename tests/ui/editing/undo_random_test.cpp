// Random walks with keys and clicks, and back. TAVREL_UNDO_WALKS: how many; 8 if it is not given.
// TAVREL_SEED: where they start, as a run that failed has printed it; 1 if it is not given.

#include <QAction>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <random>
#include <vector>

#include "core/document/page_record.h"
#include "ui/editing/undo_test.h"

namespace tavrel::test {
namespace {

constexpr int kActs = 60;         // of one walk
constexpr int kActsBetween = 20;  // two ways back
constexpr int kMostSteps = 400;   // more than one walk can leave

unsigned long Given(const char* variable, unsigned long usual) {
  const char* given = std::getenv(variable);
  return given == nullptr ? usual : std::strtoul(given, nullptr, 10);
}

class UndoRandomTest : public UndoTest {
 protected:
  void Walk(unsigned long seed) {
    random_.seed(seed);
    if (State.IsDocumentOpen()) Choose("FileClose");
    // Among the pages is one that the editor would write otherwise.
    OpenDocument("Walk.dat", std::string(kWorld) + " 4 ,<text>four words </text><title> F </title>\r\n");
    first_ = Document();
    past_ = {Canonical()};
    for (int act = 1; act <= kActs && !HasFailure(); ++act) {
      Act();
      if (act % kActsBetween == 0) GoBackAndForth();
    }
  }

 private:
  using Acts = std::vector<std::function<void()>>;

  int Below(int end) { return std::uniform_int_distribution(0, end - 1)(random_); }
  int Between(int first, int last) { return std::uniform_int_distribution(first, last)(random_); }

  template <typename Choice>
  const Choice& Any(const std::vector<Choice>& choices) {
    return choices[static_cast<std::size_t>(Below(static_cast<int>(choices.size())))];
  }

  void Act() {
    const int kind = Below(10);
    if (kind < 3) {
      Type();
    } else if (kind < 5) {
      ClickSomewhere();
    } else if (kind < 8) {
      Command();
    } else if (kind < 9) {
      StepBack();
    } else {
      PressRedo();
    }
    NoteState();
  }

  void Type() {
    const std::string field =
        Any<std::string>({"Text1", "Text3", "Text4", "Text5", "Combo1", "Text6", "Combo2"});
    QString text = Any<QString>({"", "a", "words", "x\ny", "3"});
    if (field == "Combo1") text = Any<QString>({"", "2", "005", "m1"});
    if (field == "Combo2") text = Any<QString>({"", "M1", "m3"});
    TypeInto(Window(), QString::fromStdString(field), text);
  }

  void ClickSomewhere() {
    switch (Below(4)) {
      case 0:
        ClickRow(LinksGrid(), Between(1, 4));
        break;
      case 1:
        Click(Any<QWidget*>({&Title(), &Note(), &LinkText(), Body().viewport()}));
        break;
      default:
        Show(Any<int>({1, 2, 3, 4, 5, 998, 999}));
    }
  }

  static void Click(QWidget* widget) { test::Click(*widget); }

  void Command() {
    if (Below(6) == 0) {
      Dialog();
    } else if (Below(3) == 0) {
      Find<QAction>(Window(), Any<QString>({"EditInsert", "EditClear", "EditDeleteText", "FileSave"}))
          .trigger();
    } else {
      ClickButton(Any<QString>({"Image5", "Image7", "Image8", "Image9", "Image10", "Image13", "Image14",
                                "Image15", "Image16", "Image17", "Image18"}));
    }
  }

  void Dialog() {
    const auto number = [this] { return QString::number(Between(1, 6)); };
    switch (Below(5)) {
      case 0:
        // Never one of its own targets.
        Answer("EditBlockCopy", "BlockCopy", {number(), number(), "7"}, "Command2");
        break;
      case 1:
        Answer("EditBlockClear", "BlockClear", {number(), number()}, "Command2");
        break;
      case 2:
        Answer("EditBlockDelete", "BlockDelete", {number(), number()}, "Command2");
        break;
      case 3:
        Answer("EditBlockInsert", "BlockInsert", {number(), number()}, "Command2");
        break;
      default:
        Answer("EditReplace", "ReplaceForm", {Any<QString>({"words", "a", "Two"}), Any<QString>({"", "b c"})},
               "Command1");
    }
  }

  /// The document with every page as the editor writes it. That it does so when somebody has looked at a page
  /// is no step.
  std::string Canonical() {
    const auto pages = State.Pages;
    for (Record& page : State.Pages) {
      if (!page.empty()) page = BuildPage(ReadPage(page), Application.CodePageInUse());
    }
    std::string document = Document();
    State.Pages = pages;
    return document;
  }

  /// Afterwards only those states count as past that must lie behind.
  void StepBack() {
    const bool may_jump = Window().Now().Typed != State.Page(State.CurrentPage);
    const std::string before = Document();
    PressUndo();
    if (Document() == before) return;
    const auto found = std::find(past_.rbegin(), past_.rend(), Canonical());
    if (found != past_.rend()) {
      past_.erase(found.base(), past_.end());
    } else if (may_jump) {
      past_.resize(1);
    } else {
      past_.pop_back();
    }
  }

  void NoteState() {
    if (Canonical() != past_.back()) past_.push_back(Canonical());
  }

  /// Undoes everything, which leads past all states that were seen, in their order, to the first; and makes
  /// it again, which leads past the same.
  void GoBackAndForth() {
    Show(State.CurrentPage);  // stores what is typed
    NoteState();
    const std::string last = Document();
    std::vector<std::string> passed{last};
    std::vector<std::string> canonical{Canonical()};
    while (CanUndo() && passed.size() < kMostSteps) {
      PressInGrid(Qt::Key_Z);
      EXPECT_NE(Document(), passed.back()) << "a step that changes nothing";
      passed.push_back(Document());
      canonical.push_back(Canonical());
    }
    EXPECT_EQ(passed.back(), first_);
    ExpectPassed(canonical);
    for (std::size_t state = passed.size() - 1; state-- > 0;) {
      PressInGrid(Qt::Key_Y);
      EXPECT_EQ(Document(), passed[state]);
    }
    EXPECT_EQ(Document(), last);
  }

  void ExpectPassed(const std::vector<std::string>& passed) {
    auto at = passed.begin();
    for (auto state = past_.rbegin(); state != past_.rend(); ++state) {
      at = std::find(at, passed.end(), *state);
      ASSERT_NE(at, passed.end()) << "this state does not come back:\n" << *state;
    }
  }

  bool CanUndo() { return Application.Steps.UndoName(State, Window().Now()).has_value(); }

  void PressInGrid(Qt::Key key) {
    PagesGrid().setFocus();
    PressKey(PagesGrid(), key, Qt::ControlModifier);
  }

  std::mt19937 random_;
  std::string first_;
  std::vector<std::string> past_;  ///< what undoing everything must lead past, the first state first
};

TEST_F(UndoRandomTest, UndoLeadsBackToTheFirstStateAndRedoToTheLast) {
  const unsigned long seed = Given("TAVREL_SEED", 1);
  const unsigned long walks = Given("TAVREL_UNDO_WALKS", 8);
  for (unsigned long walk = 0; walk < walks && !HasFailure(); ++walk) {
    SCOPED_TRACE("TAVREL_SEED=" + std::to_string(seed + walk) + " TAVREL_UNDO_WALKS=1");
    Walk(seed + walk);
  }
  EXPECT_TRUE(Program.Failures.empty());
}

}  // namespace
}  // namespace tavrel::test
