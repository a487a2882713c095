#include "ui/controls/program_control.h"

#include <QScopeGuard>

#include <stdexcept>

namespace tavrel {

void ProgramControl::Run(const std::function<void()>& handler) noexcept {
  RunAside([this, &handler] { RunWatched(handler); });
}

void ProgramControl::RunAside(const std::function<void()>& handler) noexcept {
  try {
    handler();
  } catch (const std::exception& error) {
    Fail(error);
  } catch (...) {
    Fail(std::runtime_error("an unknown error"));
  }
}

void ProgramControl::RunWatched(const std::function<void()>& handler) {
  if (watch_ == nullptr || is_watching_) {
    handler();
    return;
  }
  is_watching_ = true;
  const auto no_longer = qScopeGuard([this] { is_watching_ = false; });
  watch_->Begins();
  handler();
  if (watch_ != nullptr) watch_->Ends();
}

}  // namespace tavrel
