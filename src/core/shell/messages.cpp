#include "core/shell/messages.h"

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

Message PublishFinished() {
  return {"Finished...    ", Buttons::Ok, Icon::Information, "Publish"};
}

Message DriveNotAvailable(std::string_view drive) {
  return {std::string("Drive ").append(drive).append(" not available!  "), Buttons::Ok, Icon::Critical,
          "Warning"};
}

}  // namespace tavrel::messages
