#pragma once

#include <memory>

#include "ui/controls/dialog.h"

namespace Ui {
class Skins;
}

namespace tavrel {

/// Customise: switches the background pictures on or off.
class Skins : public Dialog {
  Q_OBJECT

 public:
  Skins(App& app, QWidget* parent);
  ~Skins() override;

 public slots:
  void Form_Load();
  void Command1_Click();

 private:
  std::unique_ptr<Ui::Skins> ui_;
};

}  // namespace tavrel
