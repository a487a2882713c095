#include "core/ipod/note_markup.h"

#include <algorithm>

#include "core/text/characters.h"
#include "core/text/text_files.h"

namespace tavrel {
namespace {

/// Whether a text holds anything that looks like the markup to convert; anchors do not.
bool MayHoldMarkup(std::string_view note) {
  for (std::size_t at = note.find('<'); at != kNotFound; at = note.find('<', at + 1)) {
    std::string_view name = note.substr(at + 1);
    if (name.starts_with('/')) name.remove_prefix(1);
    if (name.starts_with('b') || name.starts_with('p')) return true;
  }
  return false;
}

void Cut(std::string& text, std::size_t at, std::size_t length, Replacements& replacements) {
  text.erase(at, length);
  replacements.Add(at, length, 0);
}

}  // namespace

std::size_t Replacements::Undone(std::size_t place) const {
  for (auto one = done_.rbegin(); one != done_.rend(); ++one) {
    if (place >= one->At + one->Added) {
      place += one->Removed - one->Added;
    } else {
      place = std::min(place, one->At);
    }
  }
  return place;
}

void ReplaceAll(std::string& text, std::string_view wanted, std::string_view replacement,
                Replacements& replacements) {
  std::size_t found = text.find(wanted);
  if (found == kNotFound) return;
  std::string result;
  std::size_t at = 0;
  for (; found != kNotFound; found = text.find(wanted, at)) {
    result.append(text, at, found - at);
    replacements.Add(result.size(), wanted.size(), replacement.size());
    result.append(replacement);
    at = found + wanted.size();
  }
  text = result.append(text, at);
}

std::string CutTitle(std::string& note, Replacements& replacements) {
  constexpr std::string_view kOpening = "<title>";
  constexpr std::string_view kClosing = "</title>";
  const std::size_t opening = note.find(kOpening);
  const std::size_t closing = note.find(kClosing);
  if (opening == kNotFound || closing == kNotFound || closing < opening) return {};
  const std::size_t length = closing + kClosing.size() - opening;
  std::string title = note.substr(opening, length);
  Cut(note, opening, length, replacements);
  return title;
}

void CutMeta(std::string& note, Replacements& replacements) {
  const std::size_t opening = note.find("<meta ");
  if (opening == kNotFound) return;
  const std::size_t end = note.find('>', opening);
  if (end != kNotFound) Cut(note, opening, end + 1 - opening, replacements);
}

void ConvertMarkup(std::string& note, Replacements& replacements) {
  if (!MayHoldMarkup(note)) return;
  ReplaceAll(note, "<br>", kLineEnd, replacements);
  ReplaceAll(note, "<p>", kLineEnd, replacements);
  for (const char* tag : {"</p>", "<body>", "</body>"}) ReplaceAll(note, tag, "", replacements);
}

}  // namespace tavrel
