#pragma once

#include <QDialog>

#include "ui/app.h"

namespace tavrel {

/// What the dialogs share. Enter acts only where a dialog says so: on the button that has the focus, and in
/// fields whose handlers ask for it. Esc and the window's frame close a dialog as Cancel does.
class Dialog : public QDialog {
  Q_OBJECT

 public:
  Dialog(App& app, QWidget* parent);

 protected:
  /// To be called once the form's controls exist.
  void PrepareControls();

  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;

  App& app_;

 private:
  /// Wrapped text needs more height in a narrow window or a large font, which the layout alone does not see
  /// to.
  void KeepRoomForText();
};

}  // namespace tavrel
