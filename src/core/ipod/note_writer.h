#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

#include "core/document/global.h"
#include "core/document/page_parts.h"
#include "core/ipod/music_addresses.h"
#include "core/platform.h"

namespace tavrel {

/// The choices of the Publish window.
struct PublishOptions {
  bool NotesMenuLink = false;    ///< end every note with a link back to the Notes menu
  bool BackgroundMusic = false;  ///< choosing music does not leave the note

  bool operator==(const PublishOptions&) const = default;
};

/// A page's text with its inline links as the device's anchors: the k-th "<" opens the page's k-th link and
/// every ">" closes one. Text without "<", or whose first ">" comes before it, is returned unchanged.
std::string GetText(const Global& global, std::string_view text, int page);

/// The address of a music link on the device, from a reference such as "M7". See MusicAddresses::Of.
std::string GetMusic(const Global& global, std::string_view reference);

/// The file name of a page's note: 7 is "z007.txt".
std::string NoteName(int page);

/// The first line of a page's note: its title as the device lists it. Page 1 comes first there.
std::string NoteTitleLine(const Global& global, int page);

/// The bytes of a page's note file. Throws RunTimeError if a link that is published leads to music outside 0
/// to 100.
std::string NoteText(const Global& global, int page, const PublishOptions& options);
/// Those of them that a device reads, and one more if there are more. Throws as NoteText does.
std::string NoteBeginning(const Global& global, int page, const PublishOptions& options);
/// How many bytes these are. `music` are the document's addresses, `parts` the page's.
std::size_t NoteLength(MusicAddresses& music, int page, const PageParts& parts,
                       const PublishOptions& options);

/// How many notes of a folder no page rewrites. An iPod shows them beside those of the pages.
int OtherNotes(const Global& global, const std::filesystem::path& folder, const CodePage& code_page);

/// Writes one note file for each page that is not empty into the folder, which is made if need be. Files that
/// no page rewrites stay; a link in a note's place is replaced. Throws FileError, and RunTimeError for an
/// impossible music link.
void PublishNotes(const Global& global, Platform& platform, const std::filesystem::path& folder,
                  const PublishOptions& options);

}  // namespace tavrel
