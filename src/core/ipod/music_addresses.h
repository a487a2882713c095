#pragma once

#include <array>
#include <string>
#include <string_view>

#include "core/document/global.h"

namespace tavrel {

/// The address of the Notes menu on the device.
inline constexpr std::string_view kNotesMenu = "\\";

/// A music link's address on the device, as a note holds it.
struct MusicAddress {
  std::string Bytes;              ///< the Notes menu's if the music link names nothing
  bool HasQuotationMark = false;  ///< at which the device ends the address
  bool HasBracket = false;        ///< a ">", at which it may end the tag around it

  bool IsNotesMenu() const { return Bytes == kNotesMenu; }
};

/// The addresses of a document's music links. However many links lead to a music link, its record is read
/// once.
class MusicAddresses {
 public:
  /// The document has to outlive it, and its music links may not change meanwhile.
  explicit MusicAddresses(const Global& document) : document_(document) {}

  /// That of a music link, 0 to 100.
  const MusicAddress& OfLink(int number);

  /// That of a reference such as "M7"; the Notes menu's if the reference is shorter than two characters.
  /// Throws RunTimeError for numbers outside 0 to 100.
  const MusicAddress& Of(std::string_view reference);

 private:
  const Global& document_;
  std::array<MusicAddress, kLastMusicLink + 1> addresses_;  ///< without bytes: nobody has asked for it
};

}  // namespace tavrel
