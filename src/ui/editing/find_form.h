#pragma once

#include <memory>

#include "ui/editing/search_dialog.h"

namespace Ui {
class FindForm;
}

namespace tavrel {

/// Asks what to find.
class FindForm : public SearchDialog {
  Q_OBJECT

 public:
  FindForm(App& app, QWidget* parent);
  ~FindForm() override;

 private:
  std::unique_ptr<Ui::FindForm> ui_;
};

}  // namespace tavrel
