#include <fstream>
#include <gmock/gmock.h>
#include <iterator>
#include <string>

#include "platform/system_platform.h"
#include "ui/document/document_test.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

/// Documents on a real Windows.
class WindowsNamesTest : public DocumentTest {
 protected:
  WindowsNamesTest() : DocumentTest(MakeSystemPlatform()) {}

  void SetUp() override { OpenDocument("Guide.dat", kGuide); }

  /// File > New or Save As with this name.
  void Type(const QString& menu_item, const QString& dialog_name, const QString& name) {
    Play(menu_item, dialog_name, [&](QWidget& dialog) {
      TypeInto(dialog, "Text1", name);
      Click(dialog, "Command1");
      dialog.close();
    });
  }

  void ExpectRefused(const std::string& file) {
    EXPECT_THAT(Program.Failures, ElementsAre(AllOf(HasSubstr(file), HasSubstr("Choose another name."))));
    EXPECT_THAT(Seen(Messages.Shown), Not(Contains(kOverwrite)));
    Program.Failures.clear();
  }

  static bool CanBeOpened(const fs::path& file) { return std::ifstream(file).is_open(); }
};

class DeviceNamesTest : public WindowsNamesTest, public testing::WithParamInterface<const char*> {};

TEST_P(DeviceNamesTest, NoDocumentIsStoredInADevice) {
  const auto files = Folder.Files();
  for (const auto& [item, dialog] : {std::pair("FileSaveAs", "SaveAs"), std::pair("FileNew", "NewDoc")}) {
    Type(item, dialog, GetParam());
    ExpectRefused(std::string(GetParam()) + ".dat");
    EXPECT_EQ(Folder.Files(), files);
  }
}

INSTANTIATE_TEST_SUITE_P(Names, DeviceNamesTest,
                         testing::Values("NUL", "nul", "CON", "Aux", "prn", "COM1", "LPT9"));

TEST_F(WindowsNamesTest, NoDocumentIsStoredInAStreamOfAnotherFile) {
  Folder.Write("Guide", "a file");
  const auto files = Folder.Files();
  Type("FileSaveAs", "SaveAs", "Guide:x");
  ExpectRefused("Guide:x.dat");
  EXPECT_EQ(Folder.Files(), files);
  EXPECT_FALSE(CanBeOpened(Folder.Path() / "Guide:x.dat"));
}

TEST_F(WindowsNamesTest, NoDocumentIsStoredOnADriveThatANameSeemsToName) {
  for (const char letter : std::string("CDEZ")) {
    const std::string name = std::string(1, letter) + ":tavrel-test-x";
    Type("FileSaveAs", "SaveAs", QString::fromStdString(name));
    ExpectRefused(name + ".dat");
    EXPECT_FALSE(CanBeOpened(name + ".dat")) << name;
    EXPECT_EQ(State.DocPath, "Guide.dat");
  }
}

TEST_F(WindowsNamesTest, AFileOnTheDriveThatANameSeemsToNameIsNotLookedAt) {
  const fs::path other("E:\\tavrel-test-y.dat");
  if (!fs::is_directory("E:\\")) GTEST_SKIP() << "there is no drive E:";
  {
    std::ofstream file(other, std::ios::binary);
    file << "not to be touched";
  }
  Type("FileSaveAs", "SaveAs", "E:tavrel-test-y");
  ExpectRefused("E:tavrel-test-y.dat");
  std::string bytes;
  {
    std::ifstream file(other, std::ios::binary);
    bytes.assign(std::istreambuf_iterator<char>(file), {});
  }
  fs::remove(other);
  EXPECT_EQ(bytes, "not to be touched");
}

TEST_F(WindowsNamesTest, SignsThatNoFileNameHasAreRefused) {
  const auto files = Folder.Files();
  for (const std::string name : {"a<b", "a>b", "a|b", "a\"b"}) {
    Type("FileSaveAs", "SaveAs", QString::fromStdString(name));
    ExpectRefused(name + ".dat");
  }
  EXPECT_EQ(Folder.Files(), files);
}

TEST_F(WindowsNamesTest, FullStopsAreTakenOutOfATypedName) {
  SaveAs("My.Notes");
  EXPECT_EQ(Folder.Read("MyNotes.dat"), kGuide);
  ExpectDocument("MyNotes");
  EXPECT_EQ(Folder.Files().size(), 3U) << "the settings and two documents";
}

TEST_F(WindowsNamesTest, ADocumentWhoseNameDiffersOnlyInCaseIsReplacedAfterAQuestion) {
  OpenDocument("Trio.dat", kTrio);
  const auto count = Folder.Files().size();
  Messages.Shown.clear();
  Messages.Answers = {false};
  Type("FileSaveAs", "SaveAs", "GUIDE");
  EXPECT_EQ(Seen(Messages.Shown), Texts{kOverwrite});
  EXPECT_EQ(Folder.Read("Guide.dat"), kGuide);
  ExpectDocument("Trio");

  Messages.Shown.clear();
  SaveAs("GUIDE");
  EXPECT_EQ(Seen(Messages.Shown), Texts{kOverwrite});
  EXPECT_EQ(Folder.Read("Guide.dat"), kTrio);
  EXPECT_EQ(Folder.Files().size(), count);
  ExpectDocument("GUIDE");
  EXPECT_TRUE(Program.Failures.empty());
}

}  // namespace
}  // namespace tavrel::test
