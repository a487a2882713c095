#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>

#include "core/document/record.h"

namespace tavrel {

inline constexpr int kLastPage = 999;       ///< pages are numbered 1 to 999
inline constexpr int kLastRecord = 1000;    ///< files may hold one record more, which is no page
inline constexpr int kLastMusicLink = 100;  ///< music links are numbered 1 to 100
inline constexpr int kLastLink = 49;        ///< links of one page are numbered 1 to 49
inline constexpr int kLastSetting = 20;     ///< settings are numbered 1 to 20

/// The state that the windows share: the document in memory, the place in it and the preferences.
struct Global {
  std::array<Record, 1001> Pages;      ///< page records by number; an empty one is no page. Entries 0 and
                                       ///< 1000 are no pages, but files may fill them; 1000 is never
                                       ///< written.
  std::array<Record, 101> MusicLinks;  ///< music link records by number; an empty one is no music link.
                                       ///< Entry 0 is none; 100 is never written.
  std::filesystem::path DocPath;       ///< bare file name of the open document; empty: none is open
  std::int16_t CurrentPage = 1;        ///< the page in the editor
  std::int16_t CurrentLink = 1;        ///< the row of the links grid in the entry fields
  std::string PageClipboard;           ///< one copied page record
  std::string FindText;                ///< the text last searched for
  std::filesystem::path PlanPath;      ///< bare file name of the current plan; empty: none
  std::array<std::string, kLastSetting + 1> Settings;
  bool UseSkin = false;                 ///< background pictures are shown
  std::filesystem::path ProgramFolder;  ///< full path of the folder with the program's own files
  bool IsDocumentShown = false;         ///< the fields of the editor belong to the document in memory

  bool IsDocumentOpen() const { return !DocPath.empty(); }
  /// Whether the open document is the one in the fields of the editor: not while another one is being opened,
  /// and not if none was.
  bool IsDocumentInEditor() const { return IsDocumentOpen() && IsDocumentShown; }

  Record& Page(int number) { return Pages.at(static_cast<std::size_t>(number)); }
  const Record& Page(int number) const { return Pages.at(static_cast<std::size_t>(number)); }
  Record& MusicLink(int number) { return MusicLinks.at(static_cast<std::size_t>(number)); }
  const Record& MusicLink(int number) const { return MusicLinks.at(static_cast<std::size_t>(number)); }
};

/// Empties pages 1 to 999 and music links 1 to 100; the entries beyond stay.
void ClearDocument(Global& global);

/// The number of the last page; 1 if there are no pages.
int LastPage(const Global& global);

/// The full path of the open document's file.
std::filesystem::path DocumentFile(const Global& global);

/// The open document's name: its file name less the extension.
std::filesystem::path DocumentName(const Global& global);

}  // namespace tavrel
