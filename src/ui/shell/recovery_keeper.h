#pragma once

#include <QObject>
#include <QThreadPool>
#include <QTimer>

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>

#include "core/document/recovery.h"
#include "ui/app.h"

namespace tavrel {

/// Keeps what differs from the open document's file in a recovery file, a few seconds behind the typing. The
/// files are compared and written on a thread of their own, so that the window does not wait for them.
class RecoveryKeeper : public QObject {
  Q_OBJECT

 public:
  /// `typed_page` gives the current page's record as it stands in the fields. Without a recovery file nothing
  /// is kept.
  RecoveryKeeper(App& app, std::filesystem::path recovery_file, std::function<std::string()> typed_page);
  ~RecoveryKeeper() override;

  /// Looks from now on every two seconds.
  void Start();

  /// Keeps what there is now, and nothing from then on.
  void KeepLast();

  /// Nothing is kept from now on, nor is what was kept: the document was brought to safety, or the user wants
  /// to lose it.
  void Forget();

  /// Waits until the files are as the last look wants them.
  void WaitUntilKept();

 public slots:
  /// Sees to it that the recovery file is what it should be now. A document that a command is at work on
  /// waits for the next look; while the files of one look are written, the next waits for their end.
  void Look();

 signals:
  /// The recovery file could not be written, or, with an empty reason, can be again.
  void Failed(const QString& reason);

 private:
  Draft CurrentDraft() const;
  std::size_t Digest(const Draft& draft) const;
  void TakeDraft();
  void Keep(const Draft& draft);
  void TellKept(const std::string& trouble);
  void Remove();

  App& app_;
  std::filesystem::path recovery_file_;
  std::function<std::string()> typed_page_;
  QTimer timer_;
  QThreadPool thread_;
  bool is_at_work_ = false;
  bool is_look_due_ = false;
  bool has_failed_ = false;
  std::size_t kept_digest_ = 0;  ///< of what the last look saw; 0: of nothing
};

}  // namespace tavrel
