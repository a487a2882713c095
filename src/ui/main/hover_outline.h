#pragma once

#include <QList>
#include <QObject>

namespace tavrel {

class PictureButton;

/// Outlines the toolbar button that the pointer was over last. Only another button or the form's own
/// background take the outline away; other controls leave it.
class HoverOutline : public QObject {
  Q_OBJECT

 public:
  /// The form is made of several plain widgets; their bare places are its background.
  HoverOutline(const QList<PictureButton*>& buttons, const QList<QWidget*>& form);

  void Image_MouseMove(const PictureButton* under_pointer);
  void Form_MouseMove();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QList<PictureButton*> buttons_;
};

}  // namespace tavrel
