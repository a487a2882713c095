#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "core/ipod/note_writer.h"

namespace tavrel::notes {

/// What somebody has asked for on the command line.
struct Arguments {
  enum class Task { Help, Version, Publish, Import, Check };

  Task What = Task::Help;
  std::filesystem::path From;  ///< what is read
  std::filesystem::path To;    ///< what is written, if anything is
  /// As the Publish window offers them.
  PublishOptions Options{.NotesMenuLink = false, .BackgroundMusic = true};
  bool Overwrite = false;
};

/// The command line cannot be understood. what() is UTF-8.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Reads the command line, without the program's own name. Throws UsageError.
Arguments ReadArguments(const std::vector<std::filesystem::path>& words);

/// What --help says.
std::string HelpText();

}  // namespace tavrel::notes
