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
  std::uint64_t found = 0;
  if (text.size() < sizeof found) return std::all_of(text.begin(), text.end(), IsPlainLetter);
  const auto look_at = [&](std::size_t at) {
    std::uint64_t eight = 0;
    std::memcpy(&eight, text.data() + at, sizeof eight);
    const std::uint64_t zero_if_bracket = eight ^ (kEach * '<');
    found |= eight | ((zero_if_bracket - kEach) & ~zero_if_bracket);
  };
  for (std::size_t at = 0; at + sizeof found < text.size(); at += sizeof found) look_at(at);
  look_at(text.size() - sizeof found);
  return (found & (kEach * 0x80)) == 0;
}

}  // namespace tavrel
