#include <QAction>
#include <QMenu>
#include <QTest>

#include <gmock/gmock.h>

#include "core/shell/program_info.h"
#include "support/window_test.h"

namespace tavrel::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

using HelpMenuTest = WindowTest;

TEST_F(HelpMenuTest, HasItsItemsInTheirOrder) {
  std::vector<std::string> items;
  for (const QAction* item : Find<QMenu>(Window(), "HelpMenu").actions()) {
    items.push_back((item->objectName() + "|" + (item->isSeparator() ? "---" : item->text())).toStdString());
    EXPECT_TRUE(item->isEnabled()) << items.back();
    EXPECT_TRUE(item->isVisible()) << items.back();
  }
  EXPECT_THAT(items,
              ElementsAre("HelpHelp|Help", "HelpWebSite|Tavrel Writer Web site", "HelpIpodSite|iPod Web site",
                          "HelpiTunesSite|iTunes Web site", "HelpEmail|Email technical support",
                          "HelpCustomise|Customise", "HelpSep1|---", "HelpAbout|About Tavrel Writer"));
  EXPECT_EQ(Find<QMenu>(Window(), "HelpMenu").title(), "&Help");
}

TEST_F(HelpMenuTest, HelpOpensThePageBesideTheProgramFromItsFolder) {
  Start();
  std::filesystem::current_path("/");
  Choose("HelpHelp");
  EXPECT_THAT(System.Opened, ElementsAre("help.html"));
  EXPECT_EQ(System.OpenedIn, Folder.Path());
  EXPECT_EQ(std::filesystem::current_path(), Folder.Path());
}

TEST_F(HelpMenuTest, HelpDoesNotLookWhetherThePageIsThere) {
  ASSERT_FALSE(Folder.Has("help.html"));
  Choose("HelpHelp");
  EXPECT_THAT(System.Opened, ElementsAre("help.html"));
  EXPECT_TRUE(Messages.Shown.empty());
}

TEST_F(HelpMenuTest, F1OpensTheHelpPage) {
  QTest::keyClick(&Window(), Qt::Key_F1);
  OpenDocument("Guide.dat", kGuide);
  QTest::keyClick(&Body(), Qt::Key_F1);
  EXPECT_THAT(System.Opened, ElementsAre("help.html", "help.html"));
}

TEST_F(HelpMenuTest, WithoutTheProgramsFolderHelpEndsTheProgram) {
  Start();
  // Not every system lets the current folder go.
  std::filesystem::current_path(Folder.Path().parent_path());
  std::filesystem::rename(Folder.Path(), Folder.Path().string() + ".gone");
  Choose("HelpHelp");
  std::filesystem::rename(Folder.Path().string() + ".gone", Folder.Path());
  EXPECT_THAT(Program.Failures, ElementsAre(HasSubstr("could not be opened")));
  EXPECT_TRUE(System.Opened.empty());
}

TEST_F(HelpMenuTest, TheWebPagesAreOpenedByTheirAddresses) {
  for (const char* item : {"HelpWebSite", "HelpIpodSite", "HelpiTunesSite"}) Choose(item);
  EXPECT_THAT(System.Opened,
              ElementsAre(kHomePage, "https://www.apple.com/ipod/", "https://www.apple.com/itunes/"));
  EXPECT_TRUE(Messages.Shown.empty());
}

TEST_F(HelpMenuTest, EmailStartsAMessageToTechnicalSupport) {
  Choose("HelpEmail");
  EXPECT_THAT(System.Opened, ElementsAre(std::string("mailto:") + kSupportAddress));
  EXPECT_TRUE(Messages.Shown.empty());
}

TEST_F(HelpMenuTest, WithoutABrowserAndAMailProgramEachItemTellsSo) {
  System.HasBrowser = false;
  const auto told = [](const std::string& target) {
    return "Tavrel Writer|exclamation|Nothing was found on this computer to open    \r\n" + target +
           "    |OK";
  };
  for (const char* item : {"HelpHelp", "HelpWebSite", "HelpIpodSite", "HelpiTunesSite", "HelpEmail"}) {
    Choose(item);
    EXPECT_EQ(Messages.LastParent, &Window()) << item;
  }
  EXPECT_THAT(Seen(Messages.Shown), ElementsAre(told("help.html"), told(kHomePage), told(kIpodSite),
                                                told(kItunesSite), told(kSupportAddress)));
  EXPECT_TRUE(Program.Failures.empty());
}

TEST_F(HelpMenuTest, AnOpenDocumentIsNotTouched) {
  OpenDocument("Guide.dat", kGuide);
  TypeInto(Title(), "typed");
  for (const char* item : {"HelpHelp", "HelpWebSite", "HelpEmail"}) Choose(item);
  Player.Expect("About", [](QWidget& dialog) { dialog.close(); });
  Choose("HelpAbout");
  EXPECT_EQ(Title().Bytes(), "typed");
  EXPECT_EQ(Folder.Read("Guide.dat"), kGuide);
}

}  // namespace
}  // namespace tavrel::test
