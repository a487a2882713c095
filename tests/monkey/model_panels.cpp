#include <algorithm>
#include <vector>

#include "core/editing/literal_tags.h"
#include "monkey/literal_page.h"
#include "monkey/model.h"
#include "monkey/texts.h"

// Where the panels of the View menu lead.

namespace tavrel::test {
namespace {

/// The links of a record, from the first on, as storing writes them.
std::vector<std::string> LinksOf(const std::string& record) {
  std::vector<std::string> links;
  const std::string list = LiteralGetTag(record, "<link>", 1);
  for (int link = 1; link <= kLastLink; ++link) {
    const std::string target = Trimmed(LiteralGetTag(list, "<linkto>", link));
    links.push_back(Trimmed(LiteralGetTag(list, "<linktext>", link)) + "|" +
                    (target.empty() ? "" : NormaliseTarget(target)));
  }
  while (!links.empty() && links.back() == "|") links.pop_back();
  return links;
}

/// Where a link is now that was at a place before. Those in front of what has changed stay, those behind it
/// move together; one in between is the same link as before that comes as often.
int LinkNow(std::vector<std::string> before, std::vector<std::string> now, int link) {
  if (link > static_cast<int>(before.size())) return link;
  int start = 0;
  while (!before.empty() && !now.empty() && before.front() == now.front()) {
    if (++start == link) return link;
    before.erase(before.begin());
    now.erase(now.begin());
  }
  while (!before.empty() && !now.empty() && before.back() == now.back()) {
    if (start + static_cast<int>(before.size()) == link) return start + static_cast<int>(now.size());
    before.pop_back();
    now.pop_back();
  }
  const auto at = before.begin() + (link - start - 1);
  auto left = std::count(before.begin(), at + 1, *at);
  for (std::size_t i = 0; i < now.size(); ++i) {
    if (now[i] == *at && --left == 0) return start + static_cast<int>(i) + 1;
  }
  return link;
}

}  // namespace

void Model::LeadTo(int page, std::string field, int link, const std::string& shown) {
  if (!IsShown || page < 1 || page > kLastPage) return;
  if (link > 0) link = LinkNow(LinksOf(shown), LinksOf(RecordInPanels(page)), link);
  if (link > kLastLink) {
    // The editor does not show such a link, only its page.
    field = "Text1";
    link = 0;
  }
  if (page == editor_.CurrentPage) {
    const int row = RowOfLink(link);
    if (row > 0 && row != current_link_) ClickLink(row);
    Focus = field;
    return;
  }
  UpdateGrid1();
  SavePage();
  const int row = std::max(link, 1);
  ShowAt({.Page = page, .Link = row, .Row = row, .Field = field});
}

/// A page's record as the panels see it: with what storing would make of the fields, if they were touched.
std::string Model::RecordInPanels(int page) const {
  const std::string& record = editor_.Pages.at(static_cast<std::size_t>(page));
  if (page != editor_.CurrentPage) return record;
  const std::string typed = LiteralBuildPage(editor_.Fields);
  return typed == untouched_ ? record : typed;
}

/// What is typed has to be stored before links are counted: rows without a target are left out.
int Model::RowOfLink(int link) const {
  const std::string record = LiteralBuildPage(editor_.Fields);
  const bool is_as_read =
      record == untouched_ && record != editor_.Pages.at(static_cast<std::size_t>(editor_.CurrentPage));
  int passed = 0;
  for (int row = 1; !is_as_read && row <= kLastLink; ++row) {
    const Link& shown = editor_.Fields.Links.at(static_cast<std::size_t>(row) - 1);
    if (!Trimmed(shown.Target).empty() && ++passed == link) return row;
  }
  return link;
}

void Model::GoAlong(int page) {
  if (!IsShown || page == editor_.CurrentPage) return;
  UpdateGrid1();
  SavePage();
  editor_.CurrentPage = page;
  LoadPage(page);
}

}  // namespace tavrel::test
