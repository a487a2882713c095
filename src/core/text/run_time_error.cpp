#include "core/text/run_time_error.h"

#include "core/text/plain_ascii.h"

namespace tavrel {
namespace {

std::string NextStep(const std::error_code& error) {
  if (error == std::errc::no_space_on_device) return "Make room on the disk or choose another one.";
  if (error == std::errc::permission_denied || error == std::errc::operation_not_permitted ||
      error == std::errc::read_only_file_system) {
    return "Make sure that you may write there, or choose another folder.";
  }
  if (error == std::errc::no_such_file_or_directory)
    return "Look whether the file or its folder was moved or renamed.";
  if (error == std::errc::is_a_directory) return "A folder has that name. Rename it or choose another name.";
  if (error == std::errc::filename_too_long) return "Choose a shorter name.";
  if (error == std::errc::invalid_argument) return "Choose another name.";
  return "Check the disk and try again.";
}

/// What went wrong, in English like the rest of the message. The system's words for errors that only it knows
/// are in the user's language and an encoding of its own.
std::string Reason(const std::error_code& error) {
  const std::error_condition condition = error.default_error_condition();
  if (condition.category() == std::generic_category()) return condition.message();
  return "error " + std::to_string(error.value()) + " of the system";
}

}  // namespace

FileError::FileError(const std::filesystem::path& file, const std::string& attempt,
                     const std::error_code& error)
    : RunTimeError(PathText(file) + "\n" + attempt + ": " + Reason(error) + ".\n" + NextStep(error)) {}

std::string PathText(const std::filesystem::path& path) {
  try {
    const std::u8string text = std::filesystem::path(path.u32string()).u8string();
    return {text.begin(), text.end()};
  } catch (const std::exception&) {
    return PlainAscii(path.native());
  }
}

}  // namespace tavrel
