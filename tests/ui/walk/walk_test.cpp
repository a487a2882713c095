#include "ui/walk/walk_test.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QTabWidget>
#include <QTest>

#include "core/shell/messages.h"
#include "ui/controls/message_box.h"
#include "ui/shell/look.h"
#include "ui/walk/controls_of.h"

namespace tavrel::test {
namespace {

constexpr std::string_view kPlanName = "Museum.pln";

/// A message of each look: a question, a long refusal, good news, and one without an icon.
Message MessageOf(const std::string& box) {
  if (box == "QuestionBox") return messages::CloseDoesNotSave();
  if (box == "RefusalBox") return messages::DeleteFolderFailed();
  return box == "NewsBox" ? messages::ProjectSaved() : messages::SystemInfoUnavailable();
}

/// The focus of a dialog comes with events of its own, after the window has become active.
void WaitForFocus(QWidget& window) {
  ActivateWindow(window);
  if (ControlsToReach(window).isEmpty()) return;
  EXPECT_TRUE(QTest::qWaitFor([&window] {
    const QWidget* focus = QApplication::focusWidget();
    return focus != nullptr && focus->window() == &window;
  }));
}

}  // namespace

WalkTest::WalkTest() : usual_font_(QApplication::font()) {
  SetUpLook();
  MakeFiles();
}

WalkTest::~WalkTest() {
  QApplication::setFont(usual_font_);
  QApplication::setLayoutDirection(Qt::LeftToRight);
}

void WalkTest::EnlargeFont(double factor) {
  QFont font = QApplication::font();
  font.setPointSizeF(font.pointSizeF() * factor);
  QApplication::setFont(font);
}

void WalkTest::SetDirection(Qt::LayoutDirection direction) {
  QApplication::setLayoutDirection(direction);
}

void WalkTest::MakeFiles() {
  Folder.Write("City walk.bak", kGuide);
  Folder.Write("City walk/z001.txt", "A note");
  Folder.Write(kPlanName, "002\r\nNorth\r\nSouth\r\nEast\r\nWest\r\n");
  disks_.Write("pod/Notes/City walk/z001.txt", "A note");
  System.FakeVolumes = {{"c:", Folder.Path()}, {"E:", disks_.Path() / "pod"}};
}

void WalkTest::Visit(const Place& place, const Look& look) {
  if (place.NeedsDocument) OpenDocument("City walk.dat", kGuide);
  if (std::string(place.Window) == "MessageBox") {
    VisitMessage(MessageOf(place.Name), look);
  } else if (place.MenuItem == nullptr) {
    Enter(Window(), place, look);
  } else if (std::string(place.MenuItem) == "EditProjectPlanner") {
    VisitPlanner(place, look);
  } else {
    Player.Expect(place.Window, [&](QWidget& window) { Enter(window, place, look); });
    Find<QAction>(Window(), place.MenuItem).trigger();
  }
}

void WalkTest::VisitMessage(const Message& message, const Look& look) {
  Player.Expect("MessageBox", [&](QWidget& window) { Enter(window, {}, look); });
  MessageBoxes().Show(&Window(), message);
}

void WalkTest::VisitPlanner(const Place& place, const Look& look) {
  Find<QAction>(Window(), place.MenuItem).trigger();
  QWidget& planner = TopWindow("Planner");
  if (place.PlannerButton == nullptr) {
    // The cells are numbered a moment later.
    const auto& first = Find<QLabel>(planner, "Label6_0");
    EXPECT_TRUE(QTest::qWaitFor([&first] { return !first.text().isEmpty(); }));
    Enter(planner, place, look);
    return;
  }
  Player.Expect(place.Window, [&](QWidget& window) { Enter(window, place, look); });
  Click(planner, place.PlannerButton);
  planner.close();
}

void WalkTest::Enter(QWidget& window, const Place& place, const Look& look) {
  if (place.Tab > 0) window.findChild<QTabWidget*>()->setCurrentIndex(place.Tab);
  WaitForFocus(window);
  // Where the display tells windows their size, the controls follow a moment later.
  Settle();
  look(window);
  if (&window != &Window()) window.close();
}

}  // namespace tavrel::test
