#include "core/check/link_target.h"

#include <algorithm>
#include <array>

#include "core/document/markup.h"
#include "core/document/page_record.h"
#include "core/text/characters.h"
#include "core/text/numbers.h"

namespace tavrel {
namespace {

using Kind = LinkTarget::Kind;

LinkTarget PageTarget(const Global& global, std::string_view target) {
  const int number = WholeValue(target);
  const bool names_a_note = target.size() == 3 && std::all_of(target.begin(), target.end(), IsDigit);
  if (!names_a_note) return {Kind::NoPage, number};
  return {global.Page(number).empty() ? Kind::EmptyPage : Kind::Page, number};
}

/// Notes are not published, so they do not count.
bool NamesMusic(std::string_view record) {
  constexpr std::array<std::string_view, 6> kPublished = {"<song>",   "<album>", "<composer>",
                                                          "<artist>", "<genre>", "<playlist>"};
  return std::any_of(kPublished.begin(), kPublished.end(),
                     [&](std::string_view tag) { return !TagContent(record, tag, 1).empty(); });
}

}  // namespace

LinkTarget TargetOf(const Global& global, std::string_view target) {
  return Value(target) > 0 ? PageTarget(global, target) : MusicTargetOf(global, target);
}

LinkTarget MusicTargetOf(const Global& global, std::string_view target) {
  if (target.size() < 2) return {Kind::NotesMenu, 0};
  const int number = WholeValue(target.substr(1));
  if (number < 0 || number > kLastMusicLink) return {Kind::ImpossibleMusic, number};
  if (NamesMusic(global.MusicLink(number))) return {Kind::Music, number};
  return {IsMusicTarget(target) ? Kind::EmptyMusic : Kind::NotesMenu, number};
}

}  // namespace tavrel
