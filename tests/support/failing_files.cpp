#include "support/failing_files.h"

namespace tavrel::test {

namespace fs = std::filesystem;

void FailingFiles::FailAt(Operation operation, int nth, std::errc error) {
  failing_ = operation;
  calls_left_ = nth;
  error_ = std::make_error_code(error);
}

std::error_code FailingFiles::CreateNew(const fs::path& file, const fs::path& like, int& handle) {
  return Fails(Operation::CreateNew) ? error_ : SystemFiles().CreateNew(file, like, handle);
}

std::error_code FailingFiles::CreateOrEmpty(const fs::path& file, int& handle) {
  return Fails(Operation::CreateOrEmpty) ? error_ : SystemFiles().CreateOrEmpty(file, handle);
}

std::error_code FailingFiles::Open(const fs::path& file, int& handle) {
  return Fails(Operation::Open) ? error_ : SystemFiles().Open(file, handle);
}

std::error_code FailingFiles::Read(int handle, char* buffer, std::size_t size, std::size_t& read) {
  return Fails(Operation::Read) ? error_ : SystemFiles().Read(handle, buffer, size, read);
}

std::error_code FailingFiles::Write(int handle, std::string_view bytes, std::size_t& written) {
  return Fails(Operation::Write) ? error_
                                 : SystemFiles().Write(handle, bytes.substr(0, most_per_write_), written);
}

std::error_code FailingFiles::Flush(int handle) {
  return Fails(Operation::Flush) ? error_ : SystemFiles().Flush(handle);
}

std::error_code FailingFiles::Close(int handle) {
  const std::error_code error = SystemFiles().Close(handle);
  return Fails(Operation::Close) ? error_ : error;
}

std::error_code FailingFiles::Replace(const fs::path& from, const fs::path& to) {
  return Fails(Operation::Replace) ? error_ : SystemFiles().Replace(from, to);
}

std::error_code FailingFiles::FlushFolder(const fs::path& folder) {
  return Fails(Operation::FlushFolder) ? error_ : SystemFiles().FlushFolder(folder);
}

std::error_code FailingFiles::FlushVolume(const fs::path& folder) {
  return Fails(Operation::FlushVolume) ? error_ : SystemFiles().FlushVolume(folder);
}

std::error_code FailingFiles::Remove(const fs::path& file) {
  return Fails(Operation::Remove) ? error_ : SystemFiles().Remove(file);
}

bool FailingFiles::Fails(Operation operation) {
  return operation == failing_ && --calls_left_ == 0;
}

}  // namespace tavrel::test
