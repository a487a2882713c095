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
#include "core/text/run_time_error.h"

/// Reading notes: those that the program publishes and any other text files.
namespace tavrel {

class AnchorCutter;

/// A note that cannot become a page.
class NoteError : public RunTimeError {
 public:
  /// `line` is 0 if no line is to blame.
  NoteError(const std::filesystem::path& note, int line, const std::string& fault);

  std::filesystem::path Note;
  int Line;           ///< of the note's file, from 1
  std::string Fault;  ///< what is wrong and what to do about it, in a line each
};

/// Makes pages out of notes. The position of a note in the list of names, from 1, is its page's number.
class NoteReader {
 public:
  /// `names` are the notes' file names in the code page. The global state and the code page must outlive the
  /// reader.
  NoteReader(Global& global, const std::vector<std::string>& names, const CodePage& code_page);

  /// Makes page `page` out of a whole note, whose lines end with CR LF. Throws RunTimeError if the page is
  /// above 1000, an anchor has no closing quote or no "</a>", or all music links are taken.
  void ProcessInput(std::string_view note, int page);

  /// The line of the note, from 1, with the link at which ProcessInput has thrown; 0 if no link is to blame.
  int Line() const { return line_; }

  /// The page number of a note that another one links to; "001" for whatever is not in the list.
  std::string ProcessLink(const std::string& target) const;

  /// Makes a music link out of an address and gives its name. Addresses that differ only in letter case share
  /// one music link. Throws RunTimeError if all are taken.
  std::string ProcessMusic(std::string_view target);

 private:
  void ProcessAnchors(AnchorCutter& anchors, std::string& links);

  Global& global_;
  const CodePage& code_page_;
  std::unordered_map<std::string, std::string> page_numbers_;  ///< as links name them, by note
  std::map<std::string, int> music_links_;
  int line_ = 0;
};

/// A note's text with every line ended by CR LF, also the last one. A line may end at CR LF, LF or CR.
std::string NoteLines(std::string_view bytes);

/// Replaces the document in memory by the notes of a folder, which also gives it its name; nothing is saved.
/// Tells `progress` after each note how many have been read. Throws FileError and NoteError.
void ImportNotes(Global& global, const std::filesystem::path& folder,
                 const std::vector<std::filesystem::path>& notes, const CodePage& code_page,
                 const std::function<void(int)>& progress);

}  // namespace tavrel
