#include "core/ipod/music_links.h"

#include <algorithm>

#include "core/document/markup.h"

namespace tavrel {

MusicParts MusicPartsOf(std::string_view record) {
  MusicParts parts;
  std::array<bool, kMusicFields> is_passed{};
  for (std::size_t at = record.find('<'); at != std::string_view::npos; at = record.find('<', at + 1)) {
    const std::string_view rest = record.substr(at);
    for (std::size_t field = 0; field < kMusicFields; ++field) {
      if (is_passed[field] || !rest.starts_with(kMusicTags[field])) continue;
      is_passed[field] = true;
      parts[field] = TagContent(rest, kMusicTags[field], 1);
    }
  }
  return parts;
}

MusicFields ReadMusicLink(std::string_view record) {
  const MusicParts parts = MusicPartsOf(record);
  MusicFields fields;
  std::copy(parts.begin(), parts.end(), fields.begin());
  return fields;
}

std::string BuildMusicLink(const MusicFields& fields) {
  std::string record;
  for (std::size_t field = 0; field < kMusicFields; ++field) {
    if (!fields[field].empty()) AppendTag(record, kMusicTags[field], fields[field]);
  }
  return record;
}

}  // namespace tavrel
