#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QMenuBar>

#include <algorithm>

#include "ui/editing/any_answer.h"
#include "ui/editing/undo_test.h"

namespace tavrel::test {
namespace {

constexpr int kPage = 2;              // which is worked on
constexpr int kMostOfOneCommand = 6;  // that one command may leave, with what was typed before it

/// Whatever a command of the main window does to the document leaves steps. Which commands there are, the
/// window says: a menu item or a button that is added later is walked over too.
class UndoEveryCommandTest : public UndoTest {
 protected:
  using Command = std::pair<std::string, std::function<void()>>;
  using Texts = std::vector<std::string>;

  std::vector<Command> Commands() {
    std::vector<Command> commands;
    for (QAction* action : Items(*Window().menuBar()))
      commands.emplace_back(action->objectName().toStdString(), [action] { action->trigger(); });
    for (QAbstractButton* button : Window().findChildren<QAbstractButton*>()) {
      if (button->isVisible())
        commands.emplace_back(button->objectName().toStdString(), [button] { Click(*button); });
    }
    return commands;
  }

  /// Runs a command with all answers to its dialog.
  void RunWithAllAnswers(const Command& command) {
    std::size_t first = 0;
    std::size_t second = 0;
    do {
      SCOPED_TRACE(command.first + ", buttons " + std::to_string(first) + " and " + std::to_string(second));
      Run(command, first, second);
      const bool goes_on = answer_.WasLeftOpen() && second + 1 < answer_.Buttons();
      second = goes_on ? second + 1 : 0;
      if (!goes_on) ++first;
    } while (first < answer_.Buttons());
  }

  /// How many commands have changed the document and left it open.
  int changes_ = 0;
  Texts closing_;  ///< the commands that have closed the document

 private:
  /// All items of the menus, also of those in menus.
  static std::vector<QAction*> Items(const QWidget& bar) {
    std::vector<QAction*> items;
    for (QAction* action : bar.actions()) {
      if (action->menu() != nullptr) {
        const std::vector<QAction*> below = Items(*action->menu());
        items.insert(items.end(), below.begin(), below.end());
      } else if (!action->isSeparator()) {
        items.push_back(action);
      }
    }
    return items;
  }

  void Run(const Command& command, std::size_t first, std::size_t second) {
    if (!State.IsDocumentOpen()) OpenWorld();
    Prepare();
    const std::string before = Document();
    const std::string typed_page = Window().TypedPage();
    const std::size_t showing = Window().Now().Showing;
    was_closed_ = false;
    answer_.Begin(first, second);
    command.second();
    AnswerWindowsBeside();
    answer_.End();
    ActivateWindow(Window());
    was_closed_ |= !State.IsDocumentOpen();
    if (was_closed_) {
      NoteClosing(command.first);
      return;
    }
    if (Document() != before) ++changes_;
    // A command on the text alone is typing.
    const bool is_typing = Document() == before && Window().Now().Showing == showing;
    ExpectSteps(before, is_typing ? Window().TypedPage() : typed_page);
  }

  void NoteClosing(const std::string& command) {
    if (std::find(closing_.begin(), closing_.end(), command) == closing_.end()) closing_.push_back(command);
    if (State.IsDocumentOpen()) Choose("FileClose");
  }

  /// Page 2 with something typed on it that is not stored, a link among it, and a page to paste.
  void Prepare() {
    State.PageClipboard = kWorldPage3;
    QApplication::clipboard()->setText("3");
    Show(kPage);
    TypeInto(Title(), "Typed 3");
    ClickRow(LinksGrid(), 2);
    TypeInto(LinkText(), "typed 3");
    Body().Select(0, 4);
  }

  void AnswerWindowsBeside() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (window != &Window() && window->isVisible() && !qobject_cast<QMenu*>(window))
        answer_.Answer(*window);
    }
  }

  /// Takes back everything and makes it again. On the way page 2 is as it was typed.
  void ExpectSteps(const std::string& before, const std::string& typed_page) {
    // In a grid the keys never mean a field's own typing.
    PagesGrid().setFocus();
    bool typing_comes_back = Window().TypedPage() == typed_page;
    if (Window().Now().Typed != State.Page(State.CurrentPage)) {
      // What is still typed is stored by the step that takes it back.
      PressInGrid(Qt::Key_Z);
      PressInGrid(Qt::Key_Y);
    }
    Texts states{Document()};
    while (states.size() < kMostOfOneCommand && CanUndo()) {
      PressInGrid(Qt::Key_Z);
      states.push_back(Document());
      typing_comes_back |= State.Page(kPage) == typed_page;
    }
    EXPECT_EQ(states.back(), before) << "not all is taken back";
    EXPECT_FALSE(CanUndo());
    EXPECT_TRUE(typing_comes_back);
    for (std::size_t state = states.size() - 1; state-- > 0;) {
      PressInGrid(Qt::Key_Y);
      EXPECT_EQ(Document(), states[state]) << "redo";
    }
    while (CanUndo()) PressInGrid(Qt::Key_Z);
  }

  bool CanUndo() { return Application.Steps.UndoName(State, Window().Now()).has_value(); }

  void PressInGrid(Qt::Key key) {
    PagesGrid().setFocus();
    PressKey(PagesGrid(), key, Qt::ControlModifier);
  }

  AnyAnswer answer_{[this] { was_closed_ |= !State.IsDocumentOpen(); }};
  bool was_closed_ = false;
};

TEST_F(UndoEveryCommandTest, LeavesAStepForWhatItDoesToTheDocument) {
  OpenWorld();
  const std::vector<Command> commands = Commands();
  for (const Command& command : commands) {
    if (command.first == "EditUndo" || command.first == "EditRedo") continue;
    RunWithAllAnswers(command);
  }
  // The walk itself must not have come to nothing.
  EXPECT_GT(commands.size(), 60U);
  EXPECT_GT(changes_, 40);
  std::sort(closing_.begin(), closing_.end());
  EXPECT_EQ(closing_, (Texts{"FileClose", "FileNew", "FileOpen", "Image2", "Image3", "ToolsImport"}));
  EXPECT_TRUE(Program.Failures.empty());
}

}  // namespace
}  // namespace tavrel::test
