#pragma once

#include <cstddef>
#include <string>

namespace tavrel {

/// What a finding is about. Fields are those of the editor.
enum class Field { Project, Page, Title, Text, LinkText, LinkTarget, MusicText, MusicLink };

/// One thing that would go wrong on the iPod, or on the way there.
struct Finding {
  int Page = 0;  ///< 1 to 1000; 0 if it is about the whole project
  Field Where = Field::Page;
  int Link = 0;              ///< of a link's fields: its row, from 1
  std::size_t Position = 0;  ///< where the culprit begins in the field, in bytes from 0
  std::size_t Length = 0;    ///< of the culprit, in bytes; 0 if it is the field as a whole
  std::string Sentence;      ///< in plain words, with a capital and a full stop
  bool StopsPublishing = false;
};

}  // namespace tavrel
