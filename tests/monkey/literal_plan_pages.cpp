#include <cmath>
#include <cstdlib>
#include <regex>

#include "core/editing/literal_tags.h"
#include "monkey/literal_page.h"
#include "monkey/texts.h"

namespace tavrel::test {
namespace {

std::string LinkTo(const std::string& text, int page) {
  return "<linktext>" + Trimmed(text) + "</linktext><linkto>" + LiteralFormat(page) + "</linkto>";
}

}  // namespace

double LiteralPlanTop(const std::map<std::string, std::string>& planner) {
  static const std::regex number(R"(^ *([+-]?([0-9]+(\.[0-9]*)?|\.[0-9]+)([eE][+-]?[0-9]+)?))");
  std::smatch found;
  const std::string text = planner.at("Text2");
  if (!std::regex_search(text, found, number)) return 0;
  return std::nearbyint(std::strtod(found[1].str().c_str(), nullptr));
}

std::optional<std::vector<std::string>> LiteralPlanPages(const std::map<std::string, std::string>& planner) {
  const double top = LiteralPlanTop(planner);
  if (!(top >= 1 && top <= 950)) return std::nullopt;
  const auto text = [&](const std::string& name) { return planner.at(name); };
  const std::string north = text("Text3_0");
  const std::string south = text("Text3_1");
  const std::string east = text("Text3_2");
  const std::string west = text("Text3_3");
  for (const std::string& way : {north, south, east, west}) {
    if (Trimmed(way).empty()) return std::nullopt;
  }
  std::vector<std::string> pages;
  for (int i = 0; i < 25; ++i) {
    const std::string cell = "_" + std::to_string(i);
    const int p = static_cast<int>(top) + i;
    const std::string t = Trimmed(text("Text1" + cell));
    std::string page;
    if (!t.empty()) {
      page = "<text>" + t + "</text><note>" + t.substr(0, 50) + "</note>";
      std::string links;
      if (text("Check1" + cell) == "1") links += LinkTo(west, p - 1 < 1 ? 1 : p - 1);
      if (text("Check4" + cell) == "1") links += LinkTo(north, p < 6 ? 1 : p - 5);
      if (text("Check2" + cell) == "1") links += LinkTo(east, p + 1);
      if (text("Check3" + cell) == "1") links += LinkTo(south, p + 5);
      if (!links.empty()) page += "<link>" + links + "</link>";
    }
    pages.push_back(page);
  }
  return pages;
}

}  // namespace tavrel::test
