#include "ui/ipod/publish_test.h"

#include <QComboBox>
#include <QListWidget>
#include <QTest>

#include <array>
#include <cstdio>

namespace tavrel::test {

void PublishTest::PlayPublish(const Robot::Step& step) {
  Player.Expect("Publish", step);
  Choose("ToolsPublish");
}

void PublishTest::Publish(const QStringList& clicks) {
  const std::size_t shown = Messages.Shown.size();
  PlayPublish([&](QWidget& dialog) {
    for (const QString& control : clicks) Click(dialog, control);
    Click(dialog, "Command2");
    EXPECT_FALSE(dialog.isVisible());
  });
  ASSERT_EQ(Messages.Shown.size(), shown + 1);
  EXPECT_EQ(Seen(Messages.Shown).back(), kFinished);
  Messages.Shown.pop_back();
}

void PublishTest::PublishPlain(const std::string& page_lines) {
  OpenDocument("Doc.dat", "\r\n" + page_lines);
  Publish({"Check2"});
}

std::map<std::string, std::string> PublishTest::FilesIn(const std::string& folder) const {
  std::map<std::string, std::string> files;
  for (const auto& [name, bytes] : Folder.Files()) {
    if (name.starts_with(folder + "/")) files[name.substr(folder.size() + 1)] = bytes;
  }
  return files;
}

std::string PublishTest::Note(int page) const {
  std::array<char, 16> name{};
  std::snprintf(name.data(), name.size(), "z%03d.txt", page);
  return Folder.Read(std::filesystem::path("Doc") / name.data());
}

QString FolderRow(const QListWidget& folders, const QString& name) {
  for (int row = 0; row < folders.count(); ++row) {
    if (folders.item(row)->text().trimmed() == name) return folders.item(row)->text();
  }
  throw std::runtime_error("no folder '" + name.toStdString() + "' in the list");
}

void OpenFolder(QWidget& dialog, const QString& name) {
  auto& folders = Find<QListWidget>(dialog, "Dir1");
  DoubleClickListRow(folders, FolderRow(folders, name));
}

void ChooseDrive(QWidget& dialog, const QString& drive) {
  auto& drives = Find<QComboBox>(dialog, "Drive1");
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
