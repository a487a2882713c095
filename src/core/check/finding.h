#pragma once

#include <string>

#include "core/document/field_part.h"

namespace tavrel {

/// One thing that would go wrong on the iPod, or on the way there, and where the culprit stands.
struct Finding : FieldPart {
  std::string Sentence;  ///< in plain words, with a capital and a full stop
  bool StopsPublishing = false;
  bool CutsNote = false;      ///< an iPod does not show all of the note
  bool LeadsNowhere = false;  ///< a link that is published leads to no page and to no music
  bool TooManyNotes = false;  ///< an iPod does not show all notes
};

}  // namespace tavrel
