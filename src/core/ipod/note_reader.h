#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "core/document/global.h"
#include "core/text/code_page.h"

/// Reading notes: those that the program publishes and any other text files.
namespace tavrel {

/// Makes pages out of notes. The position of a note in the list of names, from 1, is its page's number.
class NoteReader {
 public:
  /// `names` are the notes' file names in the code page. The global state and the code page must outlive the
  /// reader.
  NoteReader(Global& global, const std::vector<std::string>& names, const CodePage& code_page);

  /// Makes page `page` out of a whole note. Throws RunTimeError if the page is above 1000, an anchor has no
  /// closing quote or no "</a>", or all music links are taken.
  void ProcessInput(std::string_view note, int page);

  /// The page number of a note that another one links to; "001" for whatever is not in the list.
  std::string ProcessLink(const std::string& target) const;

  /// Makes a music link out of an address and gives its name. Addresses that differ only in letter case share
  /// one music link. Throws RunTimeError if all are taken.
  std::string ProcessMusic(std::string_view target);

 private:
  Global& global_;
  const CodePage& code_page_;
  std::unordered_map<std::string, std::string> page_numbers_;  ///< as links name them, by note
  std::map<std::string, int> music_links_;
};

/// A note's text with every line ended by CR LF, also the last one. A line may end at CR LF, LF or CR.
std::string NoteLines(std::string_view bytes);

/// Replaces the document in memory by the notes of a folder, which also gives it its name; nothing is saved.
/// Tells `progress` after each note how many have been read. Throws RunTimeError.
void ImportNotes(Global& global, const std::filesystem::path& folder,
                 const std::vector<std::filesystem::path>& notes, const CodePage& code_page,
                 const std::function<void(int)>& progress);

}  // namespace tavrel
