#pragma once

#include <cstddef>
#include <filesystem>
#include <string_view>
#include <system_error>

namespace tavrel {

/// The operations of a file system that writing needs. Each gives the error that stopped it. Tests put a
/// failing layer in its place.
class FileLayer {
 public:
  virtual ~FileLayer() = default;

  /// Creates a file that must not exist yet, with the permissions of `like` if that exists.
  virtual std::error_code CreateNew(const std::filesystem::path& file, const std::filesystem::path& like,
                                    int& handle) = 0;
  /// Creates a file, or empties the one that is there.
  virtual std::error_code CreateOrEmpty(const std::filesystem::path& file, int& handle) = 0;
  virtual std::error_code Open(const std::filesystem::path& file, int& handle) = 0;
  /// Reads up to `size` bytes into `buffer`; none are read at the end of the file.
  virtual std::error_code Read(int handle, char* buffer, std::size_t size, std::size_t& read) = 0;
  /// Writes bytes; `written` may be less than all of them without an error.
  virtual std::error_code Write(int handle, std::string_view bytes, std::size_t& written) = 0;
  /// Waits until what was written is on the disk.
  virtual std::error_code Flush(int handle) = 0;
  virtual std::error_code Close(int handle) = 0;
  /// Puts a file in another's place in one step.
  virtual std::error_code Replace(const std::filesystem::path& from, const std::filesystem::path& to) = 0;
  /// Waits until the folder's entries are on the disk.
  virtual std::error_code FlushFolder(const std::filesystem::path& folder) = 0;
  /// Waits until all that was written to the folder's volume is on the disk.
  virtual std::error_code FlushVolume(const std::filesystem::path& folder) = 0;
  virtual std::error_code Remove(const std::filesystem::path& file) = 0;
};

/// The operating system's own file layer.
FileLayer& SystemFiles();

}  // namespace tavrel
