#pragma once

#include <string>

namespace tavrel::test {

/// The lines of a note that say how it is shown, if the project wants both.
inline const std::string kMeta = "<meta name=\"LineWrap\" content=\"false\">\r\n";
inline const std::string kNow = "<meta name=\"NowPlaying\" content=\"false\">\r\n";

}  // namespace tavrel::test
