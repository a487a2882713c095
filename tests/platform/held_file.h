#pragma once

#include <filesystem>

#include "platform/windows_error.h"

namespace tavrel::test {

/// A file that another program has open, and what it lets others do with it meanwhile.
class HeldFile {
 public:
  HeldFile(const std::filesystem::path& file, DWORD sharing)
      : handle_(::CreateFileW(file.c_str(), GENERIC_READ, sharing, nullptr, OPEN_EXISTING, 0, nullptr)) {}
  ~HeldFile() { ::CloseHandle(handle_); }
  HeldFile(const HeldFile&) = delete;
  HeldFile& operator=(const HeldFile&) = delete;

 private:
  HANDLE handle_;
};

}  // namespace tavrel::test
