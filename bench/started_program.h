#pragma once

#include <string>
#include <vector>

namespace tavrel::bench {

/// What a started program reported.
struct Report {
  double Seconds = 0;    ///< from its start to its report
  double Megabytes = 0;  ///< of memory at that moment
};

/// Runs a program that ends with ReportAndEnd. Throws if it ends in another way.
Report RunAndWait(std::vector<std::string> command);

/// The seconds that a program takes as a whole process. Throws if it does not succeed.
double RunToItsEnd(std::vector<std::string> command);

}  // namespace tavrel::bench
