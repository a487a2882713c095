#include <QApplication>
#include <QCheckBox>
#include <QClipboard>

#include "ui/editing/edit_dialogs.h"

namespace tavrel::test {
namespace {

class SearchDialogsTest : public EditDialogsTest {
 protected:
  void SetUp() override { OpenDocument("Fruit.dat", kFruit); }
};

/// What Find and Replace have in common.
struct SearchDialogCase {
  const char* MenuItem;
  const char* Dialog;
  Texts TabOrder;
};

void PrintTo(const SearchDialogCase& dialog, std::ostream* out) {
  *out << dialog.Dialog;
}

class EitherSearchDialogTest : public SearchDialogsTest,
                               public testing::WithParamInterface<SearchDialogCase> {
 protected:
  void PlayIt(const Robot::Step& step) { Play(GetParam().MenuItem, GetParam().Dialog, step); }

  void ExpectNothingDone() {
    EXPECT_EQ(State.Page(1), "<title>apple</title><text>Apple pie</text>");
    EXPECT_EQ(Title().Bytes(), "  unsaved");
    ExpectCurrentPage(1);
    EXPECT_TRUE(Messages.Shown.empty());
  }
};

TEST_P(EitherSearchDialogTest, NobodySeesTheResult) {
  PlayIt([](QWidget& dialog) {
    const auto& result = Find<QCheckBox>(dialog, "Check2");
    EXPECT_EQ(result.text(), "Ticked if Cancel clicked");
    EXPECT_FALSE(result.isVisible());
    EXPECT_FALSE(result.isChecked());
    EXPECT_EQ(Caption(dialog, "Check1"), "Match case");
    EXPECT_EQ(Caption(dialog, "Command2"), "Cancel");
    Click(dialog, "Command2");
    EXPECT_TRUE(result.isChecked());
    EXPECT_FALSE(result.isVisible());
  });
}

TEST_P(EitherSearchDialogTest, TypingMayBeginAtOnceAndEveryControlHasAName) {
  for (int opening = 0; opening < 2; ++opening) {
    PlayIt([](QWidget& dialog) {
      EXPECT_EQ(TabOrder(dialog), GetParam().TabOrder);
      EXPECT_EQ(NamelessControls(dialog), Texts{});
      Click(dialog, "Command2");
    });
  }
}

TEST_P(EitherSearchDialogTest, IsMadeOnceAndKept) {
  QWidget* first = nullptr;
  PlayIt([&](QWidget& dialog) {
    first = &dialog;
    Click(dialog, "Command2");
  });
  PlayIt([&](QWidget& dialog) {
    EXPECT_EQ(&dialog, first);
    Click(dialog, "Command2");
  });
}

TEST_P(EitherSearchDialogTest, NothingIsDoneWhenItIsDismissed) {
  State.FindText = "apple";
  TypeInto(Title(), "  unsaved");
  for (const Dismissal way : kDismissals) {
    PlayIt([way](QWidget& dialog) {
      EXPECT_EQ(Find<LineField>(dialog, "Text1").text(), "apple");
      TypeInto(dialog, "Text1", "zzz");
      Dismiss(dialog, way, "Command2");
    });
    EXPECT_EQ(State.FindText, "apple");
    ExpectNothingDone();
  }
}

TEST_P(EitherSearchDialogTest, AnEmptyTextCancelsAndForgetsTheLastOne) {
  TypeInto(Title(), "  unsaved");
  for (const char* text : {"", "   "}) {
    State.FindText = "apple";
    PlayIt([text](QWidget& dialog) {
      TypeInto(dialog, "Text1", text);
      Click(dialog, "Command1");
      EXPECT_FALSE(dialog.isVisible());
      EXPECT_TRUE(Find<QCheckBox>(dialog, "Check2").isChecked());
    });
    EXPECT_EQ(State.FindText, "");
    Choose("EditFindNext");
    ExpectNothingDone();
  }
  PlayIt([](QWidget& dialog) {
    EXPECT_EQ(Find<LineField>(dialog, "Text1").text(), "");
    Click(dialog, "Command2");
  });
}

TEST_P(EitherSearchDialogTest, MatchCaseStaysAsItWasLeft) {
  for (const bool ticked : {true, false, true}) {
    PlayIt([ticked](QWidget& dialog) {
      EXPECT_EQ(Find<QCheckBox>(dialog, "Check1").isChecked(), !ticked);
      SetTicked(dialog, "Check1", ticked);
      Click(dialog, "Command2");
    });
    if (!ticked) continue;
    PlayIt([](QWidget& dialog) {
      EXPECT_TRUE(Find<QCheckBox>(dialog, "Check1").isChecked());
      SetTicked(dialog, "Check1", true);
      dialog.close();
    });
  }
}

TEST_P(EitherSearchDialogTest, TheLastTextIsOfferedSelectedSoThatTypingReplacesIt) {
  State.FindText = "apple";
  for (int opening = 0; opening < 2; ++opening) {
    PlayIt([](QWidget& dialog) {
      EXPECT_EQ(Find<LineField>(dialog, "Text1").selectedText(), "apple");
      Click(dialog, "Command2");
    });
  }
}

TEST_P(EitherSearchDialogTest, WorksAgainAfterACancel) {
  TypeInto(Title(), "stored");
  PlayIt([](QWidget& dialog) { Click(dialog, "Command2"); });
  PlayIt([](QWidget& dialog) {
    TypeInto(dialog, "Text1", "none");
    Click(dialog, "Command1");
  });
  EXPECT_EQ(State.FindText, "none");
  EXPECT_EQ(State.Page(1), "<title>stored</title><text>Apple pie</text>");
}

TEST_P(EitherSearchDialogTest, PastedTextIsMadeFit) {
  PlayIt([](QWidget& dialog) {
    auto& text = Find<LineField>(dialog, "Text1");
    QApplication::clipboard()->setText(u"x\r\ny\u0416"_qs);
    PressKey(text, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(text.text(), "x y?");
    Click(dialog, "Command2");
  });
}

INSTANTIATE_TEST_SUITE_P(
    Dialogs, EitherSearchDialogTest,
    testing::Values(SearchDialogCase{"EditSearch", "FindForm", {"Text1", "Check1", "Command1", "Command2"}},
                    SearchDialogCase{
                        "EditReplace", "ReplaceForm", {"Text1", "Text2", "Check1", "Command1", "Command2"}}));

TEST_F(SearchDialogsTest, FindShowsItsCaptions) {
  Play("EditSearch", "FindForm", [](QWidget& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Find");
    EXPECT_EQ(Caption(dialog, "Label1"), "Find what:");
    EXPECT_EQ(Caption(dialog, "Command1"), "Start searching");
    Click(dialog, "Command2");
  });
}

TEST_F(SearchDialogsTest, ReplaceShowsItsCaptions) {
  Play("EditReplace", "ReplaceForm", [](QWidget& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Replace");
    EXPECT_EQ(Caption(dialog, "Label1"), "Replace what:");
    EXPECT_EQ(Caption(dialog, "Label2"), "Replace with:");
    EXPECT_EQ(Caption(dialog, "Command1"), "Find and replace text");
    Click(dialog, "Command2");
  });
}

TEST_F(SearchDialogsTest, EnterInAFieldDoesNothing) {
  Play("EditSearch", "FindForm", [](QWidget& dialog) {
    TypeInto(dialog, "Text1", "NONE\n");
    EXPECT_TRUE(dialog.isVisible());
    Click(dialog, "Command2");
  });
  Play("EditReplace", "ReplaceForm", [](QWidget& dialog) {
    TypeInto(dialog, "Text1", "pine\n");
    TypeInto(dialog, "Text2", "some\n");
    EXPECT_TRUE(dialog.isVisible());
    Click(dialog, "Command2");
  });
  ExpectCurrentPage(1);
  EXPECT_EQ(State.FindText, "");
}

TEST_F(SearchDialogsTest, EnterOnCancelCancels) {
  Play("EditReplace", "ReplaceForm", [](QWidget& dialog) {
    TypeInto(dialog, "Text1", "none");
    auto& cancel = Find<QWidget>(dialog, "Command2");
    cancel.setFocus();
    PressKey(cancel, Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
  });
  EXPECT_EQ(State.Page(4), "<text>none</text>");
  EXPECT_EQ(State.FindText, "");
}

TEST_F(SearchDialogsTest, TheTextLastSearchedForOutlivesTheDocument) {
  SearchFor("pine");
  Choose("FileClose");
  OpenDocument("Trio.dat", kTrio);
  Play("EditSearch", "FindForm", [](QWidget& dialog) {
    EXPECT_EQ(Find<LineField>(dialog, "Text1").text(), "pine");
    Click(dialog, "Command2");
  });
}

TEST_F(SearchDialogsTest, TheReplacementIsKeptToo) {
  Replace("nothing", " by this ");
  Play("EditReplace", "ReplaceForm", [](QWidget& dialog) {
    EXPECT_EQ(Find<LineField>(dialog, "Text2").text(), " by this ");
    Click(dialog, "Command2");
  });
}

}  // namespace
}  // namespace tavrel::test
