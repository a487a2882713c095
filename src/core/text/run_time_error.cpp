#include "core/text/run_time_error.h"

#include <cerrno>
#include <utility>

#include "core/text/plain_ascii.h"

namespace tavrel {
namespace {

constexpr const char* kRoom = "Make room on the disk or choose another one.";
constexpr const char* kRights = "Make sure that you may write there, or choose another folder.";
constexpr const char* kInUse = "Another program is using it. Close that program and try again.";
constexpr const char* kTooMuchOpen = "Close other programs and try again.";
constexpr const char* kOtherName = "Choose another name.";

constexpr std::pair<std::errc, const char*> kNextSteps[] = {
    {std::errc::no_space_on_device, kRoom},
#ifdef EDQUOT
    {static_cast<std::errc>(EDQUOT), kRoom},  // each account may have its own room on the disk
#endif
    {std::errc::file_too_large, "Choose another disk: this one takes no file of that size."},
    {std::errc::permission_denied, kRights},
    {std::errc::operation_not_permitted, kRights},
    {std::errc::read_only_file_system, kRights},
    {std::errc::no_such_file_or_directory, "Look whether the file or its folder was moved or renamed."},
    {std::errc::is_a_directory, "A folder has that name. Rename it or choose another name."},
    {std::errc::not_a_directory,
     "A file stands where a folder should be. Rename it or choose another folder."},
    {std::errc::file_exists, "Something of that name is there already. Rename one of the two and try again."},
    {std::errc::too_many_symbolic_link_levels,
     "Links lead in a circle there. Remove them or choose another name."},
    {std::errc::operation_not_supported, "That name or place takes no ordinary file. Choose another one."},
    {std::errc::device_or_resource_busy, kInUse},
    {std::errc::text_file_busy, kInUse},
    {std::errc::too_many_files_open, kTooMuchOpen},
    {std::errc::too_many_files_open_in_system, kTooMuchOpen},
    {std::errc::filename_too_long, "Choose a shorter name."},
    {std::errc::invalid_argument, kOtherName},
    {std::errc::illegal_byte_sequence, kOtherName},
};

std::string NextStep(const std::error_code& error) {
  for (const auto& [reason, next_step] : kNextSteps) {
    if (error == reason) return next_step;
  }
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
