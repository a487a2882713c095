#include <QApplication>

#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <unistd.h>
#include <vector>

#include "monkey/long_use.h"
#include "monkey/monkey.h"
#include "support/system_look.h"
#include "ui/shell/look.h"

// A thousand monkeys: random but repeatable use of the whole program.
//
//   tavrel_monkey [SEED [ACTIONS]]          a walk over a computer where things break
//   tavrel_monkey --long-use [ACTIONS]      a long day on one where nothing does, and what it costs
//
// The same seed gives the same walk. What breaks is told with its seed and the last 30 actions.

namespace tavrel::test {
namespace {

constexpr unsigned kPatience = 60;     // seconds for one action
constexpr int kLongUse = 2 * 60 * 60;  // an hour of two actions a second

std::array<char, 80> place{};

void TellPlace() {
  (void)!write(STDERR_FILENO, place.data(), std::strlen(place.data()));
}

extern "C" void OnAlarm(int /*signal*/) {
  constexpr const char* kText = "BROKEN: no progress\n";
  (void)!write(STDERR_FILENO, kText, std::strlen(kText));
  TellPlace();
  std::abort();
}

/// The sanitizers' way to say so; missing without them.
extern "C" void __sanitizer_set_death_callback(void (*callback)()) __attribute__((weak));

void RememberPlace(unsigned seed, int action) {
  std::snprintf(place.data(), place.size(), "tavrel_monkey: seed %u, action %d\n", seed, action);
  alarm(kPatience);
}

int Walk(unsigned seed, int actions) {
  const auto start = std::chrono::steady_clock::now();
  Monkey monkey(seed, true);
  for (int action = 1; action <= actions; ++action) {
    RememberPlace(seed, action);
    monkey.Act();
  }
  const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  const Counts& done = monkey.Done();
  std::printf(
      "seed %u: %d actions in %.0f s; compared %d commands, %d typed texts, %d keys; resynchronised %d; "
      "steps taken back %d, made again %d, %d histories gone through; led by panels %d times; dialogs %d, "
      "messages %d, published %d; "
      "starts %d, of which after earned failures %d; kills %d, "
      "recovered %d; trail %08x\n",
      seed, done.Actions, seconds, done.Commands, done.Typings, done.Keys, done.Resynchronised, done.Undone,
      done.Redone, done.Replays, done.Led, monkey.Dialogs(), monkey.Messages(), done.Published, done.Starts,
      done.Failures, done.Kills, done.Recovered, monkey.Trail());
  return 0;
}

}  // namespace
}  // namespace tavrel::test

int main(int argc, char* argv[]) {
  using namespace tavrel::test;
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  TakeSystemFont();
  tavrel::SetUpLook();
  std::signal(SIGALRM, OnAlarm);
  if (__sanitizer_set_death_callback != nullptr) __sanitizer_set_death_callback(TellPlace);
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  if (!arguments.empty() && arguments[0] == "--long-use")
    return UseForLong(arguments.size() < 2 ? kLongUse : std::stoi(arguments[1]));
  const unsigned seed = arguments.empty() ? 1 : static_cast<unsigned>(std::stoul(arguments[0]));
  return Walk(seed, arguments.size() < 2 ? 1000 : std::stoi(arguments[1]));
}
