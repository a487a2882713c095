#pragma once

#include <memory>

#include "ui/controls/dialog.h"

namespace Ui {
class NewDoc;
}

namespace tavrel {

/// Creates a document: its name and template pages. The document in memory is gone once the dialog is up.
class NewDoc : public Dialog {
  Q_OBJECT

 public:
  NewDoc(App& app, QWidget* parent);
  ~NewDoc() override;

 public slots:
  void Form_Load();
  void Command1_Click();
  void Command2_Click();
  void Text1_KeyPress();

 private:
  std::unique_ptr<Ui::NewDoc> ui_;
};

}  // namespace tavrel
