#include "ui/controls/drive_list.h"

#include <QWheelEvent>

#include <algorithm>
#include <utility>

namespace tavrel {
namespace {

namespace fs = std::filesystem;

/// How many leading parts of the folder's path the root makes up; 0 if the folder does not lie below it.
std::ptrdiff_t SharedParts(const fs::path& root, const fs::path& folder) {
  const auto [root_end, folder_end] = std::mismatch(root.begin(), root.end(), folder.begin(), folder.end());
  const bool below = root_end == root.end() || (std::next(root_end) == root.end() && root_end->empty());
  return below ? std::distance(root.begin(), root_end) : 0;
}

}  // namespace

DriveList::DriveList(QWidget* parent) : QComboBox(parent) {
  connect(this, &QComboBox::activated, this, [this](int index) {
    if (std::exchange(chosen_, index) != index) emit Change();
  });
}

void DriveList::SetVolumes(std::vector<Volume> volumes) {
  volumes_ = std::move(volumes);
  clear();
  for (const Volume& volume : volumes_) addItem(QString::fromStdString(volume.Name));
}

void DriveList::SetDriveOf(const fs::path& folder) {
  const auto closest =
      std::max_element(volumes_.begin(), volumes_.end(), [&](const Volume& a, const Volume& b) {
        return SharedParts(a.Root, folder) < SharedParts(b.Root, folder);
      });
  chosen_ = static_cast<int>(std::distance(volumes_.begin(), closest));
  setCurrentIndex(chosen_);
}

void DriveList::wheelEvent(QWheelEvent* event) {
  event->ignore();
}

}  // namespace tavrel
