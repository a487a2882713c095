#pragma once

#include <map>
#include <string>
#include <vector>

#include "core/document/global.h"
#include "core/ipod/note_writer.h"

/// The rules of publishing and importing written down step by step, with strings rebuilt at each step and
/// positions counted from 1: what the program's faster code has to agree with.
namespace tavrel::test {

/// Pages and music links by number; none of them is empty.
struct LiteralDocument {
  std::map<int, std::string> Pages;
  std::map<int, std::string> MusicLinks;

  bool operator==(const LiteralDocument&) const = default;
};

/// What a document in memory holds.
LiteralDocument ContentsOf(const Global& global);

/// The bytes of its file.
std::string LiteralFile(const LiteralDocument& document);

/// What is left of it once it was saved and loaded.
LiteralDocument LiteralSavedAndLoaded(LiteralDocument document);

/// File names and bytes of its notes.
std::map<std::string, std::string> LiteralNotes(const LiteralDocument& document,
                                                const PublishOptions& options);

/// The lines of a note, each with CR LF.
std::string LiteralLines(const std::string& bytes);

/// Fills a document from notes. Every error is a std::runtime_error.
class LiteralReader {
 public:
  explicit LiteralReader(std::vector<std::string> names) : names_(std::move(names)) {}

  void ProcessInput(const std::string& note, int page);

  LiteralDocument Document;

 private:
  std::string ProcessLink(const std::string& target) const;
  std::string ProcessMusic(const std::string& target);

  std::vector<std::string> names_;
};

/// Imports notes, which are in the order of the map.
LiteralDocument LiteralImport(const std::map<std::string, std::string>& notes);

}  // namespace tavrel::test
