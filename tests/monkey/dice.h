#pragma once

#include <random>
#include <vector>

namespace tavrel::test {

/// What decides everything that a monkey does: one seed gives one walk, on every system.
class Dice {
 public:
  explicit Dice(unsigned seed) : random_(seed) {}

  /// 0 to `count` - 1.
  int Below(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }
  int Between(int first, int last) { return first + Below(last - first + 1); }
  bool OneIn(int count) { return Below(count) == 0; }

  template <typename T>
  const T& AnyOf(const std::vector<T>& values) {
    return values[static_cast<std::size_t>(Below(static_cast<int>(values.size())))];
  }

 private:
  std::mt19937 random_;
};

}  // namespace tavrel::test
