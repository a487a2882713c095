#include <gtest/gtest.h>
#include <string>

#include "core/document/recovery.h"
#include "support/fake_platform.h"
#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

/// A recovery file that was cut short, of a document whose name no folder takes.
std::string DamagedFile(const std::string& text) {
  return "recovery,999," + std::string(300, 'x') + ".dat\r\n" + text;
}

TEST(RecoverDraft, PutsADamagedFileAsideWhoseDocumentHasTooLongAName) {
  const TemporaryFolder folder;
  FakePlatform system;
  const std::string bytes = DamagedFile("no document");
  folder.Write("open.recovery", bytes);
  const Recovered recovered = RecoverDraft(folder.Path() / "open.recovery", system);
  EXPECT_EQ(recovered.Document, "");
  EXPECT_FALSE(folder.Has("open.recovery"));
  ASSERT_TRUE(folder.Has(recovered.Damaged.filename()));
  EXPECT_EQ(folder.Read(recovered.Damaged.filename()), bytes);
}

TEST(RecoverDraft, BringsBackWhatIsLeftOfSuchAFileOnce) {
  const TemporaryFolder folder;
  FakePlatform system;
  folder.Write("open.recovery", DamagedFile("\r\n 1 ,<title>One</title>\r\n"));
  const Recovered recovered = RecoverDraft(folder.Path() / "open.recovery", system);
  EXPECT_EQ(folder.Read(recovered.Document.filename()), "\r\n 1 ,<title>One</title>\r\n");
  EXPECT_FALSE(folder.Has("open.recovery"));
  EXPECT_EQ(folder.Files().size(), 2U);
}

}  // namespace
}  // namespace tavrel::test
