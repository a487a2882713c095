#include <algorithm>

#include "process/process_test.h"
#include "support/fixtures.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;

const std::string kTypedTrio =
    "\r\n 1 ,<title>typed</title><text>one</text>\r\n 2 ,<title>B</title><text>two</text>\r\n"
    " 3 ,<title>C</title><text>three</text>\r\n";

class RecoveryTest : public ProcessTest {
 protected:
  void SetUp() override {
    ProcessTest::SetUp();
    home_.Write(folder_ / "Trio.dat", kTrio);
  }

  bool IsRecovered() const { return home_.Has(folder_ / "Trio (recovered).dat"); }

  /// The recovery files, locks and temporary files.
  std::ptrdiff_t FilesOfItsOwn() const {
    const auto files = home_.Files();
    return std::count_if(files.begin(), files.end(),
                         [](const auto& file) { return file.first.find(".tavrel-") != std::string::npos; });
  }
};

TEST_F(RecoveryTest, AKilledProgramLosesNothingThatWasTyped) {
  Run({"open=Trio", "title=typed", "wait-for=.tavrel-1.recovery", "kill"});
  EXPECT_EQ(home_.Read(folder_ / "Trio.dat"), kTrio);
  home_.Write(folder_ / ".tavrel-123.tmp", "half");
  Run({"tell-cover", "exit"});
  EXPECT_TRUE(Says("cover: What was not saved last time")) << output_;
  EXPECT_TRUE(Says("\nTrio (recovered)\n")) << output_;
  EXPECT_EQ(home_.Read(folder_ / "Trio (recovered).dat"), kTypedTrio);
  EXPECT_EQ(home_.Read(folder_ / "Trio.dat"), kTrio);
  EXPECT_EQ(FilesOfItsOwn(), 0);
}

TEST_F(RecoveryTest, TheRecoveredDocumentOpensLikeAnyOther) {
  Run({"open=Trio", "title=typed", "wait-for=.tavrel-1.recovery", "kill"});
  Run({"open=Trio (recovered)", "title=later", "save", "exit"});
  EXPECT_EQ(status_, 0);
  EXPECT_NE(home_.Read(folder_ / "Trio (recovered).dat").find("<title>later</title>"), std::string::npos);
}

TEST_F(RecoveryTest, WhatTheCloseBoxWouldLoseWaitsForTheNextStart) {
  Run({"open=Trio", "title=typed", "close"});
  EXPECT_EQ(status_, 0);
  Run({"exit"});
  EXPECT_EQ(home_.Read(folder_ / "Trio (recovered).dat"), kTypedTrio);
}

TEST_F(RecoveryTest, NothingIsRecoveredAfterSavingAndClosing) {
  Run({"open=Trio", "title=typed", "wait-for=.tavrel-1.recovery", "save", "close"});
  EXPECT_EQ(FilesOfItsOwn(), 0);
  Run({"tell-cover", "exit"});
  EXPECT_FALSE(Says("cover:"));
  EXPECT_FALSE(IsRecovered());
}

TEST_F(RecoveryTest, WhatWasSavedJustBeforeAKillIsNotRecovered) {
  Run({"open=Trio", "title=typed", "wait-for=.tavrel-1.recovery", "title=final", "save",
       "wait-until-gone=.tavrel-1.recovery", "kill"});
  Run({"tell-cover", "exit"});
  EXPECT_FALSE(Says("cover:")) << output_;
  EXPECT_FALSE(IsRecovered());
}

TEST_F(RecoveryTest, NothingIsRecoveredOfWhatTheUserLeft) {
  Run({"open=Trio", "title=typed", "wait-for=.tavrel-1.recovery", "exit"});
  EXPECT_EQ(FilesOfItsOwn(), 0);
  Run({"exit"});
  EXPECT_FALSE(IsRecovered());
}

TEST_F(RecoveryTest, WhatAnErrorRescuedIsNotRecoveredOnceMore) {
  Run({"open=Trio", "title=typed", "wait-for=.tavrel-1.recovery", "block=Trio.dat", "save"});
  EXPECT_EQ(status_, 1);
  EXPECT_TRUE(home_.Has(folder_ / "Trio (rescued).dat"));
  Run({"exit"});
  EXPECT_FALSE(IsRecovered());
}

}  // namespace
}  // namespace tavrel::test
