#pragma once

#include <memory>

#include "ui/controls/dialog.h"

namespace Ui {
class DeleteDoc;
}

namespace tavrel {

/// Deletes a document's file and its backup, without a question.
class DeleteDoc : public Dialog {
  Q_OBJECT

 public:
  DeleteDoc(App& app, QWidget* parent);
  ~DeleteDoc() override;

 public slots:
  void Form_Load();
  void Command1_Click();
  void Command2_Click();
  void List1_DblClick();

 private:
  std::unique_ptr<Ui::DeleteDoc> ui_;
};

}  // namespace tavrel
