#pragma once

namespace tavrel::test {

/// Gives the application the font that windows have on this system. Without a display the toolkit does not
/// ask for it everywhere.
void TakeSystemFont();

}  // namespace tavrel::test
