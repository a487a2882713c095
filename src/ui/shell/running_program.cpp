#include "ui/shell/running_program.h"

#include <QApplication>
#include <QDir>

#include <cstdlib>
#include <new>
#include <string>
#include <utility>

#include "core/document/rescue.h"
#include "core/shell/messages.h"
#include "core/text/run_time_error.h"
#include "ui/controls/message_box.h"
#include "ui/controls/text_conversion.h"

namespace tavrel {
namespace {

std::string WhatFailed(const std::exception& error) {
  if (dynamic_cast<const RunTimeError*>(&error) != nullptr) return error.what();
  if (dynamic_cast<const std::bad_alloc*>(&error) != nullptr)
    return "The computer's memory is full.\nClose other programs and start again.";
  return std::string("Something went wrong that should not: ") + error.what();
}

}  // namespace

RunningProgram::RunningProgram(Global& global, Platform& platform, MessageService& messages)
    : global_(global), platform_(platform), messages_(messages) {}

void RunningProgram::Fail(const std::exception& error) {
  if (std::exchange(failing_, true)) return;
  while (QApplication::overrideCursor() != nullptr) QApplication::restoreOverrideCursor();
  std::string rescue;
  try {
    rescue = Rescue();
  } catch (const std::exception& rescue_error) {
    rescue = std::string("\nThe project could not be brought to safety: ") + rescue_error.what();
  }
  messages_.Show(nullptr, {WhatFailed(error) + "\n" + rescue + "\nTavrel Writer has to end.", Buttons::Ok,
                           Icon::Critical, kProgramName});
  std::_Exit(EXIT_FAILURE);
}

void RunningProgram::End() {
  if (before_end_) before_end_();
  std::_Exit(EXIT_SUCCESS);
}

bool RunningProgram::StoreTyped() noexcept {
  try {
    if (store_typed_) store_typed_();
    return true;
  } catch (const std::exception&) {
    return false;
  }
}

std::string RunningProgram::Rescue() {
  if (!global_.IsDocumentInEditor()) return {};
  const bool complete = StoreTyped();
  const std::filesystem::path copy = RescueDocument(
      global_, platform_, {global_.ProgramFolder, ToPath(QDir::homePath()), ToPath(QDir::tempPath())});
  if (copy.empty()) return "\nThe project could not be brought to safety: no folder could be written to.";
  if (after_rescue_ && complete) after_rescue_();
  const std::string typed =
      complete ? ", with everything you typed, in\n" : ", but for the page you were on, in\n";
  return "\nYour project is safe" + typed + PathText(copy) + "\n";
}

}  // namespace tavrel
