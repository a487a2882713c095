#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tavrel {

enum class Buttons { Ok, OkCancel };
enum class Icon { None, Information, Question, Exclamation, Critical };

/// A message or question. Lines are joined by CR LF; blanks at the end of a text belong to it.
struct Message {
  std::string Text;
  tavrel::Buttons Buttons = tavrel::Buttons::Ok;
  tavrel::Icon Icon = tavrel::Icon::None;
  std::string Title;

  std::string Pattern = {};  ///< the text before %1, %2 ... were filled in; empty if it has none
  std::vector<std::string> Arguments = {};  ///< what was filled in
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
Message SystemInfoUnavailable();
/// Nothing on this computer opens the page or address.
Message CannotOpen(std::string_view target);

}  // namespace messages
}  // namespace tavrel
