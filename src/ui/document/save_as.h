#pragma once

#include <memory>

#include "ui/controls/dialog.h"

namespace Ui {
class SaveAs;
}

namespace tavrel {

/// Stores the document in memory under another name.
class SaveAs : public Dialog {
  Q_OBJECT

 public:
  SaveAs(App& app, QWidget* parent);
  ~SaveAs() override;

 public slots:
  void Form_Load();
  void Command1_Click();
  void Command2_Click();

 private:
  std::unique_ptr<Ui::SaveAs> ui_;
};

}  // namespace tavrel
