#pragma once

#include <filesystem>
#include <memory>

#include "ui/controls/dialog.h"
#include "ui/ipod/folder_side.h"

class QListWidget;

namespace Ui {
class Manage;
}

namespace tavrel {

/// Carries published projects to the iPod and back, and deletes them on either side. The local side is the
/// computer's, the remote side the iPod's.
class Manage : public Dialog {
  Q_OBJECT

 public:
  Manage(App& app, QWidget* parent);
  ~Manage() override;

 public slots:
  void Form_Load();
  /// Copies from the remote to the local side.
  void Command1_Click();
  /// Copies from the local to the remote side.
  void Command2_Click();
  /// "Close".
  void Command4_Click();
  /// "Delete" on the local side.
  void Command5_Click();
  /// "Delete" on the remote side.
  void Command6_Click();
  void Drive1_Change();
  void Drive2_Change();
  void Dir1_Change();
  void Dir2_Change();

 private:
  /// A side of the manager with its list of projects.
  struct Side {
    FolderSide Browser;
    QListWidget& Projects;
  };

  void ConnectControls();
  void FindPod();
  void RefreshFolders();
  void Refresh(Side& side);
  void ShowRemote(const QString& caption, const QString& spoken_name, QWidget& tab);
  void Copy(const Side& from, const Side& to);
  bool IsWritable(const std::filesystem::path& folder);
  void Delete(const Side& side);

  std::unique_ptr<Ui::Manage> ui_;
  std::unique_ptr<Side> local_;
  std::unique_ptr<Side> remote_;
};

}  // namespace tavrel
