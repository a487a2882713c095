#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

#include "core/text/opened_file.h"

namespace tavrel {

/// How every line of a file that the program writes ends.
inline constexpr std::string_view kLineEnd = "\r\n";

/// All bytes of a file. Throws FileError.
std::string ReadWholeFile(const std::filesystem::path& file);

/// Splits the text of one of the program's own files into lines. A line ends at CR LF or LF; a lone CR is
/// content. The last line may lack its end.
class LineReader {
 public:
  explicit LineReader(std::string_view text) : rest_(text) {}

  bool AtEnd() const { return rest_.empty(); }

  /// The next line without its end. Must not be called at the end of the text.
  std::string_view Next();

 private:
  std::string_view rest_;
};

/// The same of a file, of which only a part is kept in memory.
class FileLineReader {
 public:
  /// This and the others throw FileError.
  explicit FileLineReader(const std::filesystem::path& file) : file_(file) {}

  bool AtEnd() { return at_ == part_.size() && !ReadMore(); }

  /// The next line without its end, to be used before anything else is asked for.
  std::string_view Next();

 private:
  bool ReadMore();

  OpenedFile file_;
  std::string part_;    ///< what was read last
  std::size_t at_ = 0;  ///< where the next line starts in it
};

}  // namespace tavrel
