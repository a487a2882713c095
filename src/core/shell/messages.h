#pragma once

#include <string>
#include <string_view>

namespace tavrel {

enum class Buttons { Ok, OkCancel };
enum class Icon { None, Information, Question, Exclamation, Critical };

/// A message or question. Lines are joined by CR LF; blanks at the end of a text belong to it.
struct Message {
  std::string Text;
  tavrel::Buttons Buttons = tavrel::Buttons::Ok;
  tavrel::Icon Icon = tavrel::Icon::None;
  std::string Title;
};

inline constexpr const char* kProgramName = "Tavrel Writer";

/// The program's fixed messages.
namespace messages {

Message FileExists();
Message NewErasesDocument();
Message OpenErasesDocument();
Message CloseDoesNotSave();
Message ExitLosesChanges();
Message NothingToClose();
Message NothingToSave();
Message NothingToPublish();
Message ProjectSaved();
Message NotFound();
Message ImportErasesDocument();
Message ImportFinished(int last_page);
Message DeleteFolderQuestion(std::string_view path);
Message DeleteFolderFailed();
/// `top` is the number of the first page that would be overwritten.
Message PlanOverwritesPages(int top);
Message PublishFinished();
Message DriveNotAvailable(std::string_view drive);

}  // namespace messages
}  // namespace tavrel
