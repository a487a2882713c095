#include "ui/controls/file_question.h"

#include "core/shell/messages.h"
#include "core/text/file_names.h"
#include "ui/controls/message_box.h"

namespace tavrel {

std::filesystem::path AskForFile(App& app, QWidget* parent, std::string_view typed,
                                 std::string_view extension) {
  std::string name = CleanName(typed);
  std::erase(name, '\0');
  if (name.empty()) return {};
  const std::filesystem::path file = PathFromTypedName(name + std::string(extension), app.System);
  std::error_code error;
  const bool exists = std::filesystem::exists(app.State.ProgramFolder / file, error);
  if (exists && !app.Messages.Show(parent, messages::FileExists())) return {};
  return file;
}

}  // namespace tavrel
