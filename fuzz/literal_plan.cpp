#include "literal_plan.h"

#include <cmath>
#include <cstdlib>

#include "core/text/run_time_error.h"

namespace tavrel::fuzz {
namespace {

/// Whether the text is a number: sign, digits with or without a point among them, exponent.
bool IsNumber(const std::string& text) {
  std::size_t at = 0;
  const auto is_at = [&](char a, char b) { return at < text.size() && (text[at] == a || text[at] == b); };
  const auto skip_digits = [&] {
    const std::size_t start = at;
    while (at < text.size() && text[at] >= '0' && text[at] <= '9') ++at;
    return at - start;
  };
  if (is_at('+', '-')) ++at;
  std::size_t digits = skip_digits();
  if (is_at('.', '.')) {
    ++at;
    digits += skip_digits();
  }
  if (digits == 0) return false;
  if (is_at('e', 'E')) {
    ++at;
    if (is_at('+', '-')) ++at;
    if (skip_digits() == 0) return false;
  }
  return at == text.size();
}

std::string TickOf(std::string field) {
  while (!field.empty() && field.front() == ' ') field.erase(0, 1);
  while (!field.empty() && field.back() == ' ') field.pop_back();
  if (!IsNumber(field)) throw RunTimeError("no number");
  const double value = std::nearbyint(std::strtod(field.c_str(), nullptr));
  if (value == 0) return "0";
  if (value == 1) return "1";
  if (value == 2) return "2";
  throw RunTimeError("no tick");
}

/// A file that is read from its start, a character at a time.
class File {
 public:
  explicit File(const std::string& bytes) : bytes_(bytes) {}

  /// What is left of the line.
  std::string Line() { return Take("\n"); }

  std::string Field() {
    std::string field;
    const bool is_quoted = IsQuoteAhead();
    if (is_quoted) {
      for (++at_; bytes_[at_] != '"'; ++at_) field += bytes_[at_];
    }
    const std::string unquoted = Take("\n,");
    return is_quoted ? field : unquoted;
  }

 private:
  /// Whether a quote opens here and another one closes it before the line ends.
  bool IsQuoteAhead() const {
    if (at_ == bytes_.size() || bytes_[at_] != '"') return false;
    for (std::size_t at = at_ + 1; at < bytes_.size() && bytes_[at] != '\n'; ++at) {
      if (bytes_[at] == '"') return true;
    }
    return false;
  }

  /// Takes what comes before the first of these characters, and that one too. A line feed takes the carriage
  /// return before it along.
  std::string Take(const std::string& ends) {
    if (at_ == bytes_.size()) throw RunTimeError("past the end");
    std::string taken;
    while (at_ < bytes_.size()) {
      const char character = bytes_[at_++];
      if (character == '\n' && !taken.empty() && taken.back() == '\r') taken.pop_back();
      if (ends.find(character) != std::string::npos) break;
      taken += character;
    }
    return taken;
  }

  const std::string& bytes_;
  std::size_t at_ = 0;
};

std::string TextOf(const std::string& line) {
  std::string text;
  for (std::size_t at = 0; at < line.size(); ++at) {
    if (line.compare(at, 3, "<p>") == 0) {
      text += "\r\n";
      at += 2;
    } else {
      text += line[at];
    }
  }
  return text;
}

}  // namespace

std::vector<std::string> ValuesOf(const Plan& plan) {
  std::vector<std::string> values = {plan.TopLeft, plan.North, plan.South, plan.East, plan.West};
  for (const PlanCell& cell : plan.Cells) {
    values.push_back(cell.Text);
    for (const Tick tick : {cell.West, cell.East, cell.South, cell.North})
      values.push_back(std::to_string(tick));
  }
  return values;
}

std::vector<std::string> LiteralReadPlan(const std::string& bytes) {
  File file(bytes);
  std::vector<std::string> values;
  for (int line = 1; line <= 5; ++line) values.push_back(file.Line());
  for (int cell = 0; cell < 25; ++cell) {
    values.push_back(TextOf(file.Line()));
    for (int tick = 1; tick <= 4; ++tick) values.push_back(TickOf(file.Field()));
  }
  return values;
}

std::vector<std::string> LiteralReadFields(std::string bytes, int count) {
  // Behind a last comma is an empty field, whether the line has its end or not.
  if (bytes.ends_with(',')) bytes += '\n';
  File file(bytes);
  std::vector<std::string> fields;
  for (; count > 0; --count) fields.push_back(file.Field());
  return fields;
}

}  // namespace tavrel::fuzz
