#pragma once

#include <string>
#include <string_view>

namespace tavrel {

/// A text on one line of a file: each line break, CR LF, becomes "<p>". A lone LF, which would break the
/// line, counts as a line break too.
std::string OnOneLine(std::string_view text);

/// The text of one line of a file: each "<p>" becomes a line break.
std::string WithLineBreaks(std::string_view line);

}  // namespace tavrel
