#include "ui/editing/page_commands.h"

#include "core/editing/page_commands.h"
#include "ui/main/editor.h"

namespace tavrel {

PageCommands::PageCommands(App& app, Editor& editor) : app_(app), editor_(editor) {}

void PageCommands::EditDelete_Click() {
  editor_.SavePage();
  CutPage(app_.State);
  ShowChange();
}

void PageCommands::EditCopyPage_Click() {
  editor_.SavePage();
  CopyPage(app_.State);
}

void PageCommands::EditPastePage_Click() {
  PastePage(app_.State);
  ShowChange();
}

void PageCommands::EditPageUp_Click() {
  if (app_.State.CurrentPage == 1) return;
  editor_.SavePage();
  MovePageUp(app_.State);
  ShowChange();
}

void PageCommands::EditPageDown_Click() {
  if (app_.State.CurrentPage == kLastPage) return;
  editor_.SavePage();
  MovePageDown(app_.State);
  ShowChange();
}

void PageCommands::EditInsert_Click() {
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
  EditDelete_Click();
}

void PageCommands::EditClear_Click() {
  ClearPage(app_.State);
  ShowChange();
}

void PageCommands::ShowChange() {
  editor_.RefreshGrid2();
  editor_.LoadPage(app_.State.CurrentPage);
}

}  // namespace tavrel
