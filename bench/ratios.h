#pragma once

#include <functional>
#include <string>
#include <vector>

namespace tavrel::bench {

/// One line of the table: a work beside the raw cost of the same work.
struct Row {
  std::string Work;
  std::string Measured;
  std::string Baseline;
  double Ratio = 0;
  double Limit = 0;
  std::string Note;
};

/// Runs one repetition and gives the seconds that count.
using Timed = std::function<double()>;

/// The middle one of several figures.
double Median(std::vector<double> figures);

/// Runs the work and its baseline in turns, so that whatever slows the machine slows both, and compares their
/// medians. The first turn of each only warms up.
Row Compare(const std::string& work, double limit, int repetitions, const Timed& timed,
            const Timed& baseline);

/// Compares what a work takes more with something than without it.
Row CompareAdded(const std::string& work, double limit, int repetitions, const Timed& with,
                 const Timed& without, const Timed& baseline);

/// The seconds that `work` takes.
double Seconds(const std::function<void()>& work);

/// Seconds as text, in milliseconds.
std::string Milliseconds(double seconds);

void PrintTable(const std::vector<Row>& rows);

}  // namespace tavrel::bench
