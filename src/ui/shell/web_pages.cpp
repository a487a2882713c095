#include "ui/shell/web_pages.h"

#include "core/shell/messages.h"
#include "ui/controls/message_box.h"

namespace tavrel {

void OpenWebPage(App& app, QWidget* parent, const std::string& target) {
  if (!app.System.OpenInBrowser(target)) app.Messages.Show(parent, messages::CannotOpen(target));
}

}  // namespace tavrel
