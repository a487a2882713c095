#include "core/document/rescue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <vector>

#include "core/document/document_file.h"
#include "support/fake_platform.h"
#include "support/fixtures.h"
#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;
using testing::EndsWith;
using testing::StartsWith;
using Operation = FailingFiles::Operation;

class RescueTest : public testing::Test {
 protected:
  RescueTest() {
    State.DocPath = "Guide.dat";
    ReadDocumentText(kSongs, State);
  }

  fs::path Rescue(const std::vector<fs::path>& folders) { return RescueDocument(State, System, folders); }

  TemporaryFolder First;
  TemporaryFolder Second;
  FakePlatform System;
  Global State;
};

TEST_F(RescueTest, SavesTheDocumentInMemoryBesideItsFile) {
  First.Write("Guide.dat", kTrio);
  const fs::path copy = Rescue({First.Path(), Second.Path()});
  EXPECT_EQ(copy.parent_path(), First.Path());
  EXPECT_THAT(copy.filename().string(), StartsWith("Guide"));
  EXPECT_THAT(copy.filename().string(), EndsWith(" (rescued).dat"));
  EXPECT_EQ(First.Read(copy.filename()), kSongs);
  EXPECT_EQ(First.Read("Guide.dat"), kTrio);
  EXPECT_TRUE(Second.Files().empty());
}

TEST_F(RescueTest, NeverReplacesAFile) {
  std::vector<fs::path> copies;
  for (int i = 0; i < 5; ++i) {
    const fs::path copy = Rescue({First.Path()});
    EXPECT_EQ(First.Read(copy.filename()), kSongs);
    EXPECT_THAT(copy.filename().string(), EndsWith(" (rescued).dat"));
    First.Write(copy.filename(), "taken");
    copies.push_back(copy);
  }
  EXPECT_EQ(First.Files().size(), 5U);
  for (const fs::path& copy : copies) EXPECT_EQ(First.Read(copy.filename()), "taken");
}

TEST_F(RescueTest, GoesOnToTheNextFolderThatTakesIt) {
  const fs::path copy = Rescue({First.Path() / "gone", Second.Path()});
  EXPECT_EQ(copy.parent_path(), Second.Path());
  EXPECT_EQ(Second.Read(copy.filename()), kSongs);
}

TEST_F(RescueTest, LeavesNothingOfACopyThatFailed) {
  for (const Operation step :
       {Operation::CreateNew, Operation::Write, Operation::Flush, Operation::Replace}) {
    const TemporaryFolder folder;
    System.Files.FailAt(step, 1, std::errc::no_space_on_device);
    const fs::path copy = Rescue({folder.Path()});
    EXPECT_EQ(folder.Files().size(), 1U);
    EXPECT_EQ(folder.Read(copy.filename()), kSongs);
  }
}

TEST_F(RescueTest, GivesNoPathIfNoFolderTakesIt) {
  EXPECT_TRUE(Rescue({First.Path() / "gone", Second.Path() / "gone"}).empty());
  EXPECT_TRUE(Rescue({}).empty());
}

TEST_F(RescueTest, TakesAPlainNameWhereTheDocumentsOwnIsRefused) {
  State.DocPath = std::string(245, 'n') + ".dat";
  const fs::path copy = Rescue({First.Path()});
  EXPECT_EQ(copy.filename(), "Project (rescued).dat");
  EXPECT_EQ(First.Read(copy.filename()), kSongs);
}

}  // namespace
}  // namespace tavrel::test
