#pragma once

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace tavrel::test {

/// All that lies below a folder at one moment: every entry with its type, its permissions, where it leads if
/// it is a symbolic link, and its bytes if it is a file. Nothing is read through a link.
class TreeSnapshot {
 public:
  explicit TreeSnapshot(std::filesystem::path root);

  /// What has been made, has gone or has changed since then, such as "made: a/b". The entries named in
  /// `permitted`, by their paths from the root, may have changed, and with them all that lies below them.
  std::vector<std::string> Changes(const std::set<std::string>& permitted = {}) const;

 private:
  struct Entry {
    std::filesystem::file_type Type = std::filesystem::file_type::none;
    std::filesystem::perms Permissions = std::filesystem::perms::unknown;
    std::filesystem::path LeadsTo;
    std::string Bytes;

    bool operator==(const Entry&) const = default;
  };
  using Entries = std::map<std::string, Entry>;

  static Entries Read(const std::filesystem::path& root);
  static Entry ReadEntry(const std::filesystem::directory_entry& entry);

  std::filesystem::path root_;
  Entries entries_;
};

}  // namespace tavrel::test
