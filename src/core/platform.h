#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
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

/// A root of the registry, by the number of its handle.
enum class RegistryRoot : std::uint32_t { LocalMachine = 0x80000002 };

/// A registry value as it is stored: its type's number and its bytes, a text's in the system's code page.
struct RegistryValue {
  std::uint32_t Type = 0;
  std::string Bytes;
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

  /// Why a folder's entries cannot be read; no error if they can.
  virtual std::error_code WhyNotReadable(const std::filesystem::path& folder) const = 0;

  /// Why no files can be made in a folder; no error if they can.
  virtual std::error_code WhyNotWritable(const std::filesystem::path& folder) const = 0;

  /// Whether it is the volume that the system itself lies on.
  virtual bool IsSystemVolume(const Volume& volume) const = 0;

  /// Whether the system hides a file or folder from people.
  virtual bool IsHidden(const std::filesystem::path& file) const = 0;

  /// Whether no file can have a name here, or the system would take it for something else.
  virtual bool RefusesName(const std::filesystem::path& name) const = 0;

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

  /// Opens a web address, or a file of the current folder by its bare name, in the program that people use
  /// for it. Whether that could be tried at all.
  virtual bool OpenInBrowser(const std::string& target) = 0;

  /// Starts a new message to a "mailto:" address in the e-mail program. Whether that could be tried at all.
  virtual bool OpenMail(const std::string& address) = 0;

  /// Starts a program, in front of the other windows. Throws FileError.
  virtual void StartProgram(const std::filesystem::path& program) = 0;

  /// Reads a registry value of at most 1,024 bytes; nothing if it is missing or larger, if its key does not
  /// open with full access, or if the system has no registry.
  virtual std::optional<RegistryValue> ReadRegistry(RegistryRoot root, const std::string& key,
                                                    const std::string& name) const = 0;
};

}  // namespace tavrel
