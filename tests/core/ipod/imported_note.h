#pragma once

#include <string>

#include "core/ipod/note_reader.h"

namespace tavrel::test {

/// The record of a page made out of a note; the folder holds a.txt, b.txt and c.txt.
inline std::string RecordOf(const std::string& note) {
  Global global;
  NoteReader reader(global, {"a.txt", "b.txt", "c.txt"}, CodePage::Windows1252());
  reader.ProcessInput(note, 2);
  return global.Page(2);
}

/// A link as import makes it.
inline std::string LinkTo(const std::string& target) {
  return "<linktext></linktext><linkto>" + target + "</linkto>";
}

/// The text of a note between its two blanks, and the links behind it.
inline std::string TextAndLinks(const std::string& text, const std::string& links = "") {
  return "<text> " + text + " </text><link>" + links + "</link>";
}

}  // namespace tavrel::test
