#include "ui/shell/running_program.h"

#include <QDir>

#include <cstdlib>
#include <string>

#include "core/document/rescue.h"
#include "core/shell/messages.h"
#include "core/text/run_time_error.h"
#include "ui/controls/message_box.h"
#include "ui/controls/text_conversion.h"

namespace tavrel {

RunningProgram::RunningProgram(Global& global, Platform& platform, MessageService& messages)
    : global_(global), platform_(platform), messages_(messages) {}

void RunningProgram::Fail(const std::exception& error) {
  std::string rescue;
  try {
    rescue = Rescue();
  } catch (const std::exception& rescue_error) {
    rescue = std::string("\nThe project could not be brought to safety: ") + rescue_error.what();
  }
  messages_.Show(nullptr, {std::string(error.what()) + "\n" + rescue + "\nTavrel Writer has to end.",
                           Buttons::Ok, Icon::Critical, std::string(kProgramName)});
  std::_Exit(EXIT_FAILURE);
}

void RunningProgram::End() {
  std::_Exit(EXIT_SUCCESS);
}

std::string RunningProgram::Rescue() {
  if (!global_.IsDocumentOpen() || !global_.IsDocumentShown) return {};
  if (store_typed_) store_typed_();
  const std::filesystem::path copy = RescueDocument(
      global_, platform_, {global_.ProgramFolder, ToPath(QDir::homePath()), ToPath(QDir::tempPath())});
  if (copy.empty()) return "\nThe project could not be brought to safety: no folder could be written to.";
  return "\nYour project is safe, with everything you typed, in\n" + PathText(copy) + "\n";
}

}  // namespace tavrel
