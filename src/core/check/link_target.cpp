#include "core/check/link_target.h"

#include <algorithm>

#include "core/document/markup.h"
#include "core/document/page_record.h"
#include "core/ipod/music_links.h"
#include "core/text/characters.h"
#include "core/text/numbers.h"

namespace tavrel {
namespace {

using Kind = LinkTarget::Kind;

/// The page whose note has such a name; 0 if no page's has.
int NotedPage(std::string_view target) {
  if (target.size() != 3) return 0;
  int page = 0;
  for (const char digit : target) {
    if (!IsDigit(digit)) return 0;
    page = 10 * page + (digit - '0');
  }
  return page;
}

/// Notes are not published, so they do not count.
bool NamesMusic(std::string_view record) {
  return std::any_of(kMusicTags.begin(), kMusicTags.begin() + kPublishedMusicFields,
                     [&](std::string_view tag) { return !TagContent(record, tag, 1).empty(); });
}

}  // namespace

LinkTarget TargetOf(const Global& global, std::string_view target) {
  if (const int page = NotedPage(target); page > 0)
    return {global.Page(page).empty() ? Kind::EmptyPage : Kind::Page, page};
  return Value(target) > 0 ? LinkTarget{Kind::NoPage, WholeValue(target)} : MusicTargetOf(global, target);
}

LinkTarget MusicTargetOf(const Global& global, std::string_view target) {
  if (target.size() < 2) return {Kind::NotesMenu, 0};
  const int number = WholeValue(target.substr(1));
  if (number < 0 || number > kLastMusicLink) return {Kind::ImpossibleMusic, number};
  if (NamesMusic(global.MusicLink(number))) return {Kind::Music, number};
  return {IsMusicTarget(target) ? Kind::EmptyMusic : Kind::NotesMenu, number};
}

}  // namespace tavrel
