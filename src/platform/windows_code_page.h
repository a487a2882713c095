#pragma once

#include "core/text/code_page.h"

namespace tavrel {

/// The system's own code page if each of its characters is one byte, or else Windows-1252.
const CodePage& WindowsCodePage();

}  // namespace tavrel
