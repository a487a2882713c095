#pragma once

#include <QCheckBox>

namespace tavrel {

/// A tick box with a value: 0 is off, 1 is on, 2 is greyed. A click takes it from off to on and from anything
/// else to off.
class TickBox : public QCheckBox {
  Q_OBJECT

 public:
  explicit TickBox(QWidget* parent = nullptr);

  int Value() const;
  void SetValue(int value);

 protected:
  void nextCheckState() override;
};

}  // namespace tavrel
