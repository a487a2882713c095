#include "ui/editing/page_commands.h"

#include "core/editing/page_commands.h"
#include "ui/main/editor.h"

namespace tavrel {

PageCommands::PageCommands(App& app, Editor& editor) : app_(app), editor_(editor) {}

void PageCommands::EditDelete_Click() {
  NameStep(tr("Cut page %1"));
  TakePageOut();
}

void PageCommands::EditCopyPage_Click() {
  editor_.SavePage();
  CopyPage(app_.State);
}

void PageCommands::EditPastePage_Click() {
  NameStep(tr("Paste page %1"));
  PastePage(app_.State);
  ShowChange();
}

void PageCommands::EditPageUp_Click() {
  if (app_.State.CurrentPage == 1) return;
  NameStep(tr("Move page %1 up"));
  editor_.SavePage();
  MovePageUp(app_.State);
  ShowChange();
}

void PageCommands::EditPageDown_Click() {
  if (app_.State.CurrentPage == kLastPage) return;
  NameStep(tr("Move page %1 down"));
  editor_.SavePage();
  MovePageDown(app_.State);
  ShowChange();
}

void PageCommands::EditInsert_Click() {
  NameStep(tr("Insert page %1"));
  editor_.SavePage();
  InsertPage(app_.State);
  if (app_.State.CurrentPage == kLastPage) {
    // The pages grid goes on showing the title of the page that was there.
    editor_.LoadPage(kLastPage);
  } else {
    ShowChange();
  }
}

void PageCommands::EditPageDeleteIt_Click() {
  NameStep(tr("Delete page %1"));
  TakePageOut();
}

void PageCommands::EditClear_Click() {
  NameStep(tr("Clear page %1"));
  ClearPage(app_.State);
  ShowChange();
}

void PageCommands::TakePageOut() {
  editor_.SavePage();
  CutPage(app_.State);
  ShowChange();
}

void PageCommands::NameStep(const QString& command) {
  app_.Steps.Name(command.arg(app_.State.CurrentPage).toStdString());
}

void PageCommands::ShowChange() {
  editor_.RefreshGrid2();
  editor_.LoadPage(app_.State.CurrentPage);
}

}  // namespace tavrel
