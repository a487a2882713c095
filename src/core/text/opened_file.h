#pragma once

#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <memory>

namespace tavrel {

/// A file from which bytes are read, from its start to its end.
class OpenedFile {
 public:
  /// Throws FileError.
  explicit OpenedFile(const std::filesystem::path& file);

  /// Reads so many bytes into a buffer and says how many; fewer only at the file's end. Throws FileError.
  std::size_t Read(char* buffer, std::size_t size);

 private:
  struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
  };

  std::filesystem::path name_;
  std::unique_ptr<std::FILE, CloseFile> file_;
};

}  // namespace tavrel
