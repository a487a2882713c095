#include <algorithm>
#include <memory>
#include <string>

#include "core/ipod/music_links.h"
#include "core/ipod/note_reader.h"
#include "core/ipod/note_writer.h"
#include "expect.h"
#include "literal_rules.h"

using namespace tavrel;
using namespace tavrel::fuzz;

namespace {

/// The last field, the notes, is no part of an address.
constexpr std::size_t kAddressFields = kMusicFields - 1;

bool HasNone(const MusicFields& fields, std::string_view characters) {
  return std::all_of(fields.begin(), fields.end(), [&](const std::string& field) {
    return field.find_first_of(characters) == std::string::npos;
  });
}

/// A record that was built stays as it is when it is read and built again.
void TryToBuild(const MusicFields& fields) {
  const std::string record = BuildMusicLink(fields);
  if (!HasNone(fields, "<")) return;
  Expect(ReadMusicLink(record) == fields, "what was built is read");
  ExpectEqual(BuildMusicLink(ReadMusicLink(record)), record, "the same record is built again");
}

/// The address that a note has for a music link leads back to the same fields when the note is imported.
void TryToImport(const std::string& address, MusicFields fields) {
  if (!HasNone(fields, "<&=\r\n")) return;
  const auto global = std::make_unique<Global>();
  NoteReader reader(*global, {}, CodePage::Windows1252());
  ExpectEqual(reader.ProcessMusic(address), "M1", "the first music link is taken");
  fields.back().clear();
  ExpectEqual(global->MusicLink(1), BuildMusicLink(fields), "the same music is imported");
}

}  // namespace

/// An input is the record of a music link.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const auto kGlobal = std::make_unique<Global>();
  const std::string record(Input(data, size).Rest());
  const MusicFields fields = ReadMusicLink(record);
  for (std::size_t field = 0; field < kMusicFields; ++field) {
    ExpectEqual(fields.at(field), LiteralGetTag(record, std::string(kMusicTags.at(field)), 1), "the field");
  }
  TryToBuild(fields);

  kGlobal->MusicLink(1) = record;
  const std::string address = GetMusic(*kGlobal, "M1");
  ExpectEqual(address, LiteralGetMusic(*kGlobal, "M1"), "the address");
  const bool is_music = std::any_of(fields.begin(), fields.begin() + kAddressFields,
                                    [](const std::string& field) { return !field.empty(); });
  Expect(is_music == (address != "\\"), "only a link to no music leads to the menu");
  TryToImport(address, fields);
  return 0;
}
