#pragma once

#include <QComboBox>

#include <filesystem>
#include <vector>

#include "core/platform.h"

namespace tavrel {

/// The list of the system's disks.
class DriveList : public QComboBox {
  Q_OBJECT

 public:
  explicit DriveList(QWidget* parent = nullptr);

  void SetVolumes(std::vector<Volume> volumes);

  /// The chosen disk.
  const Volume& Drive() const { return volumes_.at(static_cast<std::size_t>(currentIndex())); }

  /// Chooses the disk that a folder lies on.
  void SetDriveOf(const std::filesystem::path& folder);

 signals:
  /// The user has chosen another disk.
  void Change();

 protected:
  /// A wheel that turns over a closed list scrolls what lies around it and chooses nothing.
  void wheelEvent(QWheelEvent* event) override;

 private:
  std::vector<Volume> volumes_;
  int chosen_ = -1;
};

}  // namespace tavrel
