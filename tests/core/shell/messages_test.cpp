#include "core/shell/messages.h"

#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

namespace tavrel::test {
namespace {

void ExpectMessage(const Message& message, const char* text, Buttons buttons, Icon icon, const char* title) {
  EXPECT_EQ(message.Text, text);
  EXPECT_EQ(message.Buttons, buttons) << text;
  EXPECT_EQ(message.Icon, icon) << text;
  EXPECT_EQ(message.Title, title) << text;
}

void ExpectQuestion(const Message& message, const char* text) {
  ExpectMessage(message, text, Buttons::OkCancel, Icon::Question, "Tavrel Writer");
}

void ExpectRefusal(const Message& message, const char* text) {
  ExpectMessage(message, text, Buttons::Ok, Icon::Exclamation, "Oops!");
}

TEST(Messages, AskBeforeTheDocumentIsLost) {
  ExpectQuestion(messages::NewErasesDocument(),
                 "Creating a new document will erase the    \r\ncurrent one in memory. Continue?    ");
  ExpectQuestion(messages::OpenErasesDocument(),
                 "Opening a new document will erase the    \r\ncurrent one in memory. Continue?    ");
  ExpectQuestion(messages::CloseDoesNotSave(),
                 "Closing the document does not save it,    \r\nso any changes will be lost. Continue?    ");
  ExpectQuestion(
      messages::ExitLosesChanges(),
      "If you exit without saving, you will lose    \r\nany changes to this project. Continue?    ");
}

TEST(Messages, AskBeforeAnImportAndTellOfItsLastPage) {
  ExpectQuestion(messages::ImportErasesDocument(),
                 "Importing a new document will erase the    \r\ncurrent one in memory. Continue?    ");
  for (const auto& [page, text] : {std::pair(1, " Last page is 1. Not"),
                                   {12, " Last page is 12. Not"},
                                   {999, " Last page is 999. Not"}}) {
    const std::string whole = std::string(text) +
                              " all pages have titles    \r\n and notes, so will not show up in the page    "
                              "\r\n table until selected.\r\n";
    ExpectMessage(messages::ImportFinished(page), whole.c_str(), Buttons::Ok, Icon::Exclamation,
                  "Please note...");
  }
}

TEST(Messages, AskBeforeAFolderIsDeletedAndTellIfItCannotBe) {
  ExpectMessage(messages::DeleteFolderQuestion("C:\\TW\\Guide"),
                "Are you sure you want to delete...\r\nC:\\TW\\Guide", Buttons::OkCancel, Icon::Question,
                "Please confirm");
  ExpectMessage(messages::DeleteFolderFailed(),
                "The folder could not be deleted because    \r\nit contains subfolders, read-only, hidden    "
                "\r\nor system files. Delete it manually using    \r\nWindows Explorer.  \r\n",
                Buttons::Ok, Icon::Exclamation, "Operation failed");
}

TEST(Messages, RefuseWithoutADocument) {
  ExpectRefusal(messages::NothingToClose(), "Nothing to close!    ");
  ExpectRefusal(messages::NothingToSave(), "Nothing to save!    ");
  ExpectRefusal(messages::NothingToPublish(), "Nothing to publish!    ");
}

TEST(Messages, WarnBeforeAFileIsReplaced) {
  ExpectMessage(messages::FileExists(), " File already exists. Overwrite?    ", Buttons::OkCancel,
                Icon::Exclamation, "Warning");
}

TEST(Messages, AskBeforeAPlanOverwritesPagesAndNameOnePageTooMany) {
  for (const auto& [top, text] : {std::pair(2, "Overwrite pages 2 to 27?    "),
                                  {1, "Overwrite pages 1 to 26?    "},
                                  {3, "Overwrite pages 3 to 28?    "},
                                  {950, "Overwrite pages 950 to 975?    "}}) {
    ExpectMessage(messages::PlanOverwritesPages(top), text, Buttons::OkCancel, Icon::Question, "Save");
  }
}

TEST(Messages, TellOfADriveThatCannotBeRead) {
  ExpectMessage(messages::DriveNotAvailable("D:"), "Drive D: not available!  ", Buttons::Ok, Icon::Critical,
                "Warning");
}

TEST(Messages, TellOfWhatIsDone) {
  ExpectMessage(messages::ProjectSaved(), "Project saved...    ", Buttons::Ok, Icon::Information,
                "Tavrel Writer");
  ExpectMessage(messages::PublishFinished(), "Finished...    ", Buttons::Ok, Icon::Information, "Publish");
}

TEST(Messages, TellThatThereIsNoSystemInformation) {
  ExpectMessage(messages::SystemInfoUnavailable(), "System Information Is Unavailable At This Time",
                Buttons::Ok, Icon::None, "Tavrel Writer");
}

TEST(Messages, TellOfAPageThatNothingOpens) {
  ExpectMessage(messages::CannotOpen("help.html"),
                "Nothing was found on this computer to open    \r\nhelp.html    ", Buttons::Ok,
                Icon::Exclamation, "Tavrel Writer");
}

using Arguments = std::vector<std::string>;

TEST(Messages, KeepWhatWasFilledInApartFromTheText) {
  const Message question = messages::DeleteFolderQuestion("C:\\TW\\Guide");
  EXPECT_EQ(question.Pattern, "Are you sure you want to delete...\r\n%1");
  EXPECT_EQ(question.Arguments, Arguments{"C:\\TW\\Guide"});
  const Message drive = messages::DriveNotAvailable("D:");
  EXPECT_EQ(drive.Pattern, "Drive %1 not available!  ");
  EXPECT_EQ(drive.Arguments, Arguments{"D:"});
  const Message page = messages::CannotOpen("help.html");
  EXPECT_EQ(page.Pattern, "Nothing was found on this computer to open    \r\n%1    ");
  EXPECT_EQ(page.Arguments, Arguments{"help.html"});
}

TEST(Messages, FillInNumbersWithTheBlankBeforeThem) {
  const Message plan = messages::PlanOverwritesPages(2);
  EXPECT_EQ(plan.Pattern, "Overwrite pages%1 to%2?    ");
  EXPECT_EQ(plan.Arguments, (Arguments{" 2", " 27"}));
  const Message last = messages::ImportFinished(12);
  EXPECT_EQ(
      last.Pattern,
      " Last page is%1. Not all pages have titles    \r\n and notes, so will not show up in the page    "
      "\r\n table until selected.\r\n");
  EXPECT_EQ(last.Arguments, Arguments{" 12"});
}

TEST(Messages, LeaveAPercentSignInANameAlone) {
  EXPECT_EQ(messages::DeleteFolderQuestion("/%1/%2/100%").Text,
            "Are you sure you want to delete...\r\n/%1/%2/100%");
  EXPECT_EQ(messages::DriveNotAvailable("%1").Text, "Drive %1 not available!  ");
  EXPECT_EQ(messages::DeleteFolderQuestion("").Text, "Are you sure you want to delete...\r\n");
}

TEST(Messages, HaveNoPatternIfNothingIsFilledIn) {
  for (const Message& message :
       {messages::FileExists(), messages::NewErasesDocument(), messages::OpenErasesDocument(),
        messages::CloseDoesNotSave(), messages::ExitLosesChanges(), messages::NothingToClose(),
        messages::NothingToSave(), messages::NothingToPublish(), messages::ProjectSaved(),
        messages::NotFound(), messages::ImportErasesDocument(), messages::DeleteFolderFailed(),
        messages::PublishFinished(), messages::SystemInfoUnavailable()}) {
    EXPECT_EQ(message.Pattern, "") << message.Text;
    EXPECT_EQ(message.Arguments, Arguments{}) << message.Text;
    EXPECT_EQ(message.Text.find('%'), std::string::npos) << message.Text;
  }
}

}  // namespace
}  // namespace tavrel::test
