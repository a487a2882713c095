#include <QAbstractButton>
#include <QAccessible>
#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>

#include <gmock/gmock.h>

#include "ui/walk/controls_of.h"
#include "ui/walk/tab_order.h"
#include "ui/walk/walk_test.h"

namespace tavrel::test {
namespace {

using testing::IsEmpty;

class KeyboardWalkTest : public EachWindowTest {};

std::vector<std::string> NamesOf(const QList<QWidget*>& controls) {
  std::vector<std::string> names;
  for (const QWidget* control : controls) names.push_back(NameOf(*control));
  return names;
}

/// What a screen reader calls a control; of a row of tabs, what it calls the current one.
QString SpokenName(QWidget& control) {
  const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&control);
  const bool has_tabs = qobject_cast<const QTabBar*>(&control) != nullptr;
  if (spoken != nullptr && has_tabs) spoken = spoken->focusChild();
  return spoken == nullptr ? QString() : spoken->text(QAccessible::Name);
}

/// The letters that Alt chooses something with, and what they choose.
class Letters {
 public:
  void Add(const QString& text) {
    const QKeySequence letter = QKeySequence::mnemonic(text);
    if (!letter.isEmpty()) Add(letter, text);
  }

  void Add(const QKeySequence& keys, const QString& text) {
    const QString other = taken_.value(keys);
    if (!other.isEmpty())
      faults_.push_back(
          (keys.toString() + " stands for '" + other + "' and for '" + text + "'").toStdString());
    taken_[keys] = text;
  }

  const Faults& Collisions() const { return faults_; }

 private:
  QMap<QKeySequence, QString> taken_;
  Faults faults_;
};

TEST_P(KeyboardWalkTest, EveryControlThatTheKeyboardReachesHasAName) {
  Visit(GetParam(), [](QWidget& window) {
    Faults nameless;
    for (QWidget* control : TabbedControls(window)) {
      if (SpokenName(*control).trimmed().isEmpty()) nameless.push_back(NameOf(*control));
    }
    EXPECT_THAT(nameless, IsEmpty());
  });
}

TEST_P(KeyboardWalkTest, TheTabKeyReachesEveryControl) {
  Visit(GetParam(), [](QWidget& window) {
    const QList<QWidget*> reached = TabbedControls(window);
    Faults missed;
    for (const QWidget* control : ControlsToReach(window)) {
      if (!reached.contains(control)) missed.push_back(NameOf(*control));
    }
    EXPECT_THAT(missed, IsEmpty());
  });
}

TEST_P(KeyboardWalkTest, TheTabKeyFollowsTheEye) {
  Visit(GetParam(), [](QWidget& window) {
    const QList<QWidget*> order = TabbedControls(window);
    if (order.isEmpty()) return;
    const QList<QWidget*> reading = InReadingOrder(window, order);
    ASSERT_EQ(reading.size(), order.size());
    EXPECT_EQ(NamesOf(BeginningWith(reading.first(), order)), NamesOf(reading));
  });
}

TEST_P(KeyboardWalkTest, MnemonicsOfAWindowDoNotCollide) {
  Visit(GetParam(), [](QWidget& window) {
    Letters letters;
    for (const QWidget* control : ControlsOf(window)) {
      if (const auto* button = qobject_cast<const QAbstractButton*>(control)) letters.Add(button->text());
      const auto* label = qobject_cast<const QLabel*>(control);
      if (label != nullptr && label->buddy() != nullptr) letters.Add(label->text());
      const auto* tabs = qobject_cast<const QTabBar*>(control);
      for (int tab = 0; tabs != nullptr && tab < tabs->count(); ++tab) letters.Add(tabs->tabText(tab));
      const auto* bar = qobject_cast<const QMenuBar*>(control);
      if (bar == nullptr) continue;
      for (const QAction* menu : bar->actions()) letters.Add(menu->text());
    }
    EXPECT_THAT(letters.Collisions(), IsEmpty());
  });
}

TEST_P(KeyboardWalkTest, MnemonicsOfAMenuDoNotCollide) {
  Visit(GetParam(), [](QWidget& window) {
    for (const QMenu* menu : window.findChildren<QMenu*>()) {
      Letters letters;
      for (const QAction* item : menu->actions()) letters.Add(item->text());
      EXPECT_THAT(letters.Collisions(), IsEmpty()) << menu->objectName().toStdString();
    }
  });
}

TEST_P(KeyboardWalkTest, ShortcutsDoNotCollide) {
  Visit(GetParam(), [](QWidget& window) {
    Letters keys;
    for (const QAction* item : window.findChildren<QAction*>()) {
      for (const QKeySequence& sequence : item->shortcuts()) keys.Add(sequence, item->text());
    }
    EXPECT_THAT(keys.Collisions(), IsEmpty());
  });
}

INSTANTIATE_TEST_SUITE_P(Windows, KeyboardWalkTest, testing::ValuesIn(kWindows), NameOfPlace);

}  // namespace
}  // namespace tavrel::test
