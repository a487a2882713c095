#include <algorithm>

#include "monkey/literal_page.h"
#include "monkey/model.h"
#include "monkey/texts.h"

// Where the panels of the View menu lead.

namespace tavrel::test {

void Model::LeadTo(int page, std::string field, int link) {
  if (!IsShown || page < 1 || page > kLastPage) return;
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
