#include <gmock/gmock.h>
#include <memory>
#include <random>
#include <string>

#include "core/text/run_time_error.h"
#include "support/hostile_names.h"
#include "support/tree_snapshot.h"
#include "ui/ipod/publish.h"
#include "ui/ipod/publish_test.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// Publishes under names that ought not to lead anywhere; around the folder lies what must stay as it is.
class HostilePublishNamesTest : public PublishTest {
 protected:
  HostilePublishNamesTest() {
    State.ProgramFolder = Folder.Path() / "home/program";
    Folder.Write("elsewhere/kept.txt", "kept");
    Folder.Write("home/z001.txt", "another");
    Folder.Write("home/program/Trio.dat", kTrio);
    fs::current_path(State.ProgramFolder);
  }

  void SetUp() override {
    OpenExisting("Trio.dat");
    Dialog = std::make_unique<tavrel::Publish>(Application, &Window());
  }

  /// Publishes and expects the notes in a folder of that name, or nothing but what the rules say.
  void ExpectOnlyTheNotes(const HostileName& name) {
    SCOPED_TRACE(Shown(name));
    const TreeSnapshot before(Folder.Path());
    Messages.Shown.clear();
    Dialog->show();
    Find<LineField>(*Dialog, "Text1").SetBytes(name.Typed);
    Click(*Dialog, "Command2");

    EXPECT_THAT(Program.Failures, IsEmpty());
    const std::string project = "home/program/" + name.Left;
    if (name.Left.empty()) {
      EXPECT_THAT(Messages.Shown, IsEmpty());
      EXPECT_THAT(before.Changes(), IsEmpty());
      EXPECT_TRUE(Dialog->isVisible());
    } else if (name.Left.size() > kMostNameBytes) {
      ASSERT_EQ(Messages.Shown.size(), 1U);
      EXPECT_THAT(LastMessage().Text,
                  AllOf(HasSubstr(PathText(Folder.Path() / project)), HasSubstr("Choose a shorter name.")));
      EXPECT_THAT(before.Changes(), IsEmpty());
      EXPECT_TRUE(Dialog->isVisible());
    } else {
      EXPECT_THAT(Seen(Messages.Shown), ElementsAre(kFinished));
      EXPECT_THAT(before.Changes(),
                  ElementsAre("made: " + project, "made: " + project + "/z001.txt",
                              "made: " + project + "/z002.txt", "made: " + project + "/z003.txt"));
      EXPECT_FALSE(Dialog->isVisible());
      fs::remove_all(Folder.Path() / project);
    }
  }

  std::unique_ptr<tavrel::Publish> Dialog;
};

TEST_F(HostilePublishNamesTest, TheNotesLieInAFolderBelowTheChosenOneOrNowhere) {
  for (const HostileName& name : HostileNames()) ExpectOnlyTheNotes(name);
}

TEST_F(HostilePublishNamesTest, TheNotesOfRandomNamesLieInAFolderBelowTheChosenOne) {
  std::mt19937 random(31);
  for (int i = 0; i < HostileNameCount() && !HasFailure(); ++i) ExpectOnlyTheNotes(RandomHostileName(random));
}

TEST_F(HostilePublishNamesTest, ANameOfNothingButNulsIsNoName) {
  ExpectOnlyTheNotes({std::string(3, '\0'), ""});
}

TEST_F(HostilePublishNamesTest, ALinkInANotesPlaceIsReplacedAndWhatItLedToKept) {
  fs::create_directory(State.ProgramFolder / "Trio");
  fs::create_symlink("../../../elsewhere/kept.txt", State.ProgramFolder / "Trio/z001.txt");
  const TreeSnapshot before(Folder.Path());
  Dialog->show();
  Click(*Dialog, "Command2");
  EXPECT_THAT(Seen(Messages.Shown), ElementsAre(kFinished));
  EXPECT_THAT(before.Changes({"home/program/Trio"}), IsEmpty());
  EXPECT_THAT(Folder.Read("home/program/Trio/z001.txt"), HasSubstr("<title>-A</title>"));
}

}  // namespace
}  // namespace tavrel::test
