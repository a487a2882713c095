#include "core/check/plain_text.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace tavrel {
namespace {

bool IsPlainLetter(char c) {
  return static_cast<unsigned char>(c) < 0x80 && c != '<';
}

}  // namespace

bool IsPlain(std::string_view text) {
  // Eight bytes at a time. The highest bit of each then says that it is another letter, or was a bracket.
  constexpr std::uint64_t kEach = 0x0101010101010101;
  constexpr std::size_t kEight = sizeof kEach;
  if (text.size() < kEight) return std::all_of(text.begin(), text.end(), IsPlainLetter);
  const auto are_plain = [text](std::size_t at) {
    std::uint64_t eight = 0;
    std::memcpy(&eight, text.data() + at, kEight);
    const std::uint64_t zero_if_bracket = eight ^ (kEach * '<');
    return ((eight | ((zero_if_bracket - kEach) & ~zero_if_bracket)) & (kEach * 0x80)) == 0;
  };
  for (std::size_t at = 0; at + kEight < text.size(); at += kEight) {
    if (!are_plain(at)) return false;
  }
  return are_plain(text.size() - kEight);
}

}  // namespace tavrel
