#pragma once

#include <QApplication>
#include <QCursor>
#include <QEvent>
#include <QListWidget>

#include <map>
#include <string>

#include "ui/ipod/publish_test.h"

namespace tavrel::test {

inline const std::string kImportQuestion =
    "Tavrel Writer|question|Importing a new document will erase the    \r\n"
    "current one in memory. Continue?    |OK/Cancel";

/// The message after an import, with the last page's number.
inline std::string ImportFinished(const std::string& last_page) {
  return "Please note...|exclamation| Last page is " + last_page +
         ". Not all pages have titles    \r\n and notes, so will not show up in the page    \r\n"
         " table until selected.\r\n|OK";
}

/// Imports folders of notes as a person does.
class ImportTest : public PublishTest {
 protected:
  using PublishTest::PublishTest;

  /// Chooses Tools > Import and plays `step` on the dialog.
  void PlayImport(const Robot::Step& step) {
    Player.Expect("Import", step);
    Choose("ToolsImport");
  }

  /// Imports a folder that lies in the program's folder.
  void ImportFolder(const QString& folder) {
    PlayImport([&](QWidget& dialog) {
      OpenFolder(dialog, folder);
      Click(dialog, "Command2");
      EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_TRUE(Program.Failures.empty());
  }

  /// Imports a folder "Notes" with these files and gives the bytes of the document's file.
  std::string Imported(const std::map<std::string, std::string>& notes) {
    for (const auto& [name, bytes] : notes) Folder.Write("Notes/" + name, bytes);
    ImportFolder("Notes");
    return Folder.Read("Notes.dat");
  }
};

inline QStringList Rows(const QWidget& dialog, const QString& list_name) {
  const auto& list = Find<QListWidget>(dialog, list_name);
  QStringList rows;
  for (int row = 0; row < list.count(); ++row) rows << list.item(row)->text();
  return rows;
}

/// Notes how a progress line is shown.
class ProgressWatcher : public QObject {
 public:
  explicit ProgressWatcher(QWidget& line) { line.installEventFilter(this); }

  int TimesShown = 0;
  bool AlwaysWithHourglass = true;

  bool eventFilter(QObject* line, QEvent* event) override {
    if (event->type() == QEvent::Show) {
      const QCursor* cursor = QApplication::overrideCursor();
      AlwaysWithHourglass &= cursor != nullptr && cursor->shape() == Qt::WaitCursor;
      ++TimesShown;
    }
    return QObject::eventFilter(line, event);
  }
};

}  // namespace tavrel::test
