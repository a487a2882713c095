#include "ui/controls/program_control.h"

#include <stdexcept>

namespace tavrel {

void ProgramControl::Run(const std::function<void()>& handler) noexcept {
  try {
    handler();
  } catch (const std::exception& error) {
    Fail(error);
  } catch (...) {
    Fail(std::runtime_error("an unknown error"));
  }
}

}  // namespace tavrel
