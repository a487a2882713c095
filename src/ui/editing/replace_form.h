#pragma once

#include <memory>
#include <string>

#include "ui/editing/search_dialog.h"

namespace Ui {
class ReplaceForm;
}

namespace tavrel {

/// Asks what to replace and with what.
class ReplaceForm : public SearchDialog {
  Q_OBJECT

 public:
  ReplaceForm(App& app, QWidget* parent);
  ~ReplaceForm() override;

  /// The replacement as typed; it may be empty.
  std::string ReplacementText() const;

 private:
  std::unique_ptr<Ui::ReplaceForm> ui_;
};

}  // namespace tavrel
