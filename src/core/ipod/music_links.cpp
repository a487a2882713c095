#include "core/ipod/music_links.h"

#include "core/document/markup.h"

namespace tavrel {

MusicFields ReadMusicLink(std::string_view record) {
  MusicFields fields;
  for (std::size_t field = 0; field < kMusicFields; ++field)
    fields[field] = GetTag(record, kMusicTags[field], 1);
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
