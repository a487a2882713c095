#include "core/text/field_reader.h"

namespace tavrel {

std::string_view FieldReader::NextField() {
  if (!in_line_) line_ = lines_.Next();
  const std::size_t closing_quote = line_.starts_with('"') ? line_.find('"', 1) : std::string_view::npos;
  const bool quoted = closing_quote != std::string_view::npos;
  const std::size_t comma = line_.find(',', quoted ? closing_quote : 0);
  const std::string_view field = quoted ? line_.substr(1, closing_quote - 1) : line_.substr(0, comma);
  in_line_ = comma != std::string_view::npos;
  if (in_line_) line_.remove_prefix(comma + 1);
  return field;
}

std::string_view FieldReader::NextLine() {
  if (!in_line_) return lines_.Next();
  in_line_ = false;
  return line_;
}

}  // namespace tavrel
