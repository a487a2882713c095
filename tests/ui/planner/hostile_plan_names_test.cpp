#include <gmock/gmock.h>
#include <string>

#include "core/text/run_time_error.h"
#include "support/hostile_names.h"
#include "support/tree_snapshot.h"
#include "ui/planner/planner_test.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// Saves plans under names that ought not to lead anywhere.
class HostilePlanNamesTest : public PlannerTest {
 protected:
  HostilePlanNamesTest() {
    System.Files.NeverWaitForTheDisk();
    State.ProgramFolder = Folder.Path() / "home/program";
    Folder.Write("elsewhere/kept.txt", "kept");
    Folder.Write("home/Map.pln", "another");
    Folder.Write("home/program/Guide.dat", kGuide);
    fs::current_path(State.ProgramFolder);
  }

  void SetUp() override {
    OpenExisting("Guide.dat");
    OpenPlanner();
  }

  void Type(const HostileName& name) {
    Play("Command5", "SavePlanner", [&](QWidget& dialog) {
      Find<LineField>(dialog, "Text1").SetBytes(name.Typed);
      Click(dialog, "Command1");
      if (dialog.isVisible()) Click(dialog, "Command2");
    });
  }
};

TEST_F(HostilePlanNamesTest, APlanIsSavedInTheProgramsFolderOrNotAtAll) {
  for (const HostileName& name : HostileNames()) {
    SCOPED_TRACE(Shown(name));
    const std::string file = "home/program/" + name.Left + ".pln";
    const TreeSnapshot before(Folder.Path());
    Messages.Shown.clear();
    Type(name);
    EXPECT_THAT(Program.Failures, IsEmpty());
    if (name.Left.empty()) {
      EXPECT_THAT(Messages.Shown, IsEmpty());
      EXPECT_THAT(before.Changes(), IsEmpty());
    } else if (name.Left.size() + 4 > kMostNameBytes) {
      ASSERT_EQ(Messages.Shown.size(), 1U);
      EXPECT_THAT(LastMessage().Text,
                  AllOf(HasSubstr(PathText(Folder.Path() / file)), HasSubstr("Choose a shorter name.")));
      EXPECT_THAT(before.Changes(), IsEmpty());
    } else {
      EXPECT_THAT(Messages.Shown, IsEmpty());
      EXPECT_THAT(before.Changes(), ElementsAre("made: " + file));
      fs::remove(Folder.Path() / file);
    }
  }
}

TEST_F(HostilePlanNamesTest, ADeletedPlanThatIsALinkLeavesWhatItLedTo) {
  fs::create_symlink("../Map.pln", State.ProgramFolder / "Link.pln");
  const TreeSnapshot before(Folder.Path());
  Play("Command6", "DeletePlan", [](QWidget& dialog) {
    ClickListRow(PlanList(dialog), "Link");
    Click(dialog, "Command1");
  });
  EXPECT_THAT(before.Changes(), ElementsAre("gone: home/program/Link.pln"));
}

}  // namespace
}  // namespace tavrel::test
