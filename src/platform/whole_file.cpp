#include "platform/whole_file.h"

#include <algorithm>
#include <cstddef>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "core/text/run_time_error.h"

namespace tavrel {
namespace {

namespace fs = std::filesystem;

constexpr int kNameTries = 100;

// Names of temporary files match no pattern of the program's file lists.
constexpr std::string_view kTemporaryStart = ".tavrel-";
constexpr std::string_view kTemporaryEnd = ".tmp";

fs::path TemporaryName(const fs::path& folder) {
  // Documents are saved on one thread and kept safe on another.
  thread_local std::minstd_rand random{std::random_device{}()};
  return folder / (std::string(kTemporaryStart) + std::to_string(random()) + std::string(kTemporaryEnd));
}

bool IsTemporaryName(const fs::path& name) {
  const fs::path::string_type& text = name.native();
  const fs::path::string_type start = fs::path(kTemporaryStart).native();
  const fs::path::string_type end = fs::path(kTemporaryEnd).native();
  if (text.size() <= start.size() + end.size() || !text.starts_with(start) || !text.ends_with(end))
    return false;
  return std::all_of(text.begin() + static_cast<std::ptrdiff_t>(start.size()),
                     text.end() - static_cast<std::ptrdiff_t>(end.size()),
                     [](fs::path::value_type c) { return c >= '0' && c <= '9'; });
}

/// The file behind a symbolic link, also if it does not exist yet.
fs::path WhereLinkLeads(fs::path file, std::error_code& error) {
  constexpr int kMostLinks = 40;
  std::error_code ignored;
  for (int links = 0; fs::is_symlink(file, ignored); ++links) {
    if (links == kMostLinks) {
      error = std::make_error_code(std::errc::too_many_symbolic_link_levels);
      return file;
    }
    file = file.parent_path() / fs::read_symlink(file, error);
    if (error) return file;
  }
  return file;
}

/// What is neither a file nor a folder is no place for one: opening a pipe would wait for somebody to read
/// from it, and a device must not be replaced or removed.
std::error_code WhyNoPlaceForAFile(const fs::file_status& status) {
  const bool is_other = fs::exists(status) && !fs::is_regular_file(status) && !fs::is_directory(status);
  return is_other ? std::make_error_code(std::errc::operation_not_supported) : std::error_code();
}

/// A folder cannot be replaced, and a file that may not be written must not be.
std::error_code WhyNotReplaceable(const fs::path& target) {
  constexpr fs::perms kAnyWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  std::error_code error;
  const fs::file_status status = fs::status(target, error);
  if (fs::is_directory(status)) return std::make_error_code(std::errc::is_a_directory);
  if (const std::error_code other = WhyNoPlaceForAFile(status)) return other;
  const bool read_only = fs::exists(status) && (status.permissions() & kAnyWrite) == fs::perms::none;
  return read_only ? std::make_error_code(std::errc::permission_denied) : std::error_code();
}

std::error_code WriteAll(FileLayer& files, int handle, std::string_view bytes) {
  while (!bytes.empty()) {
    std::size_t written = 0;
    if (const std::error_code error = files.Write(handle, bytes, written)) return error;
    if (written == 0) return std::make_error_code(std::errc::io_error);
    bytes.remove_prefix(written);
  }
  return {};
}

/// Closes the file whatever has happened before; the first error is the one that counts.
std::error_code WriteAndClose(FileLayer& files, int handle, std::string_view bytes, bool flush) {
  std::error_code error = WriteAll(files, handle, bytes);
  if (!error && flush) error = files.Flush(handle);
  const std::error_code close_error = files.Close(handle);
  return error ? error : close_error;
}

std::error_code CreateTemporary(FileLayer& files, const fs::path& target, fs::path& temporary, int& handle) {
  std::error_code error;
  for (int tries = 0; tries < kNameTries; ++tries) {
    temporary = TemporaryName(target.parent_path());
    error = files.CreateNew(temporary, target, handle);
    if (error != std::errc::file_exists) return error;
  }
  return error;
}

std::error_code ReplaceWhole(FileLayer& files, const fs::path& file, std::string_view bytes) {
  std::error_code error;
  fs::path target = fs::absolute(file, error);
  if (!error) target = WhereLinkLeads(target, error);
  if (!error) error = WhyNotReplaceable(target);
  if (error) return error;

  fs::path temporary;
  int handle = -1;
  error = CreateTemporary(files, target, temporary, handle);
  if (error) return error;
  error = WriteAndClose(files, handle, bytes, true);
  if (!error) error = files.Replace(temporary, target);
  if (error) {
    files.Remove(temporary);
    return error;
  }
  // The new file is in place. A folder that cannot be flushed (some network disks) is no reason to call the
  // save failed.
  files.FlushFolder(target.parent_path());
  return {};
}

/// An open file that is closed whatever happens.
class OpenFile {
 public:
  explicit OpenFile(FileLayer& files) : files_(files) {}
  ~OpenFile() { Close(); }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  int& Handle() { return handle_; }
  std::error_code Close() {
    const int handle = std::exchange(handle_, -1);
    return handle < 0 ? std::error_code() : files_.Close(handle);
  }

 private:
  FileLayer& files_;
  int handle_ = -1;
};

void ThrowIf(const std::error_code& error, const fs::path& file, const char* attempt) {
  if (error) throw FileError(file, attempt, error);
}

void CopyParts(FileLayer& files, const fs::path& from, int source, const fs::path& to, int target) {
  constexpr std::size_t kPartSize = 256 * 1024;
  std::string part(kPartSize, '\0');
  while (true) {
    std::size_t read = 0;
    ThrowIf(files.Read(source, part.data(), part.size(), read), from, "could not be read");
    if (read == 0) return;
    ThrowIf(WriteAll(files, target, std::string_view(part).substr(0, read)), to, "could not be written");
  }
}

std::error_code WritePlain(FileLayer& files, const fs::path& file, std::string_view bytes) {
  std::error_code ignored;
  std::error_code error = WhyNoPlaceForAFile(fs::status(file, ignored));
  if (error) return error;
  int handle = -1;
  error = files.CreateOrEmpty(file, handle);
  if (error) return error;
  error = WriteAndClose(files, handle, bytes, false);
  if (error) files.Remove(WhereLinkLeads(file, ignored));
  return error;
}

}  // namespace

void WriteWholeFile(FileLayer& files, const fs::path& file, std::string_view bytes) {
  if (const std::error_code error = ReplaceWhole(files, file, bytes)) {
    throw FileError(file, "could not be written", error);
  }
}

void RemoveTemporaries(const fs::path& folder) {
  std::error_code error;
  std::vector<fs::path> left;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    std::error_code ignored;
    const bool is_file = entry->symlink_status(ignored).type() == fs::file_type::regular;
    if (is_file && IsTemporaryName(entry->path().filename())) left.push_back(entry->path());
  }
  for (const fs::path& file : left) fs::remove(file, error);
}

void WritePlainFile(FileLayer& files, const fs::path& file, std::string_view bytes) {
  if (const std::error_code error = WritePlain(files, file, bytes)) {
    throw FileError(file, "could not be written", error);
  }
}

void CopyPlainFile(FileLayer& files, const fs::path& from, const fs::path& to) {
  std::error_code ignored;
  if (fs::equivalent(from, to, ignored)) return;
  if (fs::is_directory(from, ignored)) {
    throw FileError(from, "could not be read", std::make_error_code(std::errc::is_a_directory));
  }
  ThrowIf(WhyNoPlaceForAFile(fs::status(to, ignored)), to, "could not be written");
  OpenFile source(files);
  OpenFile target(files);
  ThrowIf(files.Open(from, source.Handle()), from, "could not be read");
  ThrowIf(files.CreateOrEmpty(to, target.Handle()), to, "could not be written");
  try {
    CopyParts(files, from, source.Handle(), to, target.Handle());
    ThrowIf(target.Close(), to, "could not be written");
  } catch (const FileError&) {
    target.Close();
    files.Remove(WhereLinkLeads(to, ignored));
    throw;
  }
}

void FlushVolumeOf(FileLayer& files, const fs::path& folder) {
  ThrowIf(files.FlushVolume(folder), folder, "could not be brought to the disk");
}

}  // namespace tavrel
