#include "ratios.h"

#include <algorithm>
#include <chrono>
#include <cstdio>

namespace tavrel::bench {
namespace {

std::string Fixed(double number, int decimals, const char* unit) {
  char text[64];
  std::snprintf(text, sizeof text, "%.*f%s", decimals, number, unit);
  return text;
}

void PrintLine(const Row& row, const std::string& ratio, const std::string& limit) {
  std::printf("%-42s %12s %18s %8s %8s  %s\n", row.Work.c_str(), row.Measured.c_str(), row.Baseline.c_str(),
              ratio.c_str(), limit.c_str(), row.Note.c_str());
}

}  // namespace

double Median(std::vector<double> figures) {
  const auto middle = figures.begin() + static_cast<std::ptrdiff_t>(figures.size() / 2);
  std::nth_element(figures.begin(), middle, figures.end());
  return *middle;
}

Row Compare(const std::string& work, double limit, int repetitions, const Timed& timed,
            const Timed& baseline) {
  return CompareAdded(
      work, limit, repetitions, timed, [] { return 0.0; }, baseline);
}

Row CompareAdded(const std::string& work, double limit, int repetitions, const Timed& with,
                 const Timed& without, const Timed& baseline) {
  with();
  without();
  baseline();
  std::vector<double> work_times;
  std::vector<double> baseline_times;
  for (int repetition = 0; repetition < repetitions; ++repetition) {
    const double time_with = with();
    work_times.push_back(time_with - without());
    baseline_times.push_back(baseline());
  }
  const double work_time = Median(work_times);
  const double baseline_time = Median(baseline_times);
  return {work, Milliseconds(work_time), Milliseconds(baseline_time), work_time / baseline_time, limit, {}};
}

double Seconds(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

std::string Milliseconds(double seconds) {
  return Fixed(seconds * 1000, 2, " ms");
}

void PrintTable(const std::vector<Row>& rows) {
  PrintLine({"work", "measured", "baseline", 0, 0, {}}, "ratio", "at most");
  for (const Row& row : rows) {
    Row line = row;
    if (row.Ratio > row.Limit) line.Note = row.Note.empty() ? "OVER" : "OVER; " + row.Note;
    PrintLine(line, Fixed(row.Ratio, 2, "x"), Fixed(row.Limit, 2, "x"));
  }
}

}  // namespace tavrel::bench
