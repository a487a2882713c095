#include "ui/editing/link_commands.h"

#include "ui/controls/grid.h"
#include "ui/main/editor.h"
#include "ui/main/page_grids.h"

namespace tavrel {
LinkCommands::LinkCommands(App& app, Editor& editor, Grid& links)
    : app_(app), editor_(editor), links_(links) {}

void LinkCommands::EditLinkUp_Click() {
  const int row = links_.Row();
  if (row <= 1) return;
  NameStep(tr("Move link %1 up on page %2"));
  SwapRows(row, row - 1);
}

void LinkCommands::EditLinkDown_Click() {
  const int row = links_.Row();
  if (row < 1 || row >= kLastLink) return;
  NameStep(tr("Move link %1 down on page %2"));
  SwapRows(row, row + 1);
}

void LinkCommands::EditLinkDelete_Click() {
  const int row = links_.Row();
  if (row < 1) return;
  NameStep(tr("Delete link %1 of page %2"));
  for (const int column : {kTextColumn, kTargetColumn}) links_.SetTextMatrix(row, column, "");
  StoreAndShow(row);
}

void LinkCommands::NameStep(const QString& command) {
  app_.Steps.Name(command.arg(links_.Row()).arg(app_.State.CurrentPage).toStdString());
}

void LinkCommands::SwapRows(int row, int other) {
  for (const int column : {kTextColumn, kTargetColumn}) {
    const std::string text = links_.TextMatrix(row, column);
    links_.SetTextMatrix(row, column, links_.TextMatrix(other, column));
    links_.SetTextMatrix(other, column, text);
  }
  StoreAndShow(row);
}

void LinkCommands::StoreAndShow(int row) {
  editor_.SavePage();
  editor_.LoadPage(app_.State.CurrentPage);
  links_.SelectRow(row);
  links_.ShowRow(row);
}

}  // namespace tavrel
