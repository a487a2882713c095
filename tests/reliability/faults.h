#pragma once

#include <system_error>
#include <vector>

#include "support/failing_files.h"

namespace tavrel::test {

/// Every error that a system is known to give for an operation, but for a name that is already taken.
std::vector<std::error_code> ErrorsOf(FailingFiles::Operation operation);

}  // namespace tavrel::test
