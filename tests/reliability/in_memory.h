#pragma once

#include <optional>
#include <string>

namespace tavrel::test {

/// While this lives, temporary folders are made in memory where the system has a place for that: thousands of
/// small files take a disk too long.
class InMemory {
 public:
  InMemory();
  ~InMemory();
  InMemory(const InMemory&) = delete;
  InMemory& operator=(const InMemory&) = delete;

 private:
  std::optional<std::string> old_folder_;
};

}  // namespace tavrel::test
