#pragma once

#include <string_view>

#include "core/text/text_files.h"

namespace tavrel {

/// Reads a file of fields and whole lines. A field ends at a comma or at the end of its line; one in double
/// quotes loses them.
class FieldReader {
 public:
  explicit FieldReader(std::string_view text) : lines_(text) {}

  bool AtEnd() const { return !in_line_ && lines_.AtEnd(); }

  /// Must not be called at the end.
  std::string_view NextField();

  /// The next line, or what is left of one whose first fields were read. Must not be called at the end.
  std::string_view NextLine();

 private:
  LineReader lines_;
  std::string_view line_;
  bool in_line_ = false;
};

}  // namespace tavrel
