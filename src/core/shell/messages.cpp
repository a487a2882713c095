#include "core/shell/messages.h"

#include "core/text/numbers.h"

namespace tavrel::messages {
namespace {

Message Question(std::string_view text) {
  return {std::string(text), Buttons::OkCancel, Icon::Question, std::string(kProgramName)};
}

Message Refusal(std::string_view text) {
  return {std::string(text), Buttons::Ok, Icon::Exclamation, "Oops!"};
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
  return {" Last page is" + SignedText(last_page) +
              ". Not all pages have titles    \r\n and notes, so will not show up in the page    \r\n"
              " table until selected.\r\n",
          Buttons::Ok, Icon::Exclamation, "Please note..."};
}

Message DeleteFolderQuestion(std::string_view path) {
  return {"Are you sure you want to delete...\r\n" + std::string(path), Buttons::OkCancel, Icon::Question,
          "Please confirm"};
}

Message DeleteFolderFailed() {
  return {
      "The folder could not be deleted because    \r\nit contains subfolders, read-only, hidden    \r\n"
      "or system files. Delete it manually using    \r\nWindows Explorer.  \r\n",
      Buttons::Ok, Icon::Exclamation, "Operation failed"};
}

Message PlanOverwritesPages(int top) {
  // The upper number is one more than the last page, and stays so.
  return {"Overwrite pages" + SignedText(top) + " to" + SignedText(top + 25) + "?    ", Buttons::OkCancel,
          Icon::Question, "Save"};
}

Message PublishFinished() {
  return {"Finished...    ", Buttons::Ok, Icon::Information, "Publish"};
}

Message DriveNotAvailable(std::string_view drive) {
  return {std::string("Drive ").append(drive).append(" not available!  "), Buttons::Ok, Icon::Critical,
          "Warning"};
}

}  // namespace tavrel::messages
