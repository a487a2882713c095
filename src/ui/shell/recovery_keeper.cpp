#include "ui/shell/recovery_keeper.h"

#include <QApplication>

#include <exception>
#include <new>
#include <string_view>
#include <system_error>
#include <utility>

#include "core/document/document_file.h"
#include "core/text/run_time_error.h"
#include "ui/controls/program_control.h"

namespace tavrel {
namespace {

namespace fs = std::filesystem;

constexpr int kInterval = 2000;  // milliseconds

std::size_t Mixed(std::size_t digest, std::size_t more) {
  constexpr std::size_t kOdd = 0x9E3779B1;
  return (digest ^ more) * kOdd + (digest >> 7U);
}

/// Changes when somebody else has written the file, or deleted it.
std::size_t StampOf(const fs::path& file) {
  std::error_code error;
  const auto size = fs::file_size(file, error);
  if (error) return 0;
  const auto time = fs::last_write_time(file, error).time_since_epoch().count();
  return Mixed(static_cast<std::size_t>(size), static_cast<std::size_t>(time));
}

}  // namespace

RecoveryKeeper::RecoveryKeeper(App& app, fs::path recovery_file, std::function<std::string()> typed_page)
    : app_(app), recovery_file_(std::move(recovery_file)), typed_page_(std::move(typed_page)) {
  thread_.setMaxThreadCount(1);
  timer_.setParent(this);
  timer_.setObjectName("Timer");
  timer_.setInterval(kInterval);
  On(app_.Control, &timer_, &QTimer::timeout, this, [this] { Look(); });
}

RecoveryKeeper::~RecoveryKeeper() {
  thread_.waitForDone();
}

void RecoveryKeeper::Start() {
  if (!recovery_file_.empty()) timer_.start();
}

void RecoveryKeeper::KeepLast() {
  timer_.stop();
  WaitUntilKept();
  Look();
  WaitUntilKept();
}

void RecoveryKeeper::Forget() {
  timer_.stop();
  WaitUntilKept();
  Remove();
}

void RecoveryKeeper::WaitUntilKept() {
  thread_.waitForDone();
  QCoreApplication::sendPostedEvents(this);
}

void RecoveryKeeper::Look() {
  const bool is_command_at_work = QApplication::overrideCursor() != nullptr;
  is_look_due_ = is_at_work_;
  if (recovery_file_.empty() || is_at_work_ || is_command_at_work) return;
  if (!app_.State.IsDocumentInEditor()) {
    Remove();
    return;
  }
  try {
    TakeDraft();
  } catch (const std::bad_alloc&) {
    TellKept("The computer's memory is full.");
  }
}

void RecoveryKeeper::TakeDraft() {
  Draft draft = CurrentDraft();
  const std::size_t digest = Digest(draft);
  if (std::exchange(kept_digest_, digest) == digest) return;
  is_at_work_ = true;
  thread_.start([this, draft = std::move(draft)] { Keep(draft); });
}

Draft RecoveryKeeper::CurrentDraft() const {
  return {app_.State.DocPath, DocumentText(app_.State, app_.State.CurrentPage, typed_page_())};
}

std::size_t RecoveryKeeper::Digest(const Draft& draft) const {
  const std::size_t text = std::hash<std::string_view>()(draft.Text);
  return Mixed(Mixed(text, fs::hash_value(draft.DocPath)), StampOf(app_.State.ProgramFolder / draft.DocPath));
}

void RecoveryKeeper::Keep(const Draft& draft) {
  std::string trouble;
  try {
    if (IsSaved(draft, recovery_file_.parent_path())) {
      std::error_code error;
      fs::remove(recovery_file_, error);
      if (error) throw FileError(recovery_file_, "could not be removed", error);
    } else {
      KeepDraft(draft, recovery_file_, app_.System);
    }
  } catch (const std::exception& error) {
    trouble = error.what();
  }
  QMetaObject::invokeMethod(
      this, [this, trouble] { TellKept(trouble); }, Qt::QueuedConnection);
}

void RecoveryKeeper::TellKept(const std::string& trouble) {
  is_at_work_ = false;
  const bool had_failed = std::exchange(has_failed_, !trouble.empty());
  if (has_failed_) kept_digest_ = 0;
  if (has_failed_ || had_failed) emit Failed(QString::fromStdString(trouble));
  if (is_look_due_ && timer_.isActive()) Look();
}

void RecoveryKeeper::Remove() {
  kept_digest_ = 0;
  std::error_code error;
  if (!recovery_file_.empty()) fs::remove(recovery_file_, error);
}

}  // namespace tavrel
