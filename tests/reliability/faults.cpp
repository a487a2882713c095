#include "reliability/faults.h"

#include <cerrno>
#include <initializer_list>

namespace tavrel::test {
namespace {

using Operation = FailingFiles::Operation;

void Add(std::vector<std::error_code>& errors, std::initializer_list<int> numbers) {
  for (const int number : numbers) errors.emplace_back(number, std::generic_category());
}

}  // namespace

std::vector<std::error_code> ErrorsOf(Operation operation) {
  const auto is = [operation](std::initializer_list<Operation> operations) {
    for (const Operation other : operations) {
      if (other == operation) return true;
    }
    return false;
  };
  std::vector<std::error_code> errors;
  // A disk that breaks or goes, and a call that is interrupted: these stop any operation.
  Add(errors, {EIO, ENODEV, EINTR});
  if (!is({Operation::Open, Operation::Read, Operation::Remove})) {
    Add(errors, {ENOSPC});
#ifdef EDQUOT
    Add(errors, {EDQUOT});
#endif
  }
  if (is({Operation::CreateNew, Operation::CreateOrEmpty, Operation::Open, Operation::Replace,
          Operation::Remove, Operation::FlushFolder, Operation::FlushVolume})) {
    // These name a file, and what leads there may have changed.
    Add(errors, {EACCES, EPERM, ENOENT, ENOTDIR, EROFS, ELOOP, ENAMETOOLONG, EBUSY});
  }
  if (is({Operation::CreateNew, Operation::CreateOrEmpty, Operation::Open, Operation::FlushFolder,
          Operation::FlushVolume})) {
    Add(errors, {EMFILE, ENFILE, ENOMEM});
  }
  if (is({Operation::Write, Operation::Flush, Operation::Read})) Add(errors, {EBADF, EINVAL});
  if (is({Operation::Write})) Add(errors, {EFBIG, EAGAIN, EPERM});
  if (is({Operation::Flush})) Add(errors, {EROFS});
  if (is({Operation::Replace})) Add(errors, {EXDEV, EISDIR, EEXIST, ENOTEMPTY});
  if (is({Operation::FlushFolder, Operation::FlushVolume})) Add(errors, {EINVAL});
  return errors;
}

}  // namespace tavrel::test
