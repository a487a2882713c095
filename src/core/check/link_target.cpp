#include "core/check/link_target.h"

#include "core/document/page_record.h"
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

}  // namespace

LinkTarget TargetOf(const Global& global, MusicAddresses& music, std::string_view target) {
  if (const int page = NotedPage(target); page > 0)
    return {global.Page(page).empty() ? Kind::EmptyPage : Kind::Page, page};
  return Value(target) > 0 ? LinkTarget{Kind::NoPage, WholeValue(target)} : MusicTargetOf(music, target);
}

LinkTarget MusicTargetOf(MusicAddresses& music, std::string_view target) {
  if (target.size() < 2) return {Kind::NotesMenu, 0};
  const int number = WholeValue(target.substr(1));
  if (number < 0 || number > kLastMusicLink) return {Kind::ImpossibleMusic, number};
  if (!music.OfLink(number).IsNotesMenu()) return {Kind::Music, number};
  return {IsMusicTarget(target) ? Kind::EmptyMusic : Kind::NotesMenu, number};
}

}  // namespace tavrel
