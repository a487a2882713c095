#pragma once

#include <QObject>

#include "core/shell/messages.h"
#include "ui/app.h"

class QWidget;

namespace tavrel {

class Editor;

/// The commands of the File menu that concern documents.
class FileMenu : public QObject {
  Q_OBJECT

 public:
  FileMenu(App& app, Editor& editor, QWidget* window);

 public slots:
  void FileNew_Click();
  void FileOpen_Click();
  void FileSave_Click();
  void FileSaveAs_Click();
  void FileClose_Click();
  void FileBackup_Click();
  void FileRestore_Click();
  void FileDelete_Click();
  void FileExit_Click();

 private:
  bool Show(const Message& message);
  /// Asks only while a document is open.
  bool MayGoOn(const Message& question);
  void ShowResult();

  App& app_;
  Editor& editor_;
  QWidget* window_;
};

}  // namespace tavrel
