#include "ui/shell/help_menu.h"

#include "core/shell/messages.h"
#include "core/shell/program_folder.h"
#include "core/shell/program_info.h"
#include "ui/controls/message_box.h"
#include "ui/shell/about.h"
#include "ui/shell/skin_pictures.h"
#include "ui/shell/skins.h"
#include "ui/shell/web_pages.h"

namespace tavrel {

HelpMenu::HelpMenu(App& app, SkinPictures& skins, QWidget* window)
    : app_(app), skins_(skins), window_(window) {}

void HelpMenu::HelpHelp_Click() {
  ReturnToProgramFolder(app_.State);
  OpenWebPage(app_, window_, kHelpPage);
}

void HelpMenu::HelpWebSite_Click() {
  OpenWebPage(app_, window_, kHomePage);
}

void HelpMenu::HelpIpodSite_Click() {
  OpenWebPage(app_, window_, kIpodSite);
}

void HelpMenu::HelpiTunesSite_Click() {
  OpenWebPage(app_, window_, kItunesSite);
}

void HelpMenu::HelpEmail_Click() {
  const bool opened = app_.System.OpenMail(std::string("mailto:") + kSupportAddress);
  if (!opened) app_.Messages.Show(window_, messages::CannotOpen(kSupportAddress));
}

void HelpMenu::HelpAbout_Click() {
  About(app_, window_).exec();
}

void HelpMenu::HelpCustomise_Click() {
  Skins(app_, window_).exec();
  ReturnToProgramFolder(app_.State);
  skins_.ApplySetting();
}

}  // namespace tavrel
