#pragma once

namespace tavrel::test {

/// A long day of ordinary use, and what it costs: tells memory, handles, windows and temporary files as they
/// grow. 0 if they do not.
int UseForLong(int actions);

}  // namespace tavrel::test
