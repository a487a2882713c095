#pragma once

#include <array>
#include <string>
#include <string_view>

namespace tavrel {

/// What identifies a piece of music on the iPod, in the order in which a record holds it: song, album,
/// composer, artist, genre, playlist and notes.
inline constexpr std::size_t kMusicFields = 7;
using MusicFields = std::array<std::string, kMusicFields>;

/// The opening tag of each field.
inline constexpr std::array<std::string_view, kMusicFields> kMusicTags = {
    "<song>", "<album>", "<composer>", "<artist>", "<genre>", "<playlist>", "<notes>"};

/// So many of them, from the first on, are published; the notes are for people only.
inline constexpr std::size_t kPublishedMusicFields = 6;

/// The fields of a music link as they stand in its record, which has to outlive them.
using MusicParts = std::array<std::string_view, kMusicFields>;

/// Splits a music link record in one pass; of elements that are doubled it takes the first, and a missing one
/// gives an empty field.
MusicParts MusicPartsOf(std::string_view record);

/// The same with the fields' own bytes.
MusicFields ReadMusicLink(std::string_view record);

/// Joins fields, as they stand, into a music link record. Empty fields are left out, so all of them empty
/// give the empty record.
std::string BuildMusicLink(const MusicFields& fields);

}  // namespace tavrel
