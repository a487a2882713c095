#include "ui/editing/block_commands.h"

#include <algorithm>

#include "ui/controls/hourglass.h"
#include "ui/editing/block_clear.h"
#include "ui/editing/block_copy.h"
#include "ui/editing/block_delete.h"
#include "ui/editing/block_insert.h"
#include "ui/editing/page_range_name.h"
#include "ui/main/editor.h"

namespace tavrel {

BlockCommands::BlockCommands(App& app, Editor& editor, QWidget* window)
    : app_(app), editor_(editor), window_(window) {}

BlockCommands::~BlockCommands() = default;

void BlockCommands::EditBlockCopy_Click() {
  editor_.SavePage();
  if (!block_copy_) block_copy_ = std::make_unique<BlockCopy>(app_, window_);
  block_copy_->exec();
  ShowChange();
}

void BlockCommands::EditBlockClear_Click() {
  editor_.SavePage();
  if (!block_clear_) block_clear_ = std::make_unique<BlockClear>(app_, window_);
  block_clear_->exec();
  ShowChange();
}

void BlockCommands::EditBlockDelete_Click() {
  BlockDelete dialog(app_, window_);
  dialog.Ask();
  if (dialog.IsCancelled()) return;
  const int start = dialog.Start();
  const int end = dialog.End();
  if (!CanDeletePages(start, end)) return;

  const Hourglass hourglass;
  OpenPage(start);
  const PageRange pages = RangeBetween(start, end);
  app_.State.CurrentPage = static_cast<std::int16_t>(pages.First);
  // If the end was typed first, this stores the page that was opened in a wrong place, which is deleted with
  // it.
  editor_.SavePage();
  app_.Steps.Name(tr("Delete %1").arg(NameOf(pages)).toStdString());
  DeletePages(app_.State, pages, app_.CodePageInUse());
  ShowChange();
}

void BlockCommands::EditBlockInsert_Click() {
  BlockInsert dialog(app_, window_);
  dialog.Ask();
  if (dialog.IsCancelled()) return;
  const int at = dialog.At();
  const int count = dialog.Count();
  if (!IsMovablePage(at) || !IsPage(count)) return;

  const Hourglass hourglass;
  OpenPage(at);
  editor_.SavePage();
  app_.Steps.Name(tr("Insert %1").arg(NameOf({at, std::min(at + count - 1, kLastPage)})).toStdString());
  InsertPages(app_.State, at, count);
  ShowChange();
}

void BlockCommands::OpenPage(int page) {
  editor_.SavePage();
  app_.State.CurrentPage = static_cast<std::int16_t>(page);
  editor_.LoadPage(page);
}

void BlockCommands::ShowChange() {
  editor_.RefreshGrid2();
  editor_.LoadPage(app_.State.CurrentPage);
}

}  // namespace tavrel
