#include <QApplication>
#include <QImage>

#include <gmock/gmock.h>

#include "ui/walk/controls_of.h"
#include "ui/walk/tab_order.h"
#include "ui/walk/walk_test.h"

namespace tavrel::test {
namespace {

/// Carets do not blink while this lives.
class SteadyCaret {
 public:
  SteadyCaret() : usual_(QApplication::cursorFlashTime()) { QApplication::setCursorFlashTime(0); }
  ~SteadyCaret() { QApplication::setCursorFlashTime(usual_); }
  SteadyCaret(const SteadyCaret&) = delete;
  SteadyCaret& operator=(const SteadyCaret&) = delete;

 private:
  int usual_;
};

QImage Picture(QWidget& control) {
  return control.grab().toImage();
}

class FocusWalkTest : public EachWindowTest {};

TEST_P(FocusWalkTest, ThePlaceOfTheFocusCanBeSeen) {
  const SteadyCaret steady;
  Visit(GetParam(), [](QWidget& window) {
    const QList<QWidget*> order = TabbedControls(window);
    Faults unseen;
    // With a single control there is no doubt.
    for (qsizetype i = 0; i < order.size() && order.size() > 1; ++i) {
      QWidget* control = order[i];
      control->setFocus(Qt::TabFocusReason);
      EXPECT_TRUE(control->hasFocus()) << NameOf(*control);
      const QImage with_focus = Picture(*control);
      order[(i + 1) % order.size()]->setFocus(Qt::TabFocusReason);
      if (Picture(*control) == with_focus) unseen.push_back(NameOf(*control));
    }
    EXPECT_THAT(unseen, testing::IsEmpty());
  });
}

INSTANTIATE_TEST_SUITE_P(Windows, FocusWalkTest, testing::ValuesIn(kWindows), NameOfPlace);

}  // namespace
}  // namespace tavrel::test
