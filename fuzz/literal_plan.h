#pragma once

#include <string>
#include <vector>

#include "core/planner/plan.h"

/// How a plan file is read, written down step by step and one character at a time, for comparison with the
/// code that the program runs.
namespace tavrel::fuzz {

/// The 130 values of a plan in the order of its file, ticks as digits.
std::vector<std::string> ValuesOf(const Plan& plan);

/// The same values read from a file. Throws RunTimeError if it ends early or a tick is none.
std::vector<std::string> LiteralReadPlan(const std::string& file);

/// The first fields of a file. Throws RunTimeError if it has fewer.
std::vector<std::string> LiteralReadFields(std::string bytes, int count);

}  // namespace tavrel::fuzz
