#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "platform/windows_error.h"

namespace tavrel::test {

/// A key of the registry's local machine. What of it was not there before goes again, and its values become
/// what they were.
class TemporaryKey {
 public:
  explicit TemporaryKey(const std::string& path);
  ~TemporaryKey();
  TemporaryKey(const TemporaryKey&) = delete;
  TemporaryKey& operator=(const TemporaryKey&) = delete;

  /// Whether this user may make such keys.
  bool IsOpen() const { return key_ != nullptr; }

  /// Sets a value as the system stores it. A text is in the system's code page and needs a NUL at its end.
  void Set(const std::string& name, DWORD type, const std::string& bytes);
  void Set(const std::string& name, const std::wstring& text);

  /// Gives everybody these rights only, in the system's notation.
  void AllowOnly(const std::wstring& rights);

 private:
  void RestoreLater(const std::string& name);

  HKEY key_ = nullptr;
  std::vector<std::string> made_;
  std::vector<std::function<void()>> restores_;
};

}  // namespace tavrel::test
