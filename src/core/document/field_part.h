#pragma once

#include <cstddef>

namespace tavrel {

/// What a page is written in. Fields are those of the editor.
enum class Field { Project, Page, Title, Note, Text, LinkText, LinkTarget, MusicText, MusicLink };

/// A part of a field of a page.
struct FieldPart {
  int Page = 0;  ///< 1 to 1000; 0 if it is about the whole project
  Field Where = Field::Page;
  int Link = 0;              ///< of a link's fields: its row, from 1
  std::size_t Position = 0;  ///< where the part begins in the field, in bytes from 0
  std::size_t Length = 0;    ///< in bytes; 0 if it is the field as a whole
};

}  // namespace tavrel
