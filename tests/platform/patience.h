#pragma once

#include <chrono>
#include <thread>

namespace tavrel::test {

/// Whether a condition comes true within some seconds.
template <typename Condition>
bool ComesTrue(const Condition& condition) {
  constexpr int kTries = 1000;
  for (int tries = 0; tries < kTries; ++tries) {
    if (condition()) return true;
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  return condition();
}

}  // namespace tavrel::test
