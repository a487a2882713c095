#include "ui/ipod/music_commands.h"

#include "ui/ipod/music_editor.h"
#include "ui/main/editor.h"

namespace tavrel {

MusicCommands::MusicCommands(App& app, Editor& editor, QWidget* window)
    : app_(app), editor_(editor), window_(window) {}

void MusicCommands::EditMusic_Click() {
  app_.Steps.Name(tr("Music links").toStdString());
  editor_.SavePage();
  MusicEditor(app_, window_).exec();
  editor_.RefreshMusicLinks();
}

void MusicCommands::Command4_Click() {
  editor_.SavePage();
  EditMusic_Click();
}

}  // namespace tavrel
