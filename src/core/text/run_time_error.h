#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <system_error>

namespace tavrel {

/// An error that the program does not handle where it happens: it ends the program, after what was typed
/// has been brought to safety. what() is UTF-8 text for the user.
class RunTimeError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// An error of the operating system on one file or folder. Its text names the file and a next step.
class FileError : public RunTimeError {
 public:
  /// `attempt` says what could not be done, such as "could not be written".
  FileError(const std::filesystem::path& file, const std::string& attempt, const std::error_code& error);
};

/// A path as UTF-8 text for messages; bytes that are not valid text become "?".
std::string PathText(const std::filesystem::path& path);

}  // namespace tavrel
