#include "core/shell/messages.h"

#include <gtest/gtest.h>

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
