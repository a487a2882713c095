#pragma once

#include <map>
#include <optional>
#include <system_error>

#include "platform/file_layer.h"

namespace tavrel::test {

/// The system's file layer with faults: one chosen call of one operation fails, and writes may be cut short.
/// It counts what it is asked for.
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
  void FailAt(Operation operation, int nth, std::error_code error);
  void FailAt(Operation operation, int nth, std::errc error);

  /// The call that fails has done its work all the same, as on a disk whose answer is lost.
  void FailWithTheWorkDone() { fails_with_the_work_done_ = true; }

  /// Every call of `operation` gives `error`, besides what else fails.
  void FailAlways(Operation operation, std::error_code error) { always_[operation] = error; }

  /// The `nth` call of any operation and all that follow fail: the disk has gone.
  void FailAllFrom(int nth, std::error_code error);

  /// No write takes more than `bytes` at once.
  void CutWritesAt(std::size_t bytes) { most_per_write_ = bytes; }

  /// The `nth` write takes no more than `bytes`.
  void CutWriteAt(int nth, std::size_t bytes);

  /// Flushes do nothing: for tests that write a thousand files and do not wait for a disk.
  void NeverWaitForTheDisk() { flushes_ = false; }

  /// How often each operation was asked for, whether it failed or not.
  const std::map<Operation, int>& Calls() const { return calls_; }

  /// How often one has failed as told.
  int Failures() const { return failures_; }

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
  /// The error that this call of an operation is to give.
  std::optional<std::error_code> Fault(Operation operation);
  template <typename Call>
  std::error_code Do(Operation operation, const Call& call);

  Operation failing_ = Operation::None;
  int calls_left_ = 0;
  std::error_code error_;
  bool fails_with_the_work_done_ = false;
  std::map<Operation, std::error_code> always_;
  int first_lost_call_ = 0;  ///< counted over all operations; 0: none
  std::error_code loss_;
  std::map<Operation, int> calls_;
  int all_calls_ = 0;
  int failures_ = 0;
  std::size_t most_per_write_ = static_cast<std::size_t>(-1);
  int short_write_ = 0;
  std::size_t most_in_short_write_ = 0;
  bool flushes_ = true;
};

/// The operation's name, for messages.
const char* NameOf(FailingFiles::Operation operation);

}  // namespace tavrel::test
