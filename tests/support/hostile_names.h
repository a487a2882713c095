#pragma once

#include <cstddef>
#include <random>
#include <string>
#include <vector>

namespace tavrel::test {

/// Something that a person or a program may type for a name.
struct HostileName {
  std::string Typed;  ///< bytes of Windows-1252
  std::string Left;   ///< the file's name by the rules of typed names, as UTF-8; empty: there is none
};

/// No file system that the tests meet takes names of more bytes.
inline constexpr std::size_t kMostNameBytes = 255;

/// Names with separators, full stops, devices, control characters, commands, or of lengths around the limit.
std::vector<HostileName> HostileNames();

/// A name made of nasty pieces at random.
HostileName RandomHostileName(std::mt19937& random);

/// How many random names to try for each kind of file: 500, or what the environment variable
/// TAVREL_HOSTILE_NAMES says.
int HostileNameCount();

/// The beginning of a name as it is typed, for a test's own report, and its length.
std::string Shown(const HostileName& name);

}  // namespace tavrel::test
