#pragma once

#include <memory>

#include "ui/controls/dialog.h"

namespace Ui {
class OpenDoc;
}

namespace tavrel {

/// Chooses the document to open. Only `DocPath` is set; the file is read afterwards.
class OpenDoc : public Dialog {
  Q_OBJECT

 public:
  OpenDoc(App& app, QWidget* parent);
  ~OpenDoc() override;

 public slots:
  void Form_Load();
  void Command1_Click();
  void Command2_Click();
  void List1_DblClick();

 private:
  std::unique_ptr<Ui::OpenDoc> ui_;
};

}  // namespace tavrel
