#include "support/failing_files.h"

#include <algorithm>

namespace tavrel::test {

namespace fs = std::filesystem;

void FailingFiles::FailAt(Operation operation, int nth, std::error_code error) {
  failing_ = operation;
  calls_left_ = nth;
  error_ = error;
}

void FailingFiles::FailAt(Operation operation, int nth, std::errc error) {
  FailAt(operation, nth, std::make_error_code(error));
}

void FailingFiles::FailAllFrom(int nth, std::error_code error) {
  first_lost_call_ = all_calls_ + nth;
  loss_ = error;
}

void FailingFiles::CutWriteAt(int nth, std::size_t bytes) {
  short_write_ = calls_[Operation::Write] + nth;
  most_in_short_write_ = bytes;
}

std::error_code FailingFiles::CreateNew(const fs::path& file, const fs::path& like, int& handle) {
  return Do(Operation::CreateNew, [&] { return SystemFiles().CreateNew(file, like, handle); });
}

std::error_code FailingFiles::CreateOrEmpty(const fs::path& file, int& handle) {
  return Do(Operation::CreateOrEmpty, [&] { return SystemFiles().CreateOrEmpty(file, handle); });
}

std::error_code FailingFiles::Open(const fs::path& file, int& handle) {
  return Do(Operation::Open, [&] { return SystemFiles().Open(file, handle); });
}

std::error_code FailingFiles::Read(int handle, char* buffer, std::size_t size, std::size_t& read) {
  return Do(Operation::Read, [&] { return SystemFiles().Read(handle, buffer, size, read); });
}

std::error_code FailingFiles::Write(int handle, std::string_view bytes, std::size_t& written) {
  const bool is_short = calls_[Operation::Write] + 1 == short_write_;
  const std::size_t most = is_short ? std::min(most_in_short_write_, most_per_write_) : most_per_write_;
  return Do(Operation::Write, [&] { return SystemFiles().Write(handle, bytes.substr(0, most), written); });
}

std::error_code FailingFiles::Flush(int handle) {
  return Do(Operation::Flush, [&] { return flushes_ ? SystemFiles().Flush(handle) : std::error_code(); });
}

std::error_code FailingFiles::Close(int handle) {
  return Do(Operation::Close, [&] { return SystemFiles().Close(handle); });
}

std::error_code FailingFiles::Replace(const fs::path& from, const fs::path& to) {
  return Do(Operation::Replace, [&] { return SystemFiles().Replace(from, to); });
}

std::error_code FailingFiles::FlushFolder(const fs::path& folder) {
  return Do(Operation::FlushFolder,
            [&] { return flushes_ ? SystemFiles().FlushFolder(folder) : std::error_code(); });
}

std::error_code FailingFiles::FlushVolume(const fs::path& folder) {
  return Do(Operation::FlushVolume,
            [&] { return flushes_ ? SystemFiles().FlushVolume(folder) : std::error_code(); });
}

std::error_code FailingFiles::Remove(const fs::path& file) {
  return Do(Operation::Remove, [&] { return SystemFiles().Remove(file); });
}

std::optional<std::error_code> FailingFiles::Fault(Operation operation) {
  ++calls_[operation];
  ++all_calls_;
  if (operation == failing_ && --calls_left_ == 0) return error_;
  if (const auto always = always_.find(operation); always != always_.end()) return always->second;
  if (first_lost_call_ > 0 && all_calls_ >= first_lost_call_) return loss_;
  return std::nullopt;
}

template <typename Call>
std::error_code FailingFiles::Do(Operation operation, const Call& call) {
  const std::optional<std::error_code> fault = Fault(operation);
  if (!fault) return call();
  ++failures_;
  if (operation == Operation::Close || fails_with_the_work_done_) call();
  return *fault;
}

const char* NameOf(FailingFiles::Operation operation) {
  switch (operation) {
    case FailingFiles::Operation::None:
      return "None";
    case FailingFiles::Operation::CreateNew:
      return "CreateNew";
    case FailingFiles::Operation::CreateOrEmpty:
      return "CreateOrEmpty";
    case FailingFiles::Operation::Open:
      return "Open";
    case FailingFiles::Operation::Read:
      return "Read";
    case FailingFiles::Operation::Write:
      return "Write";
    case FailingFiles::Operation::Flush:
      return "Flush";
    case FailingFiles::Operation::Close:
      return "Close";
    case FailingFiles::Operation::Replace:
      return "Replace";
    case FailingFiles::Operation::FlushFolder:
      return "FlushFolder";
    case FailingFiles::Operation::FlushVolume:
      return "FlushVolume";
    case FailingFiles::Operation::Remove:
      return "Remove";
  }
  return "";
}

}  // namespace tavrel::test
