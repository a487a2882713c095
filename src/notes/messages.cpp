#include "notes/messages.h"

#include <algorithm>

#include "core/ipod/note_reader.h"
#include "core/text/run_time_error.h"
#include "notes/arguments.h"

namespace tavrel::notes {
namespace {

namespace fs = std::filesystem;

std::string OneLine(std::string_view text) {
  std::string line(text);
  std::replace_if(
      line.begin(), line.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
  return line;
}

/// The errors of files are told in three lines: the name, what could not be done, and a next step. A name may
/// have several lines itself.
std::string MessageAboutFile(const std::string& text) {
  const std::size_t last = text.rfind('\n');
  const std::size_t behind_name = text.rfind('\n', last - 1);
  std::string sentence = text.substr(behind_name + 1);
  // The attempt is told in small letters.
  if (sentence.starts_with('c')) sentence.front() = 'C';
  return OneLine(text.substr(0, behind_name) + ": " + sentence);
}

std::string MessageWithoutFile(std::string_view sentence) {
  return OneLine("tavrel-notes: " + std::string(sentence));
}

}  // namespace

std::string MessageAbout(const fs::path& file, int line, std::string_view sentence) {
  const std::string place = line > 0 ? ":" + std::to_string(line) : "";
  return OneLine(PathText(file) + place + ": " + std::string(sentence));
}

std::string MessageAbout(const std::exception& error) {
  if (dynamic_cast<const TaskError*>(&error) != nullptr) return error.what();
  if (const auto* in_note = dynamic_cast<const NoteError*>(&error); in_note != nullptr)
    return MessageAbout(in_note->Note, in_note->Line, in_note->Fault);
  if (dynamic_cast<const FileError*>(&error) != nullptr) return MessageAboutFile(error.what());
  if (dynamic_cast<const UsageError*>(&error) != nullptr)
    return MessageWithoutFile(std::string(error.what()) + " See tavrel-notes --help.");
  return MessageWithoutFile(error.what());
}

}  // namespace tavrel::notes
