#include "ui/controls/program_control.h"

namespace tavrel {

void ProgramControl::Run(const std::function<void()>& handler) noexcept {
  try {
    handler();
  } catch (const std::exception& error) {
    Fail(error);
  }
}

}  // namespace tavrel
