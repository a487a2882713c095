#pragma once

#include <memory>

#include "ui/controls/dialog.h"

namespace Ui {
class About;
}

namespace tavrel {

/// Tells the program's version.
class About : public Dialog {
  Q_OBJECT

 public:
  About(App& app, QWidget* parent);
  ~About() override;

  /// Starts the system information tool, or tells that there is none.
  void StartSysInfo();

 public slots:
  void Form_Load();
  void cmdOK_Click();
  void cmdSysInfo_Click();
  void Label3_Click();

 private:
  std::unique_ptr<Ui::About> ui_;
};

}  // namespace tavrel
