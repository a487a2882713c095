#include "ui/shell/help_menu.h"

#include "ui/shell/skin_pictures.h"
#include "ui/shell/skins.h"

namespace tavrel {

HelpMenu::HelpMenu(App& app, SkinPictures& skins, QWidget* window)
    : app_(app), skins_(skins), window_(window) {}

void HelpMenu::HelpCustomise_Click() {
  Skins(app_, window_).exec();
  skins_.ApplySetting();
}

}  // namespace tavrel
