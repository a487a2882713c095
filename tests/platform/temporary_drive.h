#pragma once

#include <filesystem>

#include "core/platform.h"

namespace tavrel::test {

/// A folder as a drive with a letter that nothing else had, until it is taken out or goes.
class TemporaryDrive {
 public:
  explicit TemporaryDrive(const std::filesystem::path& folder);
  ~TemporaryDrive();
  TemporaryDrive(const TemporaryDrive&) = delete;
  TemporaryDrive& operator=(const TemporaryDrive&) = delete;

  const Volume& AsVolume() const { return volume_; }
  const std::filesystem::path& Root() const { return volume_.Root; }

  void TakeOut();

 private:
  Volume volume_;
  std::wstring folder_;
};

}  // namespace tavrel::test
