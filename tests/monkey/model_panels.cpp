#include <algorithm>
#include <vector>

#include "core/editing/literal_tags.h"
#include "monkey/literal_page.h"
#include "monkey/model.h"
#include "monkey/texts.h"

// Where the panels of the View menu lead.

namespace tavrel::test {
namespace {

/// What the links of a record hold in a field, from the first on.
std::vector<std::string> LinkFields(const std::string& record, const std::string& field) {
  std::vector<std::string> contents;
  const std::string links = LiteralGetTag(record, "<link>", 1);
  for (int link = 1; link <= kLastLink; ++link)
    contents.push_back(LiteralGetTag(links, field == "Text5" ? "<linktext>" : "<linkto>", link));
  return contents;
}

/// Where a link is now that was at a place before: the first with the same words if it has others there.
int LinkNow(const std::vector<std::string>& before, const std::vector<std::string>& now, int link) {
  if (link > kLastLink) return link;
  const auto at = static_cast<std::size_t>(link) - 1;
  if (before[at].empty() || now[at] == before[at]) return link;
  const auto found = std::find(now.begin(), now.end(), before[at]);
  return found == now.end() ? link : static_cast<int>(found - now.begin()) + 1;
}

}  // namespace

void Model::LeadTo(int page, std::string field, int link, const std::string& shown) {
  if (!IsShown || page < 1 || page > kLastPage) return;
  if (link > 0) link = LinkNow(LinkFields(shown, field), LinkFields(RecordInPanels(page), field), link);
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
