#include "ui/shell/help_menu.h"

#include "core/shell/program_folder.h"
#include "ui/shell/skin_pictures.h"
#include "ui/shell/skins.h"

namespace tavrel {

HelpMenu::HelpMenu(App& app, SkinPictures& skins, QWidget* window)
    : app_(app), skins_(skins), window_(window) {}

void HelpMenu::HelpCustomise_Click() {
  Skins(app_, window_).exec();
  ReturnToProgramFolder(app_.State);
  skins_.ApplySetting();
}

}  // namespace tavrel
