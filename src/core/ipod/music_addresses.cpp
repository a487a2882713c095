#include "core/ipod/music_addresses.h"

#include "core/ipod/music_links.h"
#include "core/text/numbers.h"
#include "core/text/plain_ascii.h"
#include "core/text/run_time_error.h"

namespace tavrel {
namespace {

std::string AddressOf(const MusicParts& parts) {
  constexpr std::array<std::string_view, kPublishedMusicFields> kKeys = {
      "song=", "album=", "composer=", "artist=", "genre=", "playlist="};
  std::string address;
  for (std::size_t field = 0; field < kKeys.size(); ++field) {
    if (parts[field].empty()) continue;
    address.append(address.empty() ? "ipod:music?" : "&").append(kKeys[field]).append(parts[field]);
  }
  return address.empty() ? std::string(kNotesMenu) : address;
}

}  // namespace

const MusicAddress& MusicAddresses::OfLink(int number) {
  MusicAddress& address = addresses_.at(static_cast<std::size_t>(number));
  if (address.Bytes.empty()) {
    address.Bytes = AddressOf(MusicPartsOf(document_.MusicLink(number)));
    address.HasQuotationMark = address.Bytes.find('"') != std::string::npos;
    address.HasBracket = address.Bytes.find('>') != std::string::npos;
  }
  return address;
}

const MusicAddress& MusicAddresses::Of(std::string_view reference) {
  static const MusicAddress menu = {std::string(kNotesMenu)};
  if (reference.size() < 2) return menu;
  const int number = WholeValue(reference.substr(1));
  if (number >= 0 && number <= kLastMusicLink) return OfLink(number);
  throw RunTimeError("The target of a link reads " + Quoted(reference) +
                     ", but music links are numbered 0 to " + std::to_string(kLastMusicLink) +
                     ".\nCorrect the target and publish again.");
}

}  // namespace tavrel
