#pragma once

#include <QObject>

namespace Ui {
class Main;
}

namespace tavrel {

/// Tells in the status bar, at once, what a page cannot keep of the text in its fields: characters outside
/// the code page, which have become "?", and tags that the page would take for its own markup when it is
/// shown again.
class FieldNotices : public QObject {
  Q_OBJECT

 public:
  explicit FieldNotices(Ui::Main& ui);

 private:
  void TellReplaced(int count);

  Ui::Main& ui_;
};

}  // namespace tavrel
