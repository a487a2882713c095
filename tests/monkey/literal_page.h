#pragma once

#include <array>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "core/document/page_record.h"

/// The rules for pages, music links, plans and imported notes, written down step by step: what the program's
/// own code has to agree with.
namespace tavrel::test {

PageFields LiteralReadPage(const std::string& record);
std::string LiteralBuildPage(const PageFields& fields);

/// The seven fields of a music link.
std::array<std::string, 7> LiteralReadMusic(const std::string& record);
std::string LiteralBuildMusic(const std::array<std::string, 7>& fields);

/// The number that a text consists of; 0 if it is anything else.
int LiteralDecimal(const std::string& text);

/// A typed document's or plan's name as it is kept.
std::string LiteralCleanName(const std::string& typed);

/// The pages that a new document gets.
std::vector<std::string> LiteralDefaultPages(bool title, bool contents, bool about);

/// The number of the plan's first page.
double LiteralPlanTop(const std::map<std::string, std::string>& planner);
/// The pages of a plan, if it can be inserted, by what the planner's controls hold.
std::optional<std::vector<std::string>> LiteralPlanPages(const std::map<std::string, std::string>& planner);

/// What importing gives: pages from 1 on and music links from 1 on. Nothing if a note is none.
struct Imported {
  std::vector<std::string> Pages;
  std::vector<std::string> Music;
};
std::optional<Imported> LiteralImport(const std::vector<std::string>& names,
                                      const std::vector<std::string>& notes);

}  // namespace tavrel::test
