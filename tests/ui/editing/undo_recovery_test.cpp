#include "ui/editing/undo_test.h"
#include "ui/shell/recovery_keeper.h"

namespace tavrel::test {
namespace {

constexpr const char* kRecoveryFile = ".tavrel-1.recovery";

/// What would be brought back if the program stopped after steps were taken back or made again.
class UndoRecoveryTest : public UndoTest {
 protected:
  void SetUp() override { OpenDocument("Trio.dat", kTrio); }

  /// The lines of the pages in the recovery file after a look; empty if there is none.
  std::string Kept() {
    keeper_.Look();
    keeper_.WaitUntilKept();
    if (!Folder.Has(kRecoveryFile)) return {};
    const std::string draft = Folder.Read(kRecoveryFile);
    return draft.substr(draft.find("\r\n\r\n") + 4);
  }

  static std::string Lines(const std::string& page1, const std::string& page2) {
    return " 1 ," + page1 + "\r\n 2 ," + page2 + "\r\n 3 ,<title>C</title><text>three</text>\r\n";
  }

  const std::string page1_ = "<title>A</title><text>one</text>";
  const std::string page2_ = "<title>B</title><text>two</text>";
  const std::string cleared_ =
      " 1 ,<title>A</title><text>one</text>\r\n 3 ,<title>C</title><text>three</text>\r\n";

 private:
  RecoveryKeeper keeper_{Application, Folder.Path() / kRecoveryFile, [this] { return Window().TypedPage(); }};
};

TEST_F(UndoRecoveryTest, AfterAStepBackTheStateBeforeItIsKept) {
  Show(2);
  Choose("EditClear");
  EXPECT_EQ(Kept(), cleared_);
  Show(1);
  Choose("EditClear");
  PressUndo();
  EXPECT_EQ(Kept(), cleared_);
  PressUndo();
  EXPECT_EQ(Kept(), "");
  PressRedo();
  EXPECT_EQ(Kept(), cleared_);
}

TEST_F(UndoRecoveryTest, TheFieldsAreKeptAsTheyStandAfterAStepBack) {
  Show(2);
  Choose("EditClear");
  PressUndo();
  TypeInto(Title(), "new");
  EXPECT_EQ(Kept(), Lines(page1_, "<title>new</title><text>two</text>"));
  PressUndo();
  EXPECT_EQ(Title().Bytes(), "B");
  EXPECT_EQ(Kept(), "");
  PressRedo();
  EXPECT_EQ(Kept(), Lines(page1_, "<title>new</title><text>two</text>"));
}

TEST_F(UndoRecoveryTest, TypingThatWasTakenBackWithThePageIsNotKept) {
  TypeInto(Title(), "new");
  Click(Note());
  PressUndo();
  EXPECT_EQ(Kept(), "");
  PressRedo();
  EXPECT_EQ(Kept(), Lines("<title>new</title><text>one</text>", page2_));
}

TEST_F(UndoRecoveryTest, TypingThatACommandDroppedIsKeptOnceItIsBack) {
  TypeInto(Title(), "new");
  Choose("EditClear");
  PressUndo();
  EXPECT_EQ(Kept(), Lines("<title>new</title><text>one</text>", page2_));
}

TEST_F(UndoRecoveryTest, TheFieldsCountWhereTheirUndoHasGoneBehindAStoring) {
  TypeInto(Title(), "new");
  Choose("EditCopyPage");
  Click(Title());
  PressUndo();
  EXPECT_EQ(Title().Bytes(), "A");
  EXPECT_EQ(Kept(), "");
  PressRedo();
  EXPECT_EQ(Title().Bytes(), "new");
  EXPECT_EQ(Kept(), Lines("<title>new</title><text>one</text>", page2_));
}

TEST_F(UndoRecoveryTest, AStepBackToWhatWasSavedLeavesNothingToKeep) {
  TypeInto(Title(), "new");
  Save();
  Show(2);
  Choose("EditClear");
  EXPECT_NE(Kept(), "");
  PressUndo();
  EXPECT_EQ(Kept(), "");
  PressUndo();
  EXPECT_EQ(Kept(), Lines(page1_, page2_));
}

}  // namespace
}  // namespace tavrel::test
