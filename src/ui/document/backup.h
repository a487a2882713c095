#pragma once

#include <memory>

#include "ui/controls/dialog.h"

namespace Ui {
class Backup;
}

namespace tavrel {

/// Copies document files to their backups and back. Nothing here touches the document in the editor.
class Backup : public Dialog {
  Q_OBJECT

 public:
  Backup(App& app, QWidget* parent);
  ~Backup() override;

  /// Lists the document files and the backups anew.
  void ReadDir();

 public slots:
  void Form_Load();
  /// Backs up the selected document.
  void Command1_Click();
  /// Restores the selected backup.
  void Command2_Click();
  /// "Close".
  void Command3_Click();
  /// "Back up all".
  void Command4_Click();
  /// "Restore all".
  void Command5_Click();

 private:
  std::unique_ptr<Ui::Backup> ui_;
};

}  // namespace tavrel
