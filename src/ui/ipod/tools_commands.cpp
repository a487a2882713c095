#include "ui/ipod/tools_commands.h"

#include "core/shell/messages.h"
#include "ui/controls/message_box.h"
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

}  // namespace tavrel
