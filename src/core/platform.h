#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "core/text/code_page.h"

namespace tavrel {

/// A disk: a drive letter on Windows, a mount point elsewhere.
struct Volume {
  std::string Name;            ///< what a drive list shows: "D:" or the mount point, as UTF-8
  std::filesystem::path Root;  ///< its topmost folder
};

/// What differs between systems.
class Platform {
 public:
  virtual ~Platform() = default;

  /// The system's own single-byte code page, or Windows-1252 where it has none.
  virtual const CodePage& SystemCodePage() const = 0;

  /// The disks that a person would name, as they are at this moment.
  virtual std::vector<Volume> Volumes() const = 0;

  /// Whether the volume's root can be read now (a drive without a disk cannot).
  virtual bool IsReady(const Volume& volume) const = 0;

  /// Why no files can be made in a folder; no error if they can.
  virtual std::error_code WhyNotWritable(const std::filesystem::path& folder) const = 0;

  /// Whether it is the volume that the system itself lies on.
  virtual bool IsSystemVolume(const Volume& volume) const = 0;

  /// Whether the system hides a file or folder from people.
  virtual bool IsHidden(const std::filesystem::path& file) const = 0;

  /// Writes a file whole or not at all: on any failure the old file is untouched and nothing else is left.
  /// What it has written is on the disk when it returns. Throws FileError.
  virtual void WriteWholeFile(const std::filesystem::path& file, std::string_view bytes) = 0;

  /// Creates or replaces a file without waiting for the disk. A file that could not be written to its end is
  /// removed. Throws FileError.
  virtual void WritePlainFile(const std::filesystem::path& file, std::string_view bytes) = 0;

  /// Copies a file as WritePlainFile writes one. Throws FileError.
  virtual void CopyPlainFile(const std::filesystem::path& from, const std::filesystem::path& to) = 0;

  /// Waits until all that was written to the folder's volume is on the disk, which may then be taken out.
  /// Throws FileError.
  virtual void FlushVolumeOf(const std::filesystem::path& folder) = 0;
};

}  // namespace tavrel
