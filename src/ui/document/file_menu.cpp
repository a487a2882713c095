#include "ui/document/file_menu.h"

#include "ui/controls/message_box.h"
#include "ui/controls/program_control.h"
#include "ui/document/backup.h"
#include "ui/document/delete_doc.h"
#include "ui/document/new_doc.h"
#include "ui/document/open_doc.h"
#include "ui/document/save_as.h"
#include "ui/document/save_document.h"
#include "ui/main/editor.h"

namespace tavrel {

FileMenu::FileMenu(App& app, Editor& editor, QWidget* window) : app_(app), editor_(editor), window_(window) {}

void FileMenu::FileNew_Click() {
  if (!MayGoOn(messages::NewErasesDocument())) return;
  editor_.ResetCaption();
  NewDoc(app_, window_).exec();
  ShowResult();
}

void FileMenu::FileOpen_Click() {
  if (!MayGoOn(messages::OpenErasesDocument())) return;
  app_.State.DocPath.clear();
  app_.Control.DocumentSettled();
  editor_.ResetCaption();
  OpenDoc(app_, window_).exec();
  ShowResult();
}

void FileMenu::FileSave_Click() {
  if (!app_.State.IsDocumentOpen()) {
    Show(messages::NothingToSave());
    return;
  }
  editor_.SavePage();
  SaveDoc(app_);
  Show(messages::ProjectSaved());
}

void FileMenu::FileSaveAs_Click() {
  if (!app_.State.IsDocumentOpen()) {
    Show(messages::NothingToSave());
    return;
  }
  // What was typed on the current page since it was last left stays out of the new file.
  SaveAs(app_, window_).exec();
  editor_.ShowDocumentName();
}

void FileMenu::FileClose_Click() {
  if (!app_.State.IsDocumentOpen()) {
    Show(messages::NothingToClose());
    return;
  }
  if (!Show(messages::CloseDoesNotSave())) return;
  editor_.HideControls();
  app_.State.DocPath.clear();
  ClearDocument(app_.State);
  app_.Control.DocumentSettled();
  editor_.ResetCaption();
}

void FileMenu::FileBackup_Click() {
  Backup(app_, window_).exec();
}

void FileMenu::FileRestore_Click() {
  Backup(app_, window_).exec();
}

void FileMenu::FileDelete_Click() {
  DeleteDoc(app_, window_).exec();
}

void FileMenu::FileExit_Click() {
  if (!MayGoOn(messages::ExitLosesChanges())) return;
  app_.Control.End();
}

bool FileMenu::Show(const Message& message) {
  return app_.Messages.Show(window_, message);
}

bool FileMenu::MayGoOn(const Message& question) {
  return !app_.State.IsDocumentOpen() || Show(question);
}

void FileMenu::ShowResult() {
  if (!app_.State.IsDocumentOpen()) {
    editor_.HideControls();
    return;
  }
  editor_.LoadDoc();
  editor_.ShowControls();
  editor_.ShowDocumentName();
}

}  // namespace tavrel
