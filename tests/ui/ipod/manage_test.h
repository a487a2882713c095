#pragma once

#include <QAbstractItemView>
#include <QComboBox>
#include <QListWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include <stdexcept>
#include <string>

#include "ui/controls/file_list.h"
#include "ui/controls/folder_list.h"
#include "ui/ipod/import_test.h"

namespace tavrel::test {

/// Carries folders between the program's folder and pretended disks as a person does.
class ManageTest : public ImportTest {
 protected:
  using ImportTest::ImportTest;

  /// Chooses Tools > Manage and plays `step` on the dialog, which it then closes.
  void PlayManage(const Robot::Step& step) {
    Player.Expect("Manage", [&](QWidget& dialog) {
      ActivateWindow(dialog);
      step(dialog);
      if (dialog.isVisible()) Click(dialog, "Command4");
    });
    Choose("ToolsManage");
  }

  /// Adds an empty drive such as "E:" and gives its topmost folder.
  std::filesystem::path AddDrive(const std::string& name) {
    std::filesystem::path root = Disks.Path() / name.substr(0, 1);
    std::filesystem::create_directories(root);
    System.FakeVolumes.push_back({name, root});
    return root;
  }

  /// Adds a drive with a Notes folder at its root and gives that folder.
  std::filesystem::path AddPod(const std::string& name) {
    std::filesystem::path notes = AddDrive(name) / "Notes";
    std::filesystem::create_directories(notes);
    return notes;
  }

  /// Selects a folder of a list of projects and clicks a button.
  static void ClickFor(QWidget& dialog, const QString& list, const QString& folder, const QString& button) {
    ClickListRow(Find<QListWidget>(dialog, list), folder);
    Click(dialog, button);
  }

  static void ExpectSide(QWidget& dialog, int side, const QString& drive,
                         const std::filesystem::path& folder) {
    const QString number = QString::number(side);
    EXPECT_EQ(Find<QComboBox>(dialog, "Drive" + number).currentText(), drive);
    EXPECT_EQ(Find<FolderList>(dialog, "Dir" + number).Path(), folder);
    EXPECT_EQ(Find<FileList>(dialog, "File" + number).Path(), folder);
  }

  /// The program has not ended, and its pointer and current folder are as before.
  void ExpectQuiet() {
    EXPECT_TRUE(Program.Failures.empty());
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(std::filesystem::current_path(), Folder.Path());
  }

  TemporaryFolder Disks;
};

inline QString ShownTab(QWidget& dialog) {
  const auto& tabs = Find<QTabWidget>(dialog, "SSTab1");
  return tabs.tabText(tabs.currentIndex());
}

/// Clicks the tab with this caption.
inline void ShowTab(QWidget& dialog, const QString& caption) {
  const auto& tabs = Find<QTabWidget>(dialog, "SSTab1");
  for (int tab = 0; tab < tabs.count(); ++tab) {
    if (tabs.tabText(tab) == caption)
      QTest::mouseClick(tabs.tabBar(), Qt::LeftButton, {}, tabs.tabBar()->tabRect(tab).center());
  }
}

inline void OpenFolderIn(QWidget& dialog, const QString& list, const QString& name) {
  auto& folders = Find<QListWidget>(dialog, list);
  DoubleClickListRow(folders, FolderRow(folders, name));
}

/// Opens one of the lists of drives and chooses one, with the keyboard.
inline void ChooseDriveIn(QWidget& dialog, const QString& list, const QString& drive) {
  auto& drives = Find<QComboBox>(dialog, list);
  const int wanted = drives.findText(drive);
  if (wanted < 0) throw std::runtime_error("no drive '" + drive.toStdString() + "'");
  drives.setFocus();
  PressKey(drives, Qt::Key_F4);
  PressKey(*drives.view(), Qt::Key_Home);
  for (int row = 0; row < wanted; ++row) PressKey(*drives.view(), Qt::Key_Down);
  PressKey(*drives.view(), Qt::Key_Return);
  Settle();
}

}  // namespace tavrel::test
