#include "core/editing/shown_part.h"

#include <algorithm>

#include "core/text/file_names.h"

namespace tavrel {
namespace {

std::size_t BlanksBefore(std::string_view text) {
  return std::min(text.find_first_not_of(' '), text.size());
}

FieldPart PartWithSameWords(FieldPart part, std::string_view content, std::string_view shown) {
  const std::string_view words = content.substr(std::min(part.Position, content.size()), part.Length);
  const std::size_t found = shown.find(words);
  if (found != std::string_view::npos) {
    part.Position = found;
  } else if (part.Where == Field::LinkTarget) {
    part.Position = part.Length = 0;
  }
  return part;
}

}  // namespace

FieldPart ShownPart(FieldPart part, std::string_view content, std::string_view shown) {
  if (TrimBlanks(shown) != TrimBlanks(content)) return PartWithSameWords(part, content, shown);
  const std::size_t in_record = BlanksBefore(content);
  const auto moved = [&](std::size_t at) {
    return std::max(at, in_record) - in_record + BlanksBefore(shown);
  };
  const std::size_t end = moved(part.Position + part.Length);
  part.Position = moved(part.Position);
  part.Length = end - part.Position;
  return part;
}

}  // namespace tavrel
