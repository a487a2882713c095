#include "core/editing/shown_part.h"

#include <algorithm>
#include <optional>

#include "core/text/file_names.h"

namespace tavrel {
namespace {

char Small(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// The page's music link is stored in capitals.
bool AreAlike(std::string_view one, std::string_view other) {
  return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                    [](char a, char b) { return Small(a) == Small(b); });
}

std::ptrdiff_t BlanksBefore(std::string_view text) {
  return static_cast<std::ptrdiff_t>(std::min(text.find_first_not_of(' '), text.size()));
}

/// How far the words stand behind where they are in the record, if the record begins or ends with what is
/// shown, or the other way round. A record may have more in front, as the zeros of a target, and less behind,
/// as from a typed closing tag on.
std::optional<std::ptrdiff_t> ShiftOfWords(std::string_view content, std::string_view shown) {
  const std::string_view recorded = TrimBlanks(content);
  const std::string_view typed = TrimBlanks(shown);
  const std::ptrdiff_t shift = BlanksBefore(shown) - BlanksBefore(content);
  if (typed.size() > recorded.size() && AreAlike(typed.substr(0, recorded.size()), recorded)) return shift;
  const std::size_t common = std::min(typed.size(), recorded.size());
  const auto end = [common](std::string_view text) { return text.substr(text.size() - common); };
  if (!AreAlike(end(typed), end(recorded))) return std::nullopt;
  return shift + std::ssize(typed) - std::ssize(recorded);
}

FieldPart Moved(FieldPart part, std::ptrdiff_t shift, std::size_t end_of_field) {
  const auto moved = [=](std::size_t at) {
    return static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(static_cast<std::ptrdiff_t>(at) + shift, 0,
                                                               static_cast<std::ptrdiff_t>(end_of_field)));
  };
  const std::size_t end = moved(part.Position + part.Length);
  part.Position = moved(part.Position);
  part.Length = end - part.Position;
  return part;
}

/// In place of a part that is not shown.
FieldPart Instead(FieldPart part, std::size_t end_of_field) {
  part = WithoutWords(part, end_of_field);
  if (part.Where == Field::LinkTarget) part.Position = 0;
  return part;
}

FieldPart AtFirstOfItsWords(FieldPart part, std::string_view content, std::string_view shown) {
  if (part.Length == 0) {
    part.Position = std::min(part.Position, shown.size());
    return part;
  }
  const std::string_view words = content.substr(std::min(part.Position, content.size()), part.Length);
  const std::size_t found = shown.find(words);
  if (found == std::string_view::npos) return Instead(part, shown.size());
  part.Position = found;
  return part;
}

}  // namespace

FieldPart WithoutWords(FieldPart part, std::size_t end_of_field) {
  part.Position = part.Where == Field::Text ? std::min(part.Position, end_of_field) : end_of_field;
  part.Length = 0;
  return part;
}

FieldPart ShownPart(FieldPart part, std::string_view content, std::string_view shown) {
  if (shown == content) return part;
  const std::optional<std::ptrdiff_t> shift = ShiftOfWords(content, shown);
  if (!shift) return AtFirstOfItsWords(part, content, shown);
  const FieldPart moved = Moved(part, *shift, shown.size());
  return part.Length > 0 && moved.Length == 0 ? Instead(moved, shown.size()) : moved;
}

}  // namespace tavrel
