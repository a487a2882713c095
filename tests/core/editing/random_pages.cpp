#include "core/editing/random_pages.h"

#include "core/text/numbers.h"

namespace tavrel::test {
namespace {

std::string AnyWords(std::mt19937& random) {
  static const std::vector<std::string> any_of_these = {
      "cat", "Cat",       "catcat", "a",      " ",   "  ",       "\r\n", "<text>", "\xC9",
      "1",   "\xE9t\xE9", "<note>", "<link>", "dog", "<linkto>", "b",    "CAT",    "aab"};
  std::string words;
  for (int left = Any(random, 0, 6); left > 0; --left) words += AnyOf(random, any_of_these);
  return words;
}

std::string AnyPair(std::mt19937& random) {
  const std::string text = AnyOf<std::string>(random, {"a", "b", "", " c "});
  return "<linktext>" + text + "</linktext><linkto>" + AnyTarget(random) + "</linkto>";
}

}  // namespace

int Any(std::mt19937& random, int first, int last) {
  return first + static_cast<int>(random() % static_cast<unsigned>(last - first + 1));
}

int AnyPage(std::mt19937& random) {
  switch (random() % 8) {
    case 0:
      return Any(random, 1, 999);
    case 1:
    case 2:
    case 3:
      return Any(random, 991, 999);
    default:
      return Any(random, 1, 9);
  }
}

std::string AnyTarget(std::mt19937& random) {
  static const std::vector<std::string> odd_targets = {"",           "M5",
                                                       "m2",         "000",
                                                       "0",          " 5",
                                                       "5x",         "x5",
                                                       "-5",         "1000",
                                                       "1001",       "0003",
                                                       "32764",      "32766",
                                                       "32767",      "32768",
                                                       "65535",      "65536",
                                                       "65540",      "70000",
                                                       "131073",     "7<linkto>3",
                                                       "7<linkto>",  "<linkto>",
                                                       "x<linkto>4", "998<linkto>2<linkto>",
                                                       "</link>"};
  switch (random() % 4) {
    case 0:
      return AnyOf(random, odd_targets);
    case 1:
      return std::to_string(AnyPage(random));
    default:
      return FormatPage(AnyPage(random));
  }
}

std::string AnyLinks(std::mt19937& random) {
  static const std::vector<std::string> pieces = {"<linkto>",
                                                  "<linkto>",
                                                  "</linkto>",
                                                  "</linkto>",
                                                  "<linkto></linkto>",
                                                  "<linkto>5<linkto></linkto>",
                                                  "<link>",
                                                  "</link>",
                                                  "<linkto",
                                                  "</linktext>",
                                                  "<",
                                                  "x"};
  std::string links;
  for (int left = Any(random, 0, 6); left > 0; --left) {
    switch (random() % 6) {
      case 0:
        links += AnyOf(random, pieces);
        break;
      case 1:
        links += AnyTarget(random);
        break;
      default:
        links += AnyPair(random);
    }
  }
  return links;
}

std::string AnyRecord(std::mt19937& random) {
  const auto often = [&random] { return random() % 4 != 0; };
  const auto seldom = [&random] { return random() % 8 == 0; };
  std::string record;
  if (seldom()) record += AnyLinks(random);
  if (often()) record += "<title>T" + std::to_string(random() % 1000) + "</title>";
  if (seldom()) record += "<note> n </note>";
  if (often()) {
    record += "<text>" + AnyWords(random);
    if (!seldom()) record += "</text>";
  }
  if (often()) {
    if (!seldom()) record += "<link>";
    record += AnyLinks(random);
    if (!seldom()) record += "</link>";
  }
  if (seldom()) record += "<music>Play</music><music>m1</music>";
  if (seldom()) record += AnyLinks(random);
  return record;
}

}  // namespace tavrel::test
