#include "core/planner/literal_plan.h"

#include <cstddef>
#include <cstdio>

namespace tavrel::test {
namespace {

std::string Trimmed(std::string text) {
  while (!text.empty() && text.front() == ' ') text.erase(text.begin());
  while (!text.empty() && text.back() == ' ') text.pop_back();
  return text;
}

std::string ThreeDigits(int number) {
  std::array<char, 16> digits{};
  std::snprintf(digits.data(), digits.size(), "%03d", number);
  return digits.data();
}

/// The nearest whole number; of two equally near ones the even one. The number must be small.
int Rounded(double number) {
  int whole = static_cast<int>(number) - 1;
  while (number - whole > 0.5) ++whole;
  if (number - whole == 0.5 && whole % 2 != 0) ++whole;
  return whole;
}

std::string Link(const std::string& text, const std::string& target) {
  return "<linktext>" + Trimmed(text) + "</linktext><linkto>" + target + "</linkto>";
}

std::string LinksOf(const LiteralPlanner& planner, std::size_t i, int p) {
  std::string l;
  if (planner.Check1[i] == 1) l += Link(planner.Text3[3], p - 1 < 1 ? "001" : ThreeDigits(p - 1));
  if (planner.Check4[i] == 1) l += Link(planner.Text3[0], p < 6 ? "001" : ThreeDigits(p - 5));
  if (planner.Check2[i] == 1) l += Link(planner.Text3[2], ThreeDigits(p + 1));
  if (planner.Check3[i] == 1) l += Link(planner.Text3[1], ThreeDigits(p + 5));
  return l;
}

std::string OnOneLine(const std::string& text) {
  std::string line;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] == '\r' && at + 1 < text.size() && text[at + 1] == '\n') {
      line += "<p>";
      ++at;
    } else {
      line += text[at];
    }
  }
  return line;
}

}  // namespace

LiteralPlanner ControlsOf(const Plan& plan) {
  LiteralPlanner planner;
  planner.Text2 = plan.TopLeft;
  planner.Text3 = {plan.North, plan.South, plan.East, plan.West};
  for (std::size_t i = 0; i < 25; ++i) {
    const PlanCell& cell = plan.Cells.at(i);
    planner.Text1[i] = cell.Text;
    planner.Check1[i] = cell.West;
    planner.Check2[i] = cell.East;
    planner.Check3[i] = cell.South;
    planner.Check4[i] = cell.North;
  }
  return planner;
}

bool LiteralInsertRefused(const LiteralPlanner& planner, double number,
                          std::array<std::string, 1001>& pages) {
  const int top = Rounded(number);
  if (top < 1 || top > 950) return true;
  for (const std::string& text : planner.Text3) {
    if (Trimmed(text).empty()) return true;
  }
  for (std::size_t i = 0; i < 25; ++i) {
    const int p = top + static_cast<int>(i);
    std::string& page = pages.at(static_cast<std::size_t>(p));
    page = "";
    const std::string t = Trimmed(planner.Text1[i]);
    if (t.empty()) continue;
    std::string note;
    for (std::size_t at = 0; at < t.size() && at < 50; ++at) note += t[at];
    page = "<text>" + t + "</text>" + "<note>" + note + "</note>";
    const std::string l = LinksOf(planner, i, p);
    if (!l.empty()) page += "<link>" + l + "</link>";
  }
  return false;
}

std::string LiteralPlanFile(const LiteralPlanner& planner) {
  std::string file = planner.Text2 + "\r\n";
  for (const std::string& text : planner.Text3) file += text + "\r\n";
  for (std::size_t i = 0; i < 25; ++i) {
    file += OnOneLine(planner.Text1[i]) + "\r\n";
    for (const auto* check : {&planner.Check1, &planner.Check2, &planner.Check3, &planner.Check4}) {
      file += " " + std::to_string((*check)[i]) + " \r\n";
    }
  }
  return file;
}

}  // namespace tavrel::test
