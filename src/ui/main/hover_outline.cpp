#include "ui/main/hover_outline.h"

#include <QMouseEvent>
#include <QWidget>

#include "ui/controls/picture_button.h"

namespace tavrel {

HoverOutline::HoverOutline(const QList<PictureButton*>& buttons, const QList<QWidget*>& form)
    : buttons_(buttons) {
  for (PictureButton* button : buttons_) {
    connect(button, &PictureButton::MouseMove, this, [this, button] { Image_MouseMove(button); });
  }
  for (QWidget* part : form) {
    part->setMouseTracking(true);
    part->installEventFilter(this);
  }
}

void HoverOutline::Image_MouseMove(const PictureButton* under_pointer) {
  for (PictureButton* button : buttons_) button->SetBorderStyle(button == under_pointer ? 1 : 0);
}

void HoverOutline::Form_MouseMove() {
  for (PictureButton* button : buttons_) button->SetBorderStyle(0);
}

bool HoverOutline::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::MouseMove) return false;
  const auto* part = qobject_cast<QWidget*>(watched);
  // What lies on the form and makes nothing of the move, such as a label, hands it down to the form.
  const QPoint place = static_cast<QMouseEvent*>(event)->position().toPoint();
  if (part->childAt(place) == nullptr) Form_MouseMove();
  return false;
}

}  // namespace tavrel
