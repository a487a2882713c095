#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>

namespace tavrel::test {

/// A fresh folder that goes with all it holds. The current folder is put back too.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path& Path() const { return path_; }

  void Write(const std::filesystem::path& name, std::string_view bytes) const;
  std::string Read(const std::filesystem::path& name) const;
  bool Has(const std::filesystem::path& name) const;

  /// Every file below the folder by its path relative to it, with its bytes.
  std::map<std::string, std::string> Files() const;

 private:
  std::filesystem::path path_;
  std::filesystem::path old_current_;
};

}  // namespace tavrel::test
