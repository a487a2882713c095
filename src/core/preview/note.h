#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tavrel {

/// A link of a note as the device shows it.
struct NoteLink {
  std::string Address;    ///< a note's file name, "ipod:music?..." or "\"
  std::size_t Start = 0;  ///< in the note's text
  std::size_t Length = 0;
};

/// A note as the device shows it: without its markup.
struct Note {
  std::string Title;            ///< empty: the device shows the file's name
  std::string Text;             ///< lines end with "\n"; bytes are Latin-1
  std::vector<NoteLink> Links;  ///< in the order of the text; none of them overlap
  bool IsCut = false;           ///< there were more bytes than the device shows
};

/// Reads a note file's bytes as the device does: its first 4,096 bytes, tags in either case. <br> and <p> end
/// lines as line ends do; <title> and <meta> do not show, nor the line that holds nothing else; other tags do
/// not show either. A "<" without ">" is a character like any other. What the device does with broken
/// markup is not documented; a link ends at the next link or at the end of the note if it does not end
/// before.
Note ReadNote(std::string_view bytes);

}  // namespace tavrel
