#pragma once

#include <system_error>

#include "platform/file_layer.h"

namespace tavrel::test {

/// The system's file layer with faults: one chosen call of one operation fails, and writes may be cut short.
class FailingFiles final : public FileLayer {
 public:
  enum class Operation {
    None,
    CreateNew,
    CreateOrEmpty,
    Open,
    Read,
    Write,
    Flush,
    Close,
    Replace,
    FlushFolder,
    FlushVolume,
    Remove
  };

  /// The `nth` call of `operation` (from 1) gives `error` instead of doing anything. A Close that fails has
  /// closed the file all the same, as the system's does.
  void FailAt(Operation operation, int nth, std::errc error);

  /// No write takes more than `bytes` at once.
  void CutWritesAt(std::size_t bytes) { most_per_write_ = bytes; }

  std::error_code CreateNew(const std::filesystem::path& file, const std::filesystem::path& like,
                            int& handle) override;
  std::error_code CreateOrEmpty(const std::filesystem::path& file, int& handle) override;
  std::error_code Open(const std::filesystem::path& file, int& handle) override;
  std::error_code Read(int handle, char* buffer, std::size_t size, std::size_t& read) override;
  std::error_code Write(int handle, std::string_view bytes, std::size_t& written) override;
  std::error_code Flush(int handle) override;
  std::error_code Close(int handle) override;
  std::error_code Replace(const std::filesystem::path& from, const std::filesystem::path& to) override;
  std::error_code FlushFolder(const std::filesystem::path& folder) override;
  std::error_code FlushVolume(const std::filesystem::path& folder) override;
  std::error_code Remove(const std::filesystem::path& file) override;

 private:
  bool Fails(Operation operation);

  Operation failing_ = Operation::None;
  int calls_left_ = 0;
  std::error_code error_;
  std::size_t most_per_write_ = static_cast<std::size_t>(-1);
};

}  // namespace tavrel::test
