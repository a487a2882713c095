#pragma once

#include <string>

/// The rules for tags and numbers written down step by step, with positions counted from 1: what the
/// program's faster code has to agree with.
namespace tavrel::test {

/// Position of `part` in `text`, searching from position `from`; 0 if absent.
int LiteralPosition(int from, const std::string& text, const std::string& part);

/// `count` characters of a text from a position on, or as many as there are.
std::string LiteralCharacters(const std::string& text, int position, int count);

std::string LiteralClosing(const std::string& tag);

/// Position of a tag's occurrence (from 1 on); 0 if there are fewer.
int LiteralOpening(const std::string& text, const std::string& tag, int occurrence);

std::string LiteralGetTag(const std::string& text, const std::string& tag, int occurrence);
void LiteralSetTag(std::string& text, const std::string& value, const std::string& tag, int occurrence);

/// The leading digits as a 16-bit number.
int LiteralNumber(const std::string& text);

/// At least three digits.
std::string LiteralFormat(int number);

}  // namespace tavrel::test
