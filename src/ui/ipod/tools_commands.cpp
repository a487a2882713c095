#include "ui/ipod/tools_commands.h"

#include "core/shell/messages.h"
#include "ui/controls/message_box.h"
#include "ui/document/save_document.h"
#include "ui/ipod/import.h"
#include "ui/ipod/manage.h"
#include "ui/ipod/publish.h"
#include "ui/main/editor.h"

namespace tavrel {

ToolsCommands::ToolsCommands(App& app, Editor& editor, QWidget* window)
    : app_(app), editor_(editor), window_(window) {}

void ToolsCommands::ToolsPublish_Click() {
  if (!app_.State.IsDocumentOpen()) {
    app_.Messages.Show(window_, messages::NothingToPublish());
    return;
  }
  editor_.SavePage();
  Publish(app_, window_).exec();
}

void ToolsCommands::ToolsManage_Click() {
  Manage(app_, window_).exec();
}

void ToolsCommands::ToolsImport_Click() {
  App& app = app_;
  if (app.State.IsDocumentOpen() && !app.Messages.Show(window_, messages::ImportErasesDocument())) return;
  app.State.DocPath.clear();
  editor_.ResetCaption();
  Import(app, window_).exec();
  if (!app.State.IsDocumentOpen()) {
    editor_.HideControls();
    return;
  }
  SaveDoc(app);
  editor_.LoadDoc();
  editor_.ShowControls();
  editor_.ShowDocumentName();
  app.Messages.Show(window_, messages::ImportFinished(LastPage(app.State)));
}

}  // namespace tavrel
