#pragma once

#include <QCoreApplication>

#include <array>
#include <string_view>

#include "core/document/page_record.h"
#include "ui/app.h"

namespace Ui {
class Main;
}

namespace tavrel {

/// Columns of the links' grid.
inline constexpr int kTextColumn = 0;
inline constexpr int kTargetColumn = 1;

/// The two grids of the main window: the links of the page and the pages of the document.
class PageGrids {
  Q_DECLARE_TR_FUNCTIONS(PageGrids)

 public:
  PageGrids(App& app, Ui::Main& ui);

  void ClearLinks();
  void ShowLinks(const PageFields& fields);
  void SelectLink(int row);
  Link LinkAt(int row) const;
  std::array<Link, kLastLink> Links() const;
  /// The row of a link of the record that storing makes, which has no links without targets.
  int RowOf(int link) const;
  /// Writes a link into the current link's row and selects it.
  void StoreLink(const Link& link);

  void ClearPages();
  /// Clears the grid and lists the existing pages.
  void FillPages();
  /// Rewrites titles and notes of all rows.
  void RefreshPages();
  /// Selects a page's row and brings it into view.
  void SelectPage(int page);
  /// Writes title and note into the current page's row and selects it.
  void StorePage(std::string_view title, std::string_view note);

 private:
  void SetPageCells(int page, std::string_view title, std::string_view note);
  void RefreshPage(int page);

  App& app_;
  Ui::Main& ui_;
};

}  // namespace tavrel
