#include "core/shell/messages.h"

#include <gtest/gtest.h>
#include <string>
#include <utility>

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

TEST(Messages, TellOfADriveThatCannotBeRead) {
  ExpectMessage(messages::DriveNotAvailable("D:"), "Drive D: not available!  ", Buttons::Ok, Icon::Critical,
                "Warning");
}

TEST(Messages, TellOfWhatIsDone) {
  ExpectMessage(messages::ProjectSaved(), "Project saved...    ", Buttons::Ok, Icon::Information,
                "Tavrel Writer");
  ExpectMessage(messages::PublishFinished(), "Finished...    ", Buttons::Ok, Icon::Information, "Publish");
}

}  // namespace
}  // namespace tavrel::test
