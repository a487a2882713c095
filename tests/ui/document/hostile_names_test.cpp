#include "support/hostile_names.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <random>
#include <string_view>

#include "core/document/backups.h"
#include "core/document/document_file.h"
#include "core/planner/plan_file.h"
#include "core/text/run_time_error.h"
#include "support/tree_snapshot.h"
#include "ui/controls/file_question.h"
#include "ui/document/document_test.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr std::string_view kProgram = "home/program/";

/// How many characters a name in UTF-8 has.
std::size_t Characters(std::string_view name) {
  constexpr unsigned kContinues = 0x80;
  constexpr unsigned kKind = 0xC0;
  return static_cast<std::size_t>(std::count_if(name.begin(), name.end(), [](char c) {
    return (static_cast<unsigned>(static_cast<unsigned char>(c)) & kKind) != kContinues;
  }));
}

/// Types names that ought not to lead anywhere; around the program's folder lies what must stay as it is.
class HostileNamesTest : public DocumentTest {
 protected:
  HostileNamesTest() {
    System.Files.NeverWaitForTheDisk();
    State.ProgramFolder = Folder.Path() / "home/program";
    Folder.Write("elsewhere/kept.txt", "kept");
    Folder.Write("home/Guide.dat", "another");
    RestoreGuide();
    fs::current_path(State.ProgramFolder);
  }

  void RestoreGuide() { Folder.Write("home/program/Guide.dat", kGuide); }

  /// Whether a file of that name can be there.
  static bool Fits(const HostileName& name, std::string_view extension) {
    return name.Left.size() + extension.size() <= kMostNameBytes;
  }

  /// Nothing has happened but what the rules say of the name; then the tree is as before.
  void ExpectOnlyTheFile(const HostileName& name, std::string_view extension, std::string_view bytes,
                         const TreeSnapshot& before) {
    SCOPED_TRACE(Shown(name));
    const std::string file = std::string(kProgram) + name.Left + std::string(extension);
    if (name.Left.empty()) {
      EXPECT_THAT(Program.Failures, IsEmpty());
      EXPECT_THAT(before.Changes(), IsEmpty());
    } else if (!Fits(name, extension)) {
      // The recorded program goes on where the real one has ended: only its first error counts.
      ASSERT_FALSE(Program.Failures.empty());
      EXPECT_THAT(Program.Failures.front(),
                  AllOf(HasSubstr(PathText(Folder.Path() / file)), HasSubstr("Choose a shorter name.")));
      EXPECT_THAT(before.Changes(), IsEmpty());
    } else {
      EXPECT_THAT(Program.Failures, IsEmpty());
      EXPECT_THAT(before.Changes({file}), IsEmpty());
      EXPECT_EQ(Folder.Read(file), bytes);
      fs::remove(Folder.Path() / file);
    }
    Program.Failures.clear();
    RestoreGuide();
  }

  /// Chooses File > New or Save As and stores the document under the name.
  void Type(const QString& menu_item, const QString& dialog_name, const HostileName& name) {
    Play(menu_item, dialog_name, [&](QWidget& dialog) {
      Find<LineField>(dialog, "Text1").SetBytes(name.Typed);
      Click(dialog, "Command1");
      dialog.close();
    });
  }

  /// Stores something under a typed name as the dialogs do, without them.
  template <typename Store>
  void StoreAs(const HostileName& name, std::string_view extension, const Store& store) {
    Program.Run([&] {
      const fs::path file = AskForFile(Application, nullptr, name.Typed, extension);
      if (!file.empty()) store(file);
    });
  }
};

TEST_F(HostileNamesTest, ADocumentIsSavedInTheProgramsFolderOrNotAtAll) {
  OpenExisting("Guide.dat");
  for (const HostileName& name : HostileNames()) {
    const TreeSnapshot before(Folder.Path());
    Type("FileSaveAs", "SaveAs", name);
    ExpectOnlyTheFile(name, ".dat", kGuide, before);
    State.DocPath = "Guide.dat";
  }
}

TEST_F(HostileNamesTest, ANewDocumentIsMadeInTheProgramsFolderOrNotAtAll) {
  Start();
  for (const HostileName& name : HostileNames()) {
    const TreeSnapshot before(Folder.Path());
    Type("FileNew", "NewDoc", name);
    ExpectOnlyTheFile(name, ".dat", "\r\n", before);
    State.DocPath.clear();
  }
}

TEST_F(HostileNamesTest, DocumentsAndPlansOfRandomNamesLieInTheProgramsFolder) {
  std::mt19937 random(8);
  ReadDocumentText(kGuide, State);
  const Plan plan;
  const std::string plan_bytes = PlanText(plan);
  for (int i = 0; i < 2 * HostileNameCount(); ++i) {
    const HostileName name = RandomHostileName(random);
    const TreeSnapshot before(Folder.Path());
    const bool is_plan = i % 2 == 0;
    if (is_plan) {
      StoreAs(name, kPlanExtension, [&](const fs::path& file) {
        State.PlanPath = file;
        SavePlan(plan, State, System);
      });
    } else {
      StoreAs(name, ".dat", [&](const fs::path& file) {
        State.DocPath = file;
        SaveDocument(State, System);
      });
    }
    ExpectOnlyTheFile(name, is_plan ? kPlanExtension : ".dat", is_plan ? plan_bytes : kGuide, before);
    if (HasFailure()) break;
  }
}

TEST_F(HostileNamesTest, BackupsOfRandomNamesLieInTheProgramsFolder) {
  std::mt19937 random(9);
  for (int i = 0; i < HostileNameCount(); ++i) {
    const HostileName name = RandomHostileName(random);
    if (name.Left.empty() || !Fits(name, ".dat")) continue;
    SCOPED_TRACE(Shown(name));
    const fs::path file = name.Left + ".dat";
    const std::string backup = std::string(kProgram) + name.Left + ".bak";
    Folder.Write(State.ProgramFolder / file, "document");
    const TreeSnapshot before(Folder.Path());
    Program.Run([&] { BackUpDocument(file, State, System); });
    // A name that a list cuts before its full stop stands for files without a name of their own.
    const bool is_cut = Characters(name.Left) >= 25;
    EXPECT_EQ(Program.Failures.size(), is_cut ? 1U : 0U);
    EXPECT_THAT(before.Changes({backup}), IsEmpty());
    EXPECT_EQ(Folder.Has(backup), !is_cut);
    Program.Failures.clear();

    fs::remove(State.ProgramFolder / file);
    if (!is_cut) {
      RestoreDocument(fs::path(name.Left + ".bak"), State, System);
      EXPECT_THAT(before.Changes({backup}), IsEmpty()) << "the document is back";
      fs::remove(Folder.Path() / backup);
      fs::remove(State.ProgramFolder / file);
    }
    RestoreGuide();
    if (HasFailure()) break;
  }
}

TEST_F(HostileNamesTest, ABackupOfANameWithFullStopsTouchesOnlyWhatTheNameStandsFor) {
  for (const char* name : {"..dat", "...dat", "....dat", "a..dat", "..a.dat", ".bak.dat"}) {
    SCOPED_TRACE(name);
    Folder.Write(State.ProgramFolder / name, "document");
    const TreeSnapshot before(Folder.Path());
    Program.Run([&] { BackUpDocument(name, State, System); });
    EXPECT_THAT(before.Changes({"home/program/.bak", "home/program/a.bak"}), IsEmpty());
    Program.Failures.clear();
  }
}

TEST_F(HostileNamesTest, ADeletedDocumentTakesOnlyItselfAndItsBackupAlong) {
  for (const std::string name : {"..", "...", "~", "-rf", "a\\..\\..\\b", "\n", "caf\xE9", " "}) {
    SCOPED_TRACE(name);
    const std::string document = std::string(kProgram) + name + ".dat";
    const std::string backup = std::string(kProgram) + name + ".bak";
    Folder.Write(document, "document");
    Folder.Write(backup, "backup");
    const TreeSnapshot before(Folder.Path());
    DeleteDocument(State.ProgramFolder, name + ".dat");
    EXPECT_THAT(before.Changes(), ElementsAre("gone: " + backup, "gone: " + document));
  }
}

TEST_F(HostileNamesTest, ADeletedDocumentThatIsALinkLeavesWhatItLedTo) {
  fs::create_symlink("../../elsewhere/kept.txt", State.ProgramFolder / "Link.dat");
  fs::create_symlink("../Guide.dat", State.ProgramFolder / "Link.bak");
  const TreeSnapshot before(Folder.Path());
  DeleteDocument(State.ProgramFolder, "Link.dat");
  EXPECT_THAT(before.Changes(), ElementsAre("gone: home/program/Link.bak", "gone: home/program/Link.dat"));
}

TEST_F(HostileNamesTest, ADocumentThatIsALinkIsSavedWhereItLiesAndTheLinkStays) {
  fs::create_symlink("../Guide.dat", State.ProgramFolder / "Link.dat");
  OpenExisting("Guide.dat");
  const TreeSnapshot before(Folder.Path());
  SaveAs("Link");
  EXPECT_THAT(Messages.Shown, testing::SizeIs(1));
  EXPECT_THAT(before.Changes({"home/Guide.dat"}), IsEmpty());
  EXPECT_EQ(Folder.Read("home/Guide.dat"), kGuide);
}

TEST_F(HostileNamesTest, APictureIsNoPlaceToWriteTo) {
  // What the settings hold is carried through; none of it names a file.
  std::string settings;
  for (int line = 1; line <= 20; ++line) settings += line == 10 ? "1\r\n" : "../../elsewhere/kept.txt\r\n";
  Folder.Write("home/program/tavrel.ini", settings);
  fs::create_symlink("../../elsewhere/kept.txt", State.ProgramFolder / "Skin1.jpg");
  const TreeSnapshot before(Folder.Path());
  Start();
  Play("HelpCustomise", "Skins", [](QWidget& dialog) { Click(dialog, "Command1"); });
  EXPECT_THAT(before.Changes(), IsEmpty());
}

}  // namespace
}  // namespace tavrel::test
