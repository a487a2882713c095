#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <utility>

namespace tavrel::test {

/// A small file system in memory that takes a folder's place for the calling process and goes with it. To be
/// made in a process of its own.
class SmallDisk {
 public:
  static constexpr std::size_t kPage = 4096;

  explicit SmallDisk(std::filesystem::path folder) : folder_(std::move(folder)) {}

  /// Why it cannot be made; empty if it has been.
  std::string Mount(int pages, int files);

  /// Fills it but for so many pages, with a file that ends in ".filler".
  void LeaveRoomFor(int pages);
  void Empty();

  bool MakeReadOnly();

 private:
  std::filesystem::path folder_;
};

/// Makes the calling process that of an ordinary user, for whom read-only folders are that; the folder and
/// what it holds become this user's. False if it is the superuser and has to stay that.
bool BecomeAnOrdinaryUser(const std::filesystem::path& folder);

}  // namespace tavrel::test
