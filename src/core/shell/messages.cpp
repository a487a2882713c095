#include "core/shell/messages.h"

#include <utility>

#include "core/text/numbers.h"

namespace tavrel::messages {
namespace {

Message Question(std::string_view text) {
  return {std::string(text), Buttons::OkCancel, Icon::Question, std::string(kProgramName)};
}

Message Refusal(std::string_view text) {
  return {std::string(text), Buttons::Ok, Icon::Exclamation, "Oops!"};
}

/// The message with the arguments in place of %1 and %2.
Message Filled(Message message, std::vector<std::string> arguments) {
  message.Pattern = std::exchange(message.Text, {});
  message.Arguments = std::move(arguments);
  for (std::size_t at = 0; at < message.Pattern.size(); ++at) {
    const bool placed = message.Pattern[at] == '%';
    if (placed) {
      message.Text += message.Arguments.at(static_cast<std::size_t>(message.Pattern.at(++at) - '1'));
    } else {
      message.Text += message.Pattern[at];
    }
  }
  return message;
}

}  // namespace

Message FileExists() {
  return {" File already exists. Overwrite?    ", Buttons::OkCancel, Icon::Exclamation, "Warning"};
}

Message NewErasesDocument() {
  return Question("Creating a new document will erase the    \r\ncurrent one in memory. Continue?    ");
}

Message OpenErasesDocument() {
  return Question("Opening a new document will erase the    \r\ncurrent one in memory. Continue?    ");
}

Message CloseDoesNotSave() {
  return Question("Closing the document does not save it,    \r\nso any changes will be lost. Continue?    ");
}

Message ExitLosesChanges() {
  return Question(
      "If you exit without saving, you will lose    \r\nany changes to this project. Continue?    ");
}

Message NothingToClose() {
  return Refusal("Nothing to close!    ");
}

Message NothingToSave() {
  return Refusal("Nothing to save!    ");
}

Message NothingToPublish() {
  return Refusal("Nothing to publish!    ");
}

Message ProjectSaved() {
  return {"Project saved...    ", Buttons::Ok, Icon::Information, std::string(kProgramName)};
}

Message NotFound() {
  return {"Not found!    ", Buttons::Ok, Icon::Exclamation, "Find"};
}

Message ImportErasesDocument() {
  return Question("Importing a new document will erase the    \r\ncurrent one in memory. Continue?    ");
}

Message ImportFinished(int last_page) {
  return Filled(
      {" Last page is%1. Not all pages have titles    \r\n and notes, so will not show up in the page    "
       "\r\n table until selected.\r\n",
       Buttons::Ok, Icon::Exclamation, "Please note..."},
      {SignedText(last_page)});
}

Message DeleteFolderQuestion(std::string_view path) {
  return Filled(
      {"Are you sure you want to delete...\r\n%1", Buttons::OkCancel, Icon::Question, "Please confirm"},
      {std::string(path)});
}

Message DeleteFolderFailed() {
  return {
      "The folder could not be deleted because    \r\nit contains subfolders, read-only, hidden    \r\n"
      "or system files. Delete it manually using    \r\nWindows Explorer.  \r\n",
      Buttons::Ok, Icon::Exclamation, "Operation failed"};
}

Message PlanOverwritesPages(int top) {
  // The upper number is one more than the last page, and stays so.
  return Filled({"Overwrite pages%1 to%2?    ", Buttons::OkCancel, Icon::Question, "Save"},
                {SignedText(top), SignedText(top + 25)});
}

Message PublishFinished() {
  return {"Finished...    ", Buttons::Ok, Icon::Information, "Publish"};
}

Message DriveNotAvailable(std::string_view drive) {
  return Filled({"Drive %1 not available!  ", Buttons::Ok, Icon::Critical, "Warning"}, {std::string(drive)});
}

Message SystemInfoUnavailable() {
  return {"System Information Is Unavailable At This Time", Buttons::Ok, Icon::None,
          std::string(kProgramName)};
}

Message CannotOpen(std::string_view target) {
  return Filled({"Nothing was found on this computer to open    \r\n%1    ", Buttons::Ok, Icon::Exclamation,
                 std::string(kProgramName)},
                {std::string(target)});
}

}  // namespace tavrel::messages
