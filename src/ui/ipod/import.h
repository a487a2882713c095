#pragma once

#include <memory>

#include "ui/controls/dialog.h"
#include "ui/ipod/folder_side.h"

namespace Ui {
class Import;
}

namespace tavrel {

/// Makes a new document out of a folder of notes.
class Import : public Dialog {
  Q_OBJECT

 public:
  Import(App& app, QWidget* parent);
  ~Import() override;

 public slots:
  void Form_Load();
  void Command1_Click();
  void Command2_Click();
  void Drive1_Change();
  void Dir1_Change();

 private:
  std::unique_ptr<Ui::Import> ui_;
  std::unique_ptr<FolderSide> side_;
};

}  // namespace tavrel
