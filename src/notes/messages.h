#pragma once

#include <exception>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>

/// What the program says on the standard error: one line each.
namespace tavrel::notes {

/// "FILE:LINE: sentence" as other programs write it, so that editors find the place; without a line if it
/// is 0. Line breaks in the name and in the sentence become blanks.
std::string MessageAbout(const std::filesystem::path& file, int line, std::string_view sentence);

/// Something could not be done. what() is the message about it.
class TaskError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The message about an error of this program or of the parts that it shares with the editor.
std::string MessageAbout(const std::exception& error);

}  // namespace tavrel::notes
