#pragma once

#include <string_view>

namespace tavrel {

/// Whether a text has only letters that every code page has in the same place, and no "<". Most have.
bool IsPlain(std::string_view text);

}  // namespace tavrel
