#include "ui/main/page_grids.h"

#include <QHeaderView>

#include "core/document/markup.h"
#include "core/text/file_names.h"
#include "core/text/numbers.h"
#include "ui_main_window.h"

namespace tavrel {
namespace {

constexpr int kPageColumn = 0;
constexpr int kTitleColumn = 1;
constexpr int kNoteColumn = 2;

// Colours are 0x00BBGGRR.
constexpr std::uint32_t kPaleYellow = 0xC0FFFF;
constexpr std::uint32_t kWhite = 0xFFFFFF;

}  // namespace

PageGrids::PageGrids(App& app, Ui::Main& ui) : app_(app), ui_(ui) {
  ui_.MSFlexGrid1->SetCodePage(app_.CodePageInUse());
  ui_.MSFlexGrid1->SetSize(kLastLink, 2);
  ui_.MSFlexGrid2->SetCodePage(app_.CodePageInUse());
  ui_.MSFlexGrid2->SetSize(kLastPage, 3);
  ui_.MSFlexGrid2->setMinimumWidth(5 * ui_.MSFlexGrid2->WidthOf("_PAGE_"));
  // Title and note share what the page numbers and the scroll bar leave, however wide the pane is.
  QHeaderView* heading = ui_.MSFlexGrid2->horizontalHeader();
  heading->setSectionResizeMode(kTitleColumn, QHeaderView::Stretch);
  heading->setSectionResizeMode(kNoteColumn, QHeaderView::Stretch);
}

void PageGrids::ClearLinks() {
  Grid& grid = *ui_.MSFlexGrid1;
  grid.Clear();
  grid.SetHeading(kTextColumn, tr("Link text"), Qt::AlignLeft);
  grid.SetHeading(kTargetColumn, tr("Link to"), Qt::AlignHCenter);
  const int text_width = grid.WidthOf("A HYPERLINK TO ANOTHER PAGE");
  const int target_width = grid.WidthOf("__LINK TO__");
  grid.setColumnWidth(kTextColumn, text_width);
  grid.setColumnWidth(kTargetColumn, target_width);
  const int scroll_bar = grid.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &grid);
  grid.setFixedWidth(text_width + target_width + scroll_bar + 2 * grid.frameWidth());
  ui_.Label3->setFixedWidth(text_width);
  ui_.Text5->setFixedWidth(text_width);
  ui_.Label12->setFixedWidth(target_width);
  ui_.Combo1->setFixedWidth(target_width + scroll_bar + 2 * grid.frameWidth());
}

void PageGrids::ShowLinks(const PageFields& fields) {
  ClearLinks();
  for (int row = 1; row <= kLastLink; ++row) {
    const Link& link = fields.Links[static_cast<std::size_t>(row) - 1];
    ui_.MSFlexGrid1->SetTextMatrix(row, kTextColumn, link.Text);
    ui_.MSFlexGrid1->SetTextMatrix(row, kTargetColumn, link.Target);
  }
}

void PageGrids::SelectLink(int row) {
  ui_.MSFlexGrid1->SelectRow(row);
  ui_.MSFlexGrid1->ShowRow(row);
}

Link PageGrids::LinkAt(int row) const {
  return {ui_.MSFlexGrid1->TextMatrix(row, kTextColumn), ui_.MSFlexGrid1->TextMatrix(row, kTargetColumn)};
}

std::array<Link, kLastLink> PageGrids::Links() const {
  std::array<Link, kLastLink> links;
  for (int row = 1; row <= kLastLink; ++row) links[static_cast<std::size_t>(row) - 1] = LinkAt(row);
  return links;
}

int PageGrids::RowOf(int link) const {
  int passed = 0;
  for (int row = 1; row <= kLastLink; ++row) {
    if (!TrimBlanks(LinkAt(row).Target).empty() && ++passed == link) return row;
  }
  return link;
}

void PageGrids::StoreLink(const Link& link) {
  const int row = app_.State.CurrentLink;
  ui_.MSFlexGrid1->SetTextMatrix(row, kTextColumn, link.Text);
  ui_.MSFlexGrid1->SetTextMatrix(row, kTargetColumn, link.Target);
  ui_.MSFlexGrid1->SelectRow(row);
}

void PageGrids::ClearPages() {
  Grid& grid = *ui_.MSFlexGrid2;
  grid.Clear();
  for (int page = 1; page <= kLastPage; ++page) {
    grid.SetTextMatrix(page, kPageColumn, FormatPage(page));
    grid.SetCellBackColor(page, kTitleColumn, kWhite);
    grid.SetCellBackColor(page, kNoteColumn, kWhite);
  }
  grid.SetHeading(kPageColumn, tr("Page"), Qt::AlignHCenter);
  grid.SetHeading(kTitleColumn, tr("Title"));
  grid.SetHeading(kNoteColumn, tr("Notes"));

  grid.setColumnWidth(kPageColumn, grid.WidthOf("_PAGE_"));
  grid.scrollToTop();
}

void PageGrids::FillPages() {
  ClearPages();
  RefreshPages();
}

void PageGrids::RefreshPages() {
  for (int page = 1; page <= kLastPage; ++page) RefreshPage(page);
}

void PageGrids::RefreshPage(int page) {
  const std::string& record = app_.State.Page(page);
  SetPageCells(page, TagContent(record, "<title>", 1), TagContent(record, "<note>", 1));
}

void PageGrids::SelectPage(int page) {
  ui_.MSFlexGrid2->SelectRow(page);
  ui_.MSFlexGrid2->ShowRow(page);
}

void PageGrids::StorePage(std::string_view title, std::string_view note) {
  SetPageCells(app_.State.CurrentPage, title, note);
  ui_.MSFlexGrid2->SelectRow(app_.State.CurrentPage);
}

void PageGrids::SetPageCells(int page, std::string_view title, std::string_view note) {
  const std::uint32_t colour = app_.State.Page(page).empty() ? kWhite : kPaleYellow;
  ui_.MSFlexGrid2->SetTextMatrix(page, kTitleColumn, title);
  ui_.MSFlexGrid2->SetTextMatrix(page, kNoteColumn, note);
  ui_.MSFlexGrid2->SetCellBackColor(page, kTitleColumn, colour);
  ui_.MSFlexGrid2->SetCellBackColor(page, kNoteColumn, colour);
}

}  // namespace tavrel
