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
      RecoveryNotice({{{"/p/Guide (recovered).dat", {}, {}}, {"/p/Tea (recovered).dat", {}, {}}}, {}}));
  const auto& notice = Find<QLabel>(Window(), "CoverRecovered");
  EXPECT_TRUE(notice.isVisible());
  EXPECT_EQ(notice.text(),
            "What was not saved last time is a project of its own now (File\u00A0>\u00A0Open\u00A0project):\n"
            "Guide (recovered)\nTea (recovered)");
}

TEST_F(RecoveryNoticeTest, DamageAndTroublesAreTold) {
  EXPECT_EQ(RecoveryNotice({{{{}, "/p/Guide (damaged).recovery", {}}}, {"/p/x\ncould not be read"}}),
            "What was kept is damaged. The program's folder holds it as it is:\n"
            "Guide (damaged).recovery\n\n"
            "Something was left from last time that could not be put in order:\n"
            "/p/x\ncould not be read");
}

TEST_F(RecoveryNoticeTest, TheCoverSaysIfNothingCanBeKept) {
  EXPECT_EQ(RecoveryNotice({{}, {}, false}),
            "What you type is kept only when you save: the program's folder cannot be written to.");
}

TEST_F(RecoveryNoticeTest, ManyOrLongNamesDoNotBlowUpTheWindow) {
  FoundAtStart found;
  for (int i = 0; i < 60; ++i) found.Documents.push_back({std::string(200, 'n') + ".dat", {}, {}});
  const QSize before = Window().size();
  Window().TellRecovered(RecoveryNotice(found));
  Settle();
  EXPECT_EQ(Window().size(), before);
  EXPECT_TRUE(Find<QLabel>(Window(), "CoverRecovered").text().endsWith("\nand 52 more"));
}

TEST_F(RecoveryNoticeTest, TheStatusBarSaysWhileNothingCanBeKept) {
  OpenDocument("Guide.dat", kGuide);
  Window().TellNotKept("/p/x\ncould not be written");
  EXPECT_EQ(Window().statusBar()->currentMessage(),
            "If the program stops now, what is not saved is lost: /p/x could not be written");
  Window().TellNotKept({});
  EXPECT_EQ(Window().statusBar()->currentMessage(), "");
}

}  // namespace
}  // namespace tavrel::test
