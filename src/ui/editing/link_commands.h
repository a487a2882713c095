#pragma once

#include <QObject>

#include "ui/app.h"

namespace tavrel {

class Editor;
class Grid;

/// The commands of Edit > Link. They act on the selected row of the links grid, whatever row the entry fields
/// hold, and leave it selected.
class LinkCommands : public QObject {
  Q_OBJECT

 public:
  LinkCommands(App& app, Editor& editor, Grid& links);

 public slots:
  void EditLinkUp_Click();
  void EditLinkDown_Click();
  void EditLinkDelete_Click();

 private:
  void NameStep(const QString& command);
  void SwapRows(int row, int other);
  void StoreAndShow(int row);

  App& app_;
  Editor& editor_;
  Grid& links_;
};

}  // namespace tavrel
