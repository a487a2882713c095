#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>

#include "core/ipod/folder_store.h"
#include "core/text/run_time_error.h"
#include "support/fake_platform.h"
#include "support/temporary_folder.h"
#include "support/tree_snapshot.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::ThrowsMessage;
using Operation = FailingFiles::Operation;

/// Copies and deletes projects around which links lead elsewhere.
class CopiesStayInsideTest : public testing::Test {
 protected:
  CopiesStayInsideTest() {
    System.FlushesVolumes = false;
    Folder.Write("elsewhere/kept.txt", "kept");
    Folder.Write("local/Guide/a.txt", "a");
    Folder.Write("local/Guide/b.txt", "b");
    fs::create_directory(Folder.Path() / "device");
  }

  fs::path Guide() const { return Folder.Path() / "local/Guide"; }
  fs::path Copied() const { return Folder.Path() / "device/Guide"; }
  void Copy() {
    CopyFolder(Guide(), Copied(), System, [](int, int) {});
  }

  void ExpectRefused(const fs::path& file) {
    EXPECT_THAT([&] { Copy(); }, ThrowsMessage<FileError>(HasSubstr(PathText(file))));
  }

  TemporaryFolder Folder;
  FakePlatform System;
};

TEST_F(CopiesStayInsideTest, AFileTakesThePlaceOfALinkThatLeadsOut) {
  fs::create_directory(Copied());
  fs::create_symlink("../../elsewhere/kept.txt", Copied() / "a.txt");
  fs::create_symlink("../../elsewhere/new.txt", Copied() / "b.txt");
  const TreeSnapshot before(Folder.Path());
  Copy();
  EXPECT_THAT(before.Changes({"device/Guide"}), IsEmpty());
  EXPECT_FALSE(fs::is_symlink(Copied() / "a.txt"));
  EXPECT_EQ(Folder.Read("device/Guide/a.txt"), "a");
  EXPECT_EQ(Folder.Read("device/Guide/b.txt"), "b");
}

TEST_F(CopiesStayInsideTest, ACopyThatFailsTakesNothingFromWhereALinkLed) {
  fs::remove(Guide() / "b.txt");
  for (const Operation step :
       {Operation::Open, Operation::CreateOrEmpty, Operation::Read, Operation::Write}) {
    fs::remove_all(Copied());
    fs::create_directory(Copied());
    fs::create_symlink("../../elsewhere/kept.txt", Copied() / "a.txt");
    const TreeSnapshot before(Folder.Path());
    System.Files.FailAt(step, 1, std::errc::io_error);
    EXPECT_THROW(Copy(), FileError);
    EXPECT_THAT(before.Changes({"device/Guide"}), IsEmpty());
    EXPECT_FALSE(Folder.Has("device/Guide/a.txt")) << "no half of a file";
  }
}

TEST_F(CopiesStayInsideTest, ALinkBackToTheSourceStaysAndTheSourceToo) {
  fs::create_directory(Copied());
  fs::create_symlink("../../local/Guide/a.txt", Copied() / "a.txt");
  const TreeSnapshot before(Folder.Path());
  Copy();
  EXPECT_THAT(before.Changes({"device/Guide/b.txt"}), IsEmpty());
}

TEST_F(CopiesStayInsideTest, ALinkInAProjectThatIsCopiedOntoItselfStays) {
  fs::create_symlink("../../elsewhere/kept.txt", Guide() / "c.txt");
  fs::create_directory_symlink("../local/Guide", Copied());
  const TreeSnapshot before(Folder.Path());
  Copy();
  EXPECT_THAT(before.Changes(), IsEmpty());
}

TEST_F(CopiesStayInsideTest, ALinkFromOneFileOfTheCopyToAnotherLosesNeither) {
  fs::create_directory(Copied());
  fs::create_symlink("A.txt", Copied() / "a.txt");
  Folder.Write("local/Guide/A.txt", "capital");
  Copy();
  EXPECT_EQ(Folder.Read("device/Guide/a.txt"), "a");
  EXPECT_EQ(Folder.Read("device/Guide/A.txt"), "capital");
}

TEST_F(CopiesStayInsideTest, ALinkToAFolderIsAFolderInTheFilesPlace) {
  fs::create_directory(Copied());
  fs::create_directory_symlink("../../elsewhere", Copied() / "a.txt");
  const TreeSnapshot before(Folder.Path());
  ExpectRefused(Copied() / "a.txt");
  EXPECT_THAT(before.Changes({"device/Guide/b.txt"}), IsEmpty());
}

TEST_F(CopiesStayInsideTest, APlaceThatIsALinkToNothingOrToItselfIsRefused) {
  for (const char* target : {"../elsewhere/gone", "Guide"}) {
    fs::remove(Copied());
    fs::create_directory_symlink(target, Copied());
    const TreeSnapshot before(Folder.Path());
    ExpectRefused(Copied());
    EXPECT_THAT(before.Changes(), IsEmpty());
  }
}

TEST_F(CopiesStayInsideTest, AProjectGoesIntoItselfOnlyOneStepDeep) {
  const TreeSnapshot before(Folder.Path());
  CopyFolder(Guide(), Guide() / "Guide", System, [](int, int) {});
  EXPECT_THAT(before.Changes(), ElementsAre("made: local/Guide/Guide", "made: local/Guide/Guide/a.txt",
                                            "made: local/Guide/Guide/b.txt"));
}

TEST_F(CopiesStayInsideTest, LinksThatLeadInACircleAreNeitherListedNorCopied) {
  fs::create_symlink("d.txt", Guide() / "c.txt");
  fs::create_symlink("c.txt", Guide() / "d.txt");
  fs::create_directory_symlink("up", Guide().parent_path() / "up");
  fs::create_directory_symlink("..", Guide() / "round");
  EXPECT_THAT(Subfolders(Guide().parent_path(), System), ElementsAre("Guide"));
  const TreeSnapshot before_copy(Folder.Path());
  Copy();
  EXPECT_THAT(before_copy.Changes(),
              ElementsAre("made: device/Guide", "made: device/Guide/a.txt", "made: device/Guide/b.txt"));
  const TreeSnapshot before(Folder.Path());
  EXPECT_FALSE(DeleteFolder(Guide(), System));
  EXPECT_THAT(before.Changes(), ElementsAre("gone: local/Guide/a.txt", "gone: local/Guide/b.txt"));
}

TEST_F(CopiesStayInsideTest, ADeletedProjectTakesNothingOutsideItWithIt) {
  fs::create_symlink("../../elsewhere/kept.txt", Guide() / "c.txt");
  const TreeSnapshot before(Folder.Path());
  EXPECT_TRUE(DeleteFolder(Guide(), System));
  EXPECT_THAT(before.Changes({"local/Guide"}), IsEmpty());
  EXPECT_FALSE(Folder.Has("local/Guide"));
}

TEST_F(CopiesStayInsideTest, ALinkWhosePathEndsInASeparatorIsAllThatIsDeleted) {
  fs::create_directory_symlink("../elsewhere", Copied());
  const TreeSnapshot before(Folder.Path());
  EXPECT_TRUE(DeleteFolder(Copied() / "", System));
  EXPECT_EQ(before.Changes().size(), 1U);
  EXPECT_FALSE(fs::is_symlink(Copied()));
}

TEST_F(CopiesStayInsideTest, NamesOfEveryKindAreCopiedUnderTheSameName) {
  const std::string names[] = {
      "..a",       "...",  "a\\..\\b", "con", "NUL.txt", "-rf", "~",
      "new\nline", "\x01", "caf\xE9",  " ",   "a ",      "a.",  std::string(255, 'x')};
  for (const std::string& name : names) Folder.Write(fs::path("local/Guide") / name, name);
  const TreeSnapshot before(Folder.Path());
  Copy();
  EXPECT_THAT(before.Changes({"device/Guide"}), IsEmpty());
  for (const std::string& name : names) {
    // What begins with a full stop is hidden here, and the hidden is not copied.
    const bool hidden = name.front() == '.';
    EXPECT_EQ(Folder.Has(fs::path("device/Guide") / name), !hidden) << name;
  }
}

}  // namespace
}  // namespace tavrel::test
