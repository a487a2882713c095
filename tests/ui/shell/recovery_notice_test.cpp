#include "ui/shell/recovery_notice.h"

#include <QLabel>

#include "support/window_test.h"

namespace tavrel::test {
namespace {

using RecoveryNoticeTest = WindowTest;

TEST_F(RecoveryNoticeTest, WithoutAnythingFoundTheCoverSaysNothing) {
  EXPECT_EQ(RecoveryNotice({}), QString());
  Window().TellRecovered({});
  EXPECT_FALSE(Find<QLabel>(Window(), "CoverRecovered").isVisible());
}

TEST_F(RecoveryNoticeTest, TheCoverNamesEveryDocumentThatWasBroughtBack) {
  Window().TellRecovered(
      RecoveryNotice({{{"/p/Guide (recovered).dat", {}}, {"/p/Tea (recovered).dat", {}}}, {}}));
  const auto& notice = Find<QLabel>(Window(), "CoverRecovered");
  EXPECT_TRUE(notice.isVisible());
  EXPECT_EQ(notice.text(),
            "What was not saved last time is a project of its own now (File > Open project):\n"
            "Guide (recovered)\nTea (recovered)");
}

TEST_F(RecoveryNoticeTest, DamageAndTroublesAreTold) {
  EXPECT_EQ(RecoveryNotice({{{{}, "/p/Guide (damaged).recovery"}}, {"/p/x\ncould not be read"}}),
            "Not all of it could be read. The file is kept in the program's folder:\n"
            "Guide (damaged).recovery\n\n"
            "Something that was not saved last time could not be brought back:\n"
            "/p/x\ncould not be read");
}

TEST_F(RecoveryNoticeTest, TheStatusBarSaysThatNothingCanBeKept) {
  OpenDocument("Guide.dat", kGuide);
  Window().TellNotKept("/p/x\ncould not be written");
  EXPECT_EQ(Window().statusBar()->currentMessage(), "Nothing is kept for a crash: /p/x could not be written");
}

}  // namespace
}  // namespace tavrel::test
