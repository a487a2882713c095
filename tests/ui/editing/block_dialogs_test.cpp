#include <QCheckBox>

#include "ui/editing/edit_dialogs.h"

namespace tavrel::test {
namespace {

struct BlockDialogCase {
  const char* Name;
  const char* Caption;
  QStringList Labels;  ///< the explanation, then one for each number
  const char* Action;
  const char* Tip;
  QStringList Good;  ///< numbers that the dialog takes
};

void PrintTo(const BlockDialogCase& dialog, std::ostream* out) {
  *out << dialog.Name;
}

class BlockDialogsTest : public EditDialogsTest, public testing::WithParamInterface<BlockDialogCase> {
 protected:
  void SetUp() override {
    OpenDocument("Guide.dat", kGuide);
    pages_ = State.Pages;
  }

  void PlayIt(const Robot::Step& step) {
    Play(QString("Edit") + GetParam().Name, GetParam().Name, step);
    EXPECT_TRUE(Messages.Shown.empty());
  }

  void ExpectUnchanged() {
    EXPECT_TRUE(State.Pages == pages_);
    EXPECT_EQ(State.PageClipboard, "");
    ExpectCurrentPage(1);
  }

  static bool HasResultBox() { return QString(GetParam().Name) == "BlockDelete" || IsInsert(); }
  static bool IsInsert() { return QString(GetParam().Name) == "BlockInsert"; }

  static QString Field(int number) { return QString("Text%1").arg(number); }

 private:
  decltype(Global::Pages) pages_;
};

TEST_P(BlockDialogsTest, BeginsWithTheFirstNumberEveryTime) {
  for (const char* way_out : {"Command1", "Command2"}) {
    PlayIt([&](QWidget& dialog) {
      auto& first = Find<LineField>(dialog, "Text1");
      EXPECT_TRUE(first.hasFocus());
      EXPECT_EQ(first.selectedText(), first.text());
      for (int field = 1; field <= GetParam().Good.size(); ++field)
        TypeInto(dialog, Field(field), GetParam().Good[field - 1]);
      Click(dialog, way_out);
    });
  }
  PlayIt([](QWidget& dialog) {
    EXPECT_TRUE(Find<LineField>(dialog, "Text1").hasFocus());
    Click(dialog, "Command1");
  });
}

TEST_P(BlockDialogsTest, ShowsItsCaptionsAndTips) {
  PlayIt([](QWidget& dialog) {
    EXPECT_EQ(dialog.windowTitle(), GetParam().Caption);
    for (int label = 0; label < GetParam().Labels.size(); ++label)
      EXPECT_EQ(Caption(dialog, QString("Label%1").arg(label + 1)), GetParam().Labels[label]);
    for (int field = 1; field <= GetParam().Good.size(); ++field)
      EXPECT_EQ(Find<QWidget>(dialog, Field(field)).toolTip(), "Enter a value from 001 to 999");
    EXPECT_EQ(Caption(dialog, "Command2"), GetParam().Action);
    EXPECT_EQ(Find<QWidget>(dialog, "Command2").toolTip(), GetParam().Tip);
    EXPECT_EQ(Caption(dialog, "Command1"), "Cancel");
    Click(dialog, "Command1");
  });
}

TEST_P(BlockDialogsTest, NobodySeesTheResult) {
  PlayIt([](QWidget& dialog) {
    EXPECT_EQ(dialog.findChildren<QCheckBox*>().size(), HasResultBox() ? 1 : 0);
    for (const auto* box : dialog.findChildren<QCheckBox*>()) {
      EXPECT_EQ(box->objectName(), "Check1");
      EXPECT_EQ(box->text(), "Set if cancel clicked");
      EXPECT_FALSE(box->isVisible());
      EXPECT_TRUE(box->isChecked());
    }
    Click(dialog, "Command1");
    for (const auto* box : dialog.findChildren<QCheckBox*>()) EXPECT_TRUE(box->isChecked());
  });
}

TEST_P(BlockDialogsTest, TypingMayBeginAtOnceAndEveryControlHasAName) {
  Texts order;
  for (int field = 1; field <= GetParam().Good.size(); ++field) order.push_back(Field(field).toStdString());
  order.insert(order.end(), {"Command2", "Command1"});
  PlayIt([&order](QWidget& dialog) {
    EXPECT_EQ(TabOrder(dialog), order);
    EXPECT_EQ(NamelessControls(dialog), Texts{});
    Click(dialog, "Command1");
  });
}

TEST_P(BlockDialogsTest, ABadNumberInAnyBoxIsWaitedForInSilence) {
  PlayIt([](QWidget& dialog) {
    for (int field = 1; field <= GetParam().Good.size(); ++field) {
      for (const char* bad : {"x", "0", "000", "1000", "-1", "1.5", "", " ", "12x", "x12", "1 2", "1e1", "+5",
                              "0x5", "99999999999", "4294967299", "65539"}) {
        TypeNumbers(dialog, GetParam().Good);
        TypeInto(dialog, Field(field), bad);
        Click(dialog, "Command2");
        EXPECT_TRUE(dialog.isVisible()) << field << " '" << bad << "'";
        PressKey(Find<QWidget>(dialog, Field(field)), Qt::Key_Return);
        EXPECT_TRUE(dialog.isVisible()) << field << " '" << bad << "'";
        EXPECT_EQ(Find<LineField>(dialog, Field(field)).text(), bad);
      }
    }
    Click(dialog, "Command1");
  });
  ExpectUnchanged();
}

TEST_P(BlockDialogsTest, ACorrectedNumberIsTaken) {
  PlayIt([](QWidget& dialog) {
    TypeNumbers(dialog, GetParam().Good);
    TypeInto(dialog, "Text1", "x\n");
    EXPECT_TRUE(dialog.isVisible());
    TypeInto(dialog, "Text1", GetParam().Good.front());
    Click(dialog, "Command2");
    EXPECT_FALSE(dialog.isVisible());
  });
}

TEST_P(BlockDialogsTest, LeadingZerosAndBlanksAroundANumberDoNotCount) {
  for (const char* pattern : {"%1", "00%1", " %1 "}) {
    PlayIt([pattern](QWidget& dialog) {
      QStringList numbers;
      for (const QString& number : GetParam().Good) numbers << QString(pattern).arg(number);
      TypeNumbers(dialog, numbers);
      Click(dialog, "Command2");
      EXPECT_FALSE(dialog.isVisible());
    });
  }
}

TEST_P(BlockDialogsTest, EnterInABoxDoesNothing) {
  PlayIt([](QWidget& dialog) {
    TypeNumbers(dialog, GetParam().Good);
    for (int field = 1; field <= GetParam().Good.size(); ++field) {
      PressKey(Find<QWidget>(dialog, Field(field)), field == 1 ? Qt::Key_Return : Qt::Key_Enter);
      EXPECT_TRUE(dialog.isVisible()) << field;
    }
    Click(dialog, "Command1");
  });
  ExpectUnchanged();
}

TEST_P(BlockDialogsTest, NothingIsDoneWhenItIsDismissed) {
  for (const Dismissal way : kDismissals) {
    PlayIt([way](QWidget& dialog) {
      TypeNumbers(dialog, GetParam().Good);
      Dismiss(dialog, way, "Command1");
    });
    ExpectUnchanged();
  }
}

TEST_P(BlockDialogsTest, EnterOnCancelCancels) {
  PlayIt([](QWidget& dialog) {
    TypeNumbers(dialog, GetParam().Good);
    auto& cancel = Find<QWidget>(dialog, "Command1");
    cancel.setFocus();
    PressKey(cancel, Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
  });
  ExpectUnchanged();
}

TEST_P(BlockDialogsTest, DeletingAndInsertingOfferTheSameNumbersAgainTheOthersKeepTheirs) {
  const QStringList dismissed = QStringList{"998", "4x", "0 "}.mid(0, GetParam().Good.size());
  const QStringList offered = {"001", "002"};
  PlayIt([&](QWidget& dialog) {
    if (HasResultBox()) {
      EXPECT_EQ(ShownNumbers(dialog), offered);
    }
    TypeNumbers(dialog, dismissed);
    dialog.close();
  });
  PlayIt([&](QWidget& dialog) {
    EXPECT_EQ(ShownNumbers(dialog), HasResultBox() ? offered : dismissed);
    TypeNumbers(dialog, GetParam().Good);
    Click(dialog, "Command2");
  });
  PlayIt([&](QWidget& dialog) {
    EXPECT_EQ(ShownNumbers(dialog), HasResultBox() ? offered : GetParam().Good);
    Click(dialog, "Command1");
  });
}

INSTANTIATE_TEST_SUITE_P(
    Dialogs, BlockDialogsTest,
    testing::Values(
        BlockDialogCase{
            "BlockCopy",
            "Block copy",
            {"Copy pages from 'Start' to 'End'. Paste pages at 'Copy to'. (Replaces current pages.)",
             "Start:", "End:", "Copy to:"},
            "Copy",
            "Copy pages",
            {"5", "7", "20"}},
        BlockDialogCase{"BlockClear",
                        "Block clear",
                        {"Clear all pages from 'Start' to 'End'.", "Start:", "End:"},
                        "Clear",
                        "Clear pages",
                        {"5", "7"}},
        BlockDialogCase{"BlockDelete",
                        "Block delete",
                        {"Delete all pages from 'Start' to 'End'.", "Start:", "End:"},
                        "Delete",
                        "Delete pages",
                        {"5", "7"}},
        BlockDialogCase{"BlockInsert",
                        "Block insert",
                        {"Insert up to 50 blank pages", "Insert at:", "Number:"},
                        "Insert",
                        "Delete pages",
                        {"5", "7"}}));

struct LimitCase {
  const char* Dialog;
  QStringList Numbers;
  bool IsTaken;
};

void PrintTo(const LimitCase& limit, std::ostream* out) {
  *out << limit.Dialog << ' ' << limit.Numbers.join(' ').toStdString();
}

class BlockLimitsTest : public EditDialogsTest, public testing::WithParamInterface<LimitCase> {};

TEST_P(BlockLimitsTest, NumbersAreTakenUpToTheLimits) {
  OpenDocument("Guide.dat", kGuide);
  Play(QString("Edit") + GetParam().Dialog, GetParam().Dialog, [](QWidget& dialog) {
    TypeNumbers(dialog, GetParam().Numbers);
    Click(dialog, "Command2");
    EXPECT_EQ(dialog.isVisible(), !GetParam().IsTaken);
    dialog.close();
  });
  EXPECT_TRUE(Messages.Shown.empty());
  EXPECT_TRUE(Program.Failures.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Limits, BlockLimitsTest,
    testing::Values(
        LimitCase{"BlockCopy", {"5", "9", "7"}, false}, LimitCase{"BlockCopy", {"9", "5", "7"}, false},
        LimitCase{"BlockCopy", {"5", "9", "5"}, false}, LimitCase{"BlockCopy", {"5", "9", "9"}, false},
        LimitCase{"BlockCopy", {"5", "5", "5"}, false}, LimitCase{"BlockCopy", {"5", "9", "4"}, true},
        LimitCase{"BlockCopy", {"9", "5", "10"}, true}, LimitCase{"BlockCopy", {"1", "998", "999"}, true},
        LimitCase{"BlockCopy", {"2", "999", "1"}, true}, LimitCase{"BlockCopy", {"1", "999", "5"}, false},
        LimitCase{"BlockClear", {"1", "999"}, true}, LimitCase{"BlockClear", {"999", "999"}, true},
        LimitCase{"BlockDelete", {"999", "5"}, false}, LimitCase{"BlockDelete", {"999", "999"}, false},
        LimitCase{"BlockDelete", {"5", "999"}, true}, LimitCase{"BlockDelete", {"998", "3"}, true},
        LimitCase{"BlockDelete", {"1", "999"}, true}, LimitCase{"BlockInsert", {"999", "1"}, false},
        LimitCase{"BlockInsert", {"998", "1"}, true}, LimitCase{"BlockInsert", {"1", "50"}, true},
        LimitCase{"BlockInsert", {"1", "51"}, false}, LimitCase{"BlockInsert", {"998", "50"}, true}));

}  // namespace
}  // namespace tavrel::test
