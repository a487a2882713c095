#pragma once

#include <QObject>

#include "ui/app.h"

namespace tavrel {

class Editor;

/// The commands of Edit > Page. None of them asks.
class PageCommands : public QObject {
  Q_OBJECT

 public:
  PageCommands(App& app, Editor& editor);

 public slots:
  /// "Cut".
  void EditDelete_Click();
  void EditCopyPage_Click();
  /// What was typed on the page since it was shown is dropped.
  void EditPastePage_Click();
  void EditPageUp_Click();
  void EditPageDown_Click();
  void EditInsert_Click();
  /// "Delete": a deleted page goes to the clipboard as a cut one does.
  void EditPageDeleteIt_Click();
  /// What was typed on the page goes too.
  void EditClear_Click();

 private:
  void TakePageOut();
  void NameStep(const QString& command);
  void ShowChange();

  App& app_;
  Editor& editor_;
};

}  // namespace tavrel
