#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tavrel::fuzz {

/// Ends the fuzzer with a message if something does not hold; the input is then kept.
void Expect(bool holds, std::string_view what);
void ExpectEqual(std::string_view actual, std::string_view expected, std::string_view what);

/// An input, taken apart from the front. Whatever is missing is zero or empty.
class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size) : rest_(reinterpret_cast<const char*>(data), size) {}

  /// The next byte as a number from 0 to `count` - 1; the digits count from 0, so that inputs can be typed.
  int Choice(int count);

  /// What comes before the next line feed, which is dropped.
  std::string_view Line();

  std::string_view Rest() const { return rest_; }

 private:
  std::string_view rest_;
};

}  // namespace tavrel::fuzz
