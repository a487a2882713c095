#include <functional>
#include <string>
#include <vector>

#include "ui/editing/undo_test.h"

namespace tavrel::test {
namespace {

/// Does one command, and makes the document ready for it before.
class CommandRun : public UndoTest {
 public:
  using UndoTest::Answer;
  using UndoTest::Choose;
  using UndoTest::ClickButton;
  using UndoTest::InsertPlan;
  using UndoTest::LinksGrid;
  using UndoTest::Player;
  using UndoTest::Show;

  void SelectLink(int row) { ClickRow(LinksGrid(), row); }
  void CopyPage(int page) {
    Show(page);
    Choose("EditCopyPage");
  }
  /// Writes a song into the second music link, after the command that opens the editor was given.
  void AwaitMusicEditor() {
    Player.Expect("MusicEditor", [](QWidget& dialog) {
      ClickRow(Find<Grid>(dialog, "MSFlexGrid2"), 2);
      TypeInto(dialog, "Text1_1", "Green");
      Click(dialog, "Command2");
      Click(dialog, "Command1");
    });
  }
};

using Act = std::function<void(CommandRun&)>;

Act Menu(const QString& item) {
  return [item](CommandRun& run) { run.Choose(item); };
}

Act Button(const QString& name) {
  return [name](CommandRun& run) { run.ClickButton(name); };
}

Act Block(const QString& dialog, const QStringList& numbers) {
  return [=](CommandRun& run) { run.Answer("Edit" + dialog, dialog, numbers, "Command2"); };
}

Act Replace(const QString& text, const QString& replacement) {
  return [=](CommandRun& run) { run.Answer("EditReplace", "ReplaceForm", {text, replacement}, "Command1"); };
}

Act OnPage(int page) {
  return [page](CommandRun& run) { run.Show(page); };
}

Act OnLink(int row) {
  return [row](CommandRun& run) {
    run.Show(2);
    run.SelectLink(row);
  };
}

/// A command that changes the document, the step's name, and what has to be done before.
struct CommandCase {
  std::string Test;
  std::string Step;
  Act Prepare;
  Act Do;
};

std::vector<CommandCase> PageCommandCases() {
  const Act copied = [](CommandRun& run) {
    run.CopyPage(3);
    run.Show(2);
  };
  return {{"Cut", "Cut page 2", OnPage(2), Menu("EditDelete")},
          {"CutButton", "Cut page 2", OnPage(2), Button("Image8")},
          {"CutPage999", "Cut page 999", OnPage(999), Menu("EditDelete")},
          {"Delete", "Delete page 2", OnPage(2), Menu("EditPageDeleteIt")},
          {"DeleteButton", "Delete page 2", OnPage(2), Button("Image15")},
          {"DeleteBlankPage", "Delete page 4", OnPage(4), Menu("EditPageDeleteIt")},
          {"Paste", "Paste page 2", copied, Menu("EditPastePage")},
          {"PasteButton", "Paste page 2", copied, Button("Image10")},
          {"Up", "Move page 2 up", OnPage(2), Menu("EditPageUp")},
          {"UpButton", "Move page 2 up", OnPage(2), Button("Image13")},
          {"Down", "Move page 2 down", OnPage(2), Menu("EditPageDown")},
          {"DownButton", "Move page 2 down", OnPage(2), Button("Image14")},
          {"Insert", "Insert page 2", OnPage(2), Menu("EditInsert")},
          {"Clear", "Clear page 2", OnPage(2), Menu("EditClear")}};
}

std::vector<CommandCase> LinkCommandCases() {
  return {{"LinkUp", "Move link 3 up on page 2", OnLink(3), Menu("EditLinkUp")},
          {"LinkUpButton", "Move link 3 up on page 2", OnLink(3), Button("Image16")},
          {"LinkDown", "Move link 2 down on page 2", OnLink(2), Menu("EditLinkDown")},
          {"LinkDownButton", "Move link 2 down on page 2", OnLink(2), Button("Image17")},
          {"LinkDelete", "Delete link 2 of page 2", OnLink(2), Menu("EditLinkDelete")},
          {"LinkDeleteButton", "Delete link 2 of page 2", OnLink(2), Button("Image18")}};
}

std::vector<CommandCase> BlockCases() {
  return {
      {"CopyPages", "Copy pages 1 to 3 to page 5", OnPage(2), Block("BlockCopy", {"1", "3", "5"})},
      {"CopyPagesBackwards", "Copy pages 1 to 3 to page 5", OnPage(2), Block("BlockCopy", {"3", "1", "5"})},
      {"CopyOnePage", "Copy page 3 to page 2", OnPage(2), Block("BlockCopy", {"3", "3", "2"})},
      {"ClearPages", "Clear pages 1 to 5", OnPage(2), Block("BlockClear", {"1", "5"})},
      {"ClearOnePage", "Clear page 5", OnPage(2), Block("BlockClear", {"5", "5"})},
      {"DeletePages", "Delete pages 2 to 3", OnPage(5), Block("BlockDelete", {"2", "3"})},
      {"DeleteOnePage", "Delete page 3", OnPage(2), Block("BlockDelete", {"3", "3"})},
      {"InsertPages", "Insert pages 3 to 5", OnPage(2), Block("BlockInsert", {"3", "3"})},
      {"InsertOnePage", "Insert page 3", OnPage(2), Block("BlockInsert", {"3", "1"})},
      {"InsertPagesBeyondTheEnd", "Insert pages 990 to 999", OnPage(2), Block("BlockInsert", {"990", "50"})}};
}

std::vector<CommandCase> OtherCases() {
  return {{"ReplaceInOnePage", "Replace in 1 page", OnPage(2), Replace("Beta", "Zeta")},
          {"ReplaceInTwoPages", "Replace in 2 pages", OnPage(2), Replace("words", "")},
          {"Music", "Music links", OnPage(2),
           [](CommandRun& run) {
             run.AwaitMusicEditor();
             run.Choose("EditMusic");
           }},
          {"MusicButton", "Music links", OnPage(2),
           [](CommandRun& run) {
             run.AwaitMusicEditor();
             run.ClickButton("Command4");
           }},
          {"Plan", "Insert plan at 002", OnPage(2), [](CommandRun& run) { run.InsertPlan(); }}};
}

std::vector<CommandCase> AllCases() {
  std::vector<CommandCase> all;
  for (const auto& cases : {PageCommandCases(), LinkCommandCases(), BlockCases(), OtherCases()})
    all.insert(all.end(), cases.begin(), cases.end());
  return all;
}

/// Without the buttons that do the same as an item.
std::vector<CommandCase> MenuCases() {
  std::vector<CommandCase> cases = AllCases();
  std::erase_if(cases, [](const CommandCase& command) { return command.Test.ends_with("Button"); });
  return cases;
}

/// Each command, from the caret in the middle of the body.
class UndoCommandsTest : public CommandRun {
 public:
  void ForEach(const std::vector<CommandCase>& commands,
               void (UndoCommandsTest::*check)(const CommandCase&)) {
    for (const CommandCase& command : commands) {
      SCOPED_TRACE(command.Test);
      OpenWorld();
      command.Prepare(*this);
      Body().setFocus();
      PressKey(Body(), Qt::Key_Right);
      PressKey(Body(), Qt::Key_Right);
      PressKey(Body(), Qt::Key_Left, Qt::ShiftModifier);
      (this->*check)(command);
    }
  }

  void IsNamedTakenBackAndMadeAgain(const CommandCase& command) {
    const std::string before = Screen();
    command.Do(*this);
    const std::string after = Screen();
    EXPECT_NE(after, before);
    EXPECT_EQ(UndoItem(), "Undo " + command.Step);
    EXPECT_EQ(RedoItem(), "Redo (grey)");
    PressUndo();
    EXPECT_EQ(Screen(), before);
    EXPECT_EQ(Told(), "Undone: " + command.Step + ". The project is as you saved it.");
    EXPECT_EQ(UndoItem(), "Undo (grey)");
    EXPECT_EQ(RedoItem(), "Redo " + command.Step);
    PressRedo();
    EXPECT_EQ(Screen(), after);
    EXPECT_EQ(Told(), "Redone: " + command.Step);
    Choose("EditUndo");
    EXPECT_EQ(Screen(), before);
    Choose("EditRedo");
    EXPECT_EQ(Screen(), after);
  }

  void IsAStepOfItsOwnAfterTyping(const CommandCase& command) {
    const std::string before = Document();
    const int page = State.CurrentPage;
    TypeInto(Title(), "Typed");
    const std::string typed = Window().TypedPage();
    command.Do(*this);
    const std::string after = Document();
    EXPECT_EQ(UndoItem(), "Undo " + command.Step);
    PressUndo();
    EXPECT_EQ(State.CurrentPage, page);
    EXPECT_EQ(State.Page(page), typed);
    EXPECT_EQ(Title().Bytes(), "Typed");
    const std::string edit = "Edit page " + std::to_string(page);
    EXPECT_EQ(UndoItem(), "Undo " + edit);
    PressUndo();
    EXPECT_EQ(Document(), before);
    EXPECT_EQ(UndoItem(), "Undo (grey)");
    EXPECT_EQ(RedoItem(), "Redo " + edit);
    PressRedo();
    EXPECT_EQ(State.Page(page), typed);
    PressRedo();
    EXPECT_EQ(Document(), after);
  }
};

TEST_F(UndoCommandsTest, EachOnPagesIsNamedTakenBackAndMadeAgain) {
  ForEach(PageCommandCases(), &UndoCommandsTest::IsNamedTakenBackAndMadeAgain);
}

TEST_F(UndoCommandsTest, EachOnLinksIsNamedTakenBackAndMadeAgain) {
  ForEach(LinkCommandCases(), &UndoCommandsTest::IsNamedTakenBackAndMadeAgain);
}

TEST_F(UndoCommandsTest, EachOnBlocksIsNamedTakenBackAndMadeAgain) {
  ForEach(BlockCases(), &UndoCommandsTest::IsNamedTakenBackAndMadeAgain);
}

TEST_F(UndoCommandsTest, EachOfTheOthersIsNamedTakenBackAndMadeAgain) {
  ForEach(OtherCases(), &UndoCommandsTest::IsNamedTakenBackAndMadeAgain);
}

TEST_F(UndoCommandsTest, EachIsAStepOfItsOwnAfterTyping) {
  ForEach(MenuCases(), &UndoCommandsTest::IsAStepOfItsOwnAfterTyping);
}

}  // namespace
}  // namespace tavrel::test
