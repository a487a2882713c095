#pragma once

#include <random>
#include <string>
#include <vector>

namespace tavrel::test {

/// A number from `first` to `last`.
int Any(std::mt19937& random, int first, int last);

/// A page number: mostly one of the first or the last few.
int AnyPage(std::mt19937& random);

template <typename T>
const T& AnyOf(std::mt19937& random, const std::vector<T>& values) {
  return values[random() % values.size()];
}

/// What a link can point at in a file: pages near both ends of the document, numbers at the ends of 16 bits,
/// unpadded ones, music, nothing, and further tags.
std::string AnyTarget(std::mt19937& random);

/// Links, whole and broken, in any order.
std::string AnyLinks(std::mt19937& random);

/// A page record: mostly as the editor writes it, but any element may be missing, broken or doubled.
std::string AnyRecord(std::mt19937& random);

}  // namespace tavrel::test
