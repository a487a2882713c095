#include <QLabel>

#include <gmock/gmock.h>

#include "ui/planner/planner_test.h"

namespace tavrel::test {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using Operation = FailingFiles::Operation;

constexpr const char* kOverwrite = "Warning|exclamation| File already exists. Overwrite?    |OK/Cancel";

class SavePlannerTest : public PlannerTest {
 protected:
  void PlaySave(const Robot::Step& step) { Play("Command5", "SavePlanner", step); }

  static LineField& Name(const QWidget& dialog) { return Find<LineField>(dialog, "Text1"); }

  /// Opens the dialog, expects the name that it offers and cancels.
  void ExpectOffered(const QString& name) {
    PlaySave([&](QWidget& dialog) {
      EXPECT_EQ(Name(dialog).text(), name);
      Click(dialog, "Command2");
    });
  }
};

TEST_F(SavePlannerTest, TheNameIsTrimmedAndThenCleaned) {
  StartPlanning();
  SavePlanAs("  my.plan?  ");
  EXPECT_EQ(Folder.Read("myplan.pln"), PlanBytes("002"));
  EXPECT_EQ(State.PlanPath, "myplan.pln");
  EXPECT_EQ(PlannerWindow().windowTitle(), "Project Planner - myplan");
  EXPECT_TRUE(PlannerWindow().isVisible());
  EXPECT_TRUE(Messages.Shown.empty());
}

TEST_F(SavePlannerTest, ANameThatCleansToNothingIsWaitedFor) {
  StartPlanning();
  const auto files = Folder.Files();
  PlaySave([](QWidget& dialog) {
    for (const char* name : {"", "   ", "./\\&?*", " . "}) {
      TypeInto(dialog, "Text1", name);
      Click(dialog, "Command1");
      EXPECT_TRUE(dialog.isVisible()) << name;
    }
    Click(dialog, "Command2");
  });
  EXPECT_EQ(Folder.Files(), files);
  EXPECT_TRUE(Messages.Shown.empty());
}

TEST_F(SavePlannerTest, ANameOutsidePlainLettersIsAFileOfThatName) {
  StartPlanning();
  SavePlanAs(QString::fromUtf8("Caf\u00e9"));
  EXPECT_TRUE(Folder.Has(std::filesystem::path(u8"Caf\u00e9.pln")));
  EXPECT_EQ(PlannerWindow().windowTitle(), QString::fromUtf8("Project Planner - Caf\u00e9"));
  ExpectOffered(QString::fromUtf8("Caf\u00e9"));
}

TEST_F(SavePlannerTest, ANameThatTheSystemRefusesEndsTheProgramAndNothingIsWritten) {
  System.RefusedNames = {"NUL.pln"};
  StartPlanning();
  SavePlanAs("First");
  const auto files = Folder.Files();
  TypeTop("7");
  PlaySave([this](QWidget& dialog) {
    TypeInto(dialog, "Text1", "NUL");
    Click(dialog, "Command1");
    EXPECT_EQ(State.PlanPath, "First.pln");
    dialog.close();
  });
  EXPECT_THAT(Program.Failures, ElementsAre(AllOf(HasSubstr("NUL.pln"), HasSubstr("Choose another name."))));
  EXPECT_EQ(Folder.Files(), files);
  EXPECT_TRUE(Messages.Shown.empty());
}

TEST_F(SavePlannerTest, AsksBeforeOverwriting) {
  Folder.Write("map.pln", "old");
  StartPlanning();
  TypeCell(0, "new");
  Messages.Answers = {false, true};
  PlaySave([this](QWidget& dialog) {
    TypeInto(dialog, "Text1", "map");
    Click(dialog, "Command1");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(Messages.LastParent, &dialog);
    EXPECT_EQ(Folder.Read("map.pln"), "old");
    EXPECT_TRUE(State.PlanPath.empty());
    Click(dialog, "Command1");
    EXPECT_FALSE(dialog.isVisible());
  });
  EXPECT_EQ(Seen(Messages.Shown), (Texts{kOverwrite, kOverwrite}));
  EXPECT_EQ(Folder.Read("map.pln"), PlanBytes("002", "new"));
}

TEST_F(SavePlannerTest, OffersTheCurrentPlanAndAsksBeforeOverwritingItToo) {
  StartPlanning();
  ExpectOffered("");
  SavePlanAs("my map");
  TypeTop("100");
  PlaySave([](QWidget& dialog) {
    EXPECT_EQ(Name(dialog).text(), "my map");
    Click(dialog, "Command1");
  });
  EXPECT_EQ(Seen(Messages.Shown), Texts{kOverwrite});
  EXPECT_EQ(Folder.Read("my map.pln"), PlanBytes("100"));
}

TEST_F(SavePlannerTest, OffersTheLoadedPlan) {
  Folder.Write("map.pln", PlanBytes("002"));
  StartPlanning();
  LoadPlanNamed("map");
  ExpectOffered("map");
}

TEST_F(SavePlannerTest, OffersNoNameAfterCancelThoughTheCaptionKeepsIt) {
  StartPlanning();
  SavePlanAs("map");
  ExpectOffered("map");
  ExpectOffered("");
  EXPECT_EQ(PlannerWindow().windowTitle(), "Project Planner - map");
}

TEST_F(SavePlannerTest, EnterInTheNameBoxDoesNothing) {
  StartPlanning();
  PlaySave([](QWidget& dialog) {
    TypeInto(dialog, "Text1", "map\n");
    PressKey(Name(dialog), Qt::Key_Enter);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(Name(dialog).text(), "map");
    Click(dialog, "Command2");
  });
  EXPECT_FALSE(Folder.Has("map.pln"));
}

TEST_F(SavePlannerTest, BeginsInTheNameBox) {
  StartPlanning();
  PlaySave([](QWidget& dialog) {
    EXPECT_EQ(Find<QLabel>(dialog, "Label1").text(), "Enter filename:");
    EXPECT_TRUE(Name(dialog).hasFocus());
    Click(dialog, "Command2");
  });
}

/// The plan cannot be written: this is told, every file stays and the planner goes on with the plan.
class FailingSavePlannerTest : public PlannerTest {
 protected:
  void ExpectToldAndKept() {
    const auto files = Folder.Files();
    TypeCell(0, "typed");
    SavePlanAs("map");
    ASSERT_EQ(Messages.Shown.size(), 2U);
    EXPECT_EQ(Seen(Messages.Shown).front(), kOverwrite);
    EXPECT_NE(LastMessage().Text.find("map.pln"), std::string::npos);
    EXPECT_EQ(LastMessage().Icon, Icon::Exclamation);
    EXPECT_EQ(LastMessage().Buttons, Buttons::Ok);
    EXPECT_TRUE(PlannerWindow().isVisible());
    EXPECT_EQ(CellText(0), "typed");
    EXPECT_EQ(Folder.Files(), files);
    EXPECT_TRUE(Program.Failures.empty());
  }
};

TEST_F(FailingSavePlannerTest, AFolderOfThatNameStays) {
  Folder.Write("map.pln/inside.txt", "x");
  StartPlanning();
  ExpectToldAndKept();
}

TEST_F(FailingSavePlannerTest, TheCaptionKeepsTheNameOfThePlanLastSaved) {
  StartPlanning();
  SavePlanAs("first");
  System.Files.FailAt(Operation::Write, 1, std::errc::no_space_on_device);
  SavePlanAs("second");
  ASSERT_EQ(Messages.Shown.size(), 1U);
  EXPECT_EQ(PlannerWindow().windowTitle(), "Project Planner - first");
  EXPECT_FALSE(Folder.Has("second.pln"));
}

TEST_F(FailingSavePlannerTest, ANameOfNothingButANulIsNoName) {
  StartPlanning();
  Play("Command5", "SavePlanner", [](QWidget& dialog) {
    Find<LineField>(dialog, "Text1").setText(QString(QChar(0)));
    Click(dialog, "Command1");
    EXPECT_TRUE(dialog.isVisible());
    Click(dialog, "Command2");
  });
  EXPECT_FALSE(Folder.Has(".pln"));
}

class FailingPlanWriteTest : public FailingSavePlannerTest, public testing::WithParamInterface<Operation> {};

TEST_P(FailingPlanWriteTest, TheOldPlanStays) {
  Folder.Write("map.pln", "old");
  StartPlanning();
  System.Files.FailAt(GetParam(), 1, std::errc::no_space_on_device);
  ExpectToldAndKept();
}

INSTANTIATE_TEST_SUITE_P(Operations, FailingPlanWriteTest,
                         testing::Values(Operation::CreateNew, Operation::Write, Operation::Flush,
                                         Operation::Close, Operation::Replace));

}  // namespace
}  // namespace tavrel::test
