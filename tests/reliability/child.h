#pragma once

#include <atomic>
#include <chrono>
#include <functional>
#include <string>

namespace tavrel::test {

/// Does `work` in a process of its own and gives the text that it returns, or what ended it otherwise.
std::string InAProcess(const std::function<std::string()>& work);

/// How far a process had come when it was killed: the version that it had begun to save and the last one that
/// it had saved to the end.
struct Saved {
  int Begun = 0;
  int Done = 0;
};

/// Has a process save one version after the other and kills it some time after it has begun. The process may
/// not end by itself: then what is given is negative.
Saved SaveUntilKilled(int first_version, const std::function<void(int version)>& save,
                      std::chrono::microseconds time);

}  // namespace tavrel::test
