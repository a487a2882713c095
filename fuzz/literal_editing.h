#pragma once

#include <functional>
#include <optional>
#include <string>

#include "core/document/global.h"

/// The rules of editing written down step by step, for comparison with the code that the program runs.
namespace tavrel::fuzz {

/// The new number of a link to page `number`; nothing if it stays.
using LiteralRule = std::function<std::optional<int>(int number)>;

/// Asks the rule for every link of a record up to the first without a target, and writes each new number
/// before it looks at the next link.
void LiteralRenumber(std::string& record, const LiteralRule& rule);

LiteralRule AfterInsertAt(int page);
LiteralRule AfterCutAt(int page);
LiteralRule AfterSwapOf(int page, int other);

/// The commands on a page before 999.
void LiteralInsert(Global& global, int page);
void LiteralCut(Global& global, int page);

/// The text in small letters of Windows-1252.
std::string LiteralSmall(std::string text);

/// Moves the rest of the text for each match. Gives up, with nothing, once it is longer than 40,000
/// characters or after 100 matches.
std::optional<std::string> LiteralReplace(std::string text, std::string wanted,
                                          const std::string& replacement, bool match_case);

}  // namespace tavrel::fuzz
