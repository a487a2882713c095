#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QMouseEvent>
#include <QTabBar>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QWheelEvent>

#include <cmath>
#include <numbers>
#include <utility>

#include "monkey/monkey.h"
#include "monkey/texts.h"
#include "support/user.h"
#include "ui/controls/row_list.h"
#include "ui/view/pod_view.h"

// What a person does with the panels of the View menu.

namespace tavrel::test {
namespace {

const std::vector<QString> kPanels = {"PreviewPanel", "CheckPanel", "FindAllPanel"};

/// A point on the wheel's ring, so many degrees clockwise from the right; in its middle without a radius.
QPoint OnWheel(const QWidget& window, double degrees, double part_of_radius) {
  constexpr double kFrame = 14;  // of the body round screen and wheel
  const auto& device = Find<PodView>(window, "Device");
  const QString model = Find<QComboBox>(window, "Model").currentText();  // "160 x 128, greys"
  const int scale = Find<QComboBox>(window, "Scale").currentIndex() + 1;
  const double screen = model.section(' ', 2, 2).remove(',').toDouble() * scale;
  const double radius = (device.height() - screen - 3 * kFrame) / 2;
  const QPointF hub(device.width() / 2.0, device.height() - kFrame - radius);
  const double angle = degrees * std::numbers::pi / 180;
  return (hub + QPointF(std::cos(angle), std::sin(angle)) * radius * part_of_radius).toPoint();
}

void DragRound(PodView& device, const QWidget& window, int from, int by) {
  constexpr double kOnRing = 0.7;
  QTest::mousePress(&device, Qt::LeftButton, {}, OnWheel(window, from, kOnRing));
  for (int passed = 0; std::abs(passed) < std::abs(by); passed += by > 0 ? 8 : -8) {
    const QPoint point = OnWheel(window, from + passed, kOnRing);
    QMouseEvent move(QEvent::MouseMove, point, device.mapToGlobal(point), Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(&device, &move);
  }
  QTest::mouseRelease(&device, Qt::LeftButton, {}, OnWheel(window, from + by, kOnRing));
}

void ClickTick(const QWidget& window, const QString& name) {
  auto& box = Find<QCheckBox>(window, name);
  QTest::mouseClick(&box, Qt::LeftButton, {}, {8, box.height() / 2});
}

}  // namespace

void Monkey::ActInPanels() {
  is_fresh_ = !dice_.OneIn(3);
  if (is_fresh_) LetPanelsLook();
  std::vector<QDockWidget*> open;
  for (const QString& panel : kPanels) {
    auto& dock = Find<QDockWidget>(stage_->Window(), panel + "Dock");
    if (!dock.isHidden()) open.push_back(&dock);
  }
  if (open.empty() || dice_.OneIn(6)) {
    OpenOrClosePanel();
  } else {
    QDockWidget& dock = *dice_.AnyOf(open);
    const bool is_moved = dice_.OneIn(8) || !ComeToPanel(dock);
    if (is_moved) {
      MovePanel(dock);
    } else if (dock.objectName() == "PreviewPanelDock") {
      UsePreview();
    } else if (dock.objectName() == "CheckPanelDock") {
      UseList("Findings");
    } else {
      UseFindAll();
    }
  }
  RunEvents();
  // A panel that floats becomes the active window.
  const bool is_left = screen_->Focus() != focus_ || !stage_->Window().isActiveWindow();
  if (is_left || stage_->Seen.First(Event::Kind::Led) != nullptr) LeaveForPanel(place_left_);
}

/// As the program starts.
void Monkey::ClosePanels() {
  for (const QString& panel : kPanels) {
    auto& dock = Find<QDockWidget>(stage_->Window(), panel + "Dock");
    dock.setFloating(false);
    dock.hide();
  }
}

/// The panels look when a walk says so, so that the same seed gives the same walk.
void Monkey::LetPanelsLook() {
  auto& look = Find<QTimer>(stage_->Window(), "LookTimer");
  Expect(QMetaObject::invokeMethod(&look, "timeout"), "the panels look");
  LetSearchEnd();
}

void Monkey::LetSearchEnd() {
  const auto& search = Find<QTimer>(stage_->Window(), "SearchTimer");
  while (search.isActive()) QCoreApplication::processEvents();
}

/// A person has left the field with the focus for a panel.
void Monkey::LeaveForPanel(const LiteralPlace& place) {
  if (std::exchange(is_left_for_panel_, true)) return;
  model_->LeaveField(focus_);
  model_->LeavePlace(place);
  model_->Focus = "";
}

void Monkey::OpenOrClosePanel() {
  const QString panel = dice_.AnyOf(kPanels);
  Main& window = stage_->Window();
  auto& item = Find<QAction>(window, panel.chopped(5).prepend("View"));
  const int kind = dice_.Below(12);
  Note("open or close " + panel.toStdString() + " " + std::to_string(kind));
  if (kind == 0) {
    ChooseByMouse(item);
  } else if (kind < 3) {
    QTest::mouseClick(&Find<QToolButton>(window, "ProblemCount"), Qt::LeftButton);
  } else if (kind < 5) {
    auto& dock = Find<QDockWidget>(window, panel + "Dock");
    if (!dock.isHidden())
      QTest::mouseClick(&Find<QWidget>(dock, "qt_dockwidget_closebutton"), Qt::LeftButton);
  } else if (window.focusWidget() != nullptr && !item.shortcut().isEmpty()) {
    const QKeyCombination keys = item.shortcut()[0];
    QTest::keyClick(window.focusWidget(), keys.key(), keys.keyboardModifiers());
  } else {
    item.trigger();
  }
}

/// Brings a panel to the front of those that share its place, or its window if it has one. False if people
/// cannot reach it.
bool Monkey::ComeToPanel(QDockWidget& dock) {
  if (dock.isFloating()) {
    Activate(dock);
    // A line keeps its selection while another window is the active one.
    LeaveForPanel(screen_->PlaceIn(caret_field_));
  } else if (!dock.widget()->isVisible()) {
    for (QTabBar* tabs : stage_->Window().findChildren<QTabBar*>(QString(), Qt::FindDirectChildrenOnly)) {
      for (int tab = 0; tab < tabs->count(); ++tab) {
        if (tabs->tabText(tab) == dock.windowTitle())
          QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(tab).center());
      }
    }
    LetSearchEnd();
  }
  return dock.widget()->isVisible();
}

void Monkey::MovePanel(QDockWidget& dock) {
  Note("float or dock " + dock.objectName().toStdString());
  QTest::mouseClick(&Find<QWidget>(dock, "qt_dockwidget_floatbutton"), Qt::LeftButton);
}

void Monkey::UsePreview() {
  Main& window = stage_->Window();
  auto& device = Find<PodView>(window, "Device");
  const int kind = dice_.Below(20);
  Note("use the preview " + std::to_string(kind));
  if (kind == 0) {
    ClickTick(window, dice_.OneIn(2) ? "NotesMenuLink" : "BackgroundMusic");
  } else if (kind < 3) {
    ClickTick(window, "GoAlong");
  } else if (kind == 3) {
    auto& choice = Find<QComboBox>(window, dice_.OneIn(2) ? "Model" : "Scale");
    QTest::keyClick(&choice, dice_.OneIn(2) ? Qt::Key_Down : Qt::Key_Up);
  } else if (kind < 6) {
    const QPointF point(device.rect().center());
    QWheelEvent turn(point, device.mapToGlobal(point), {}, {0, dice_.Between(-300, 300)}, {}, {},
                     Qt::NoScrollPhase, false);
    QApplication::sendEvent(&device, &turn);
  } else if (kind < 9) {
    DragRound(device, window, dice_.Between(-180, 180), dice_.Between(-400, 400));
  } else if (kind < 11) {
    QTest::mouseClick(&device, Qt::LeftButton, {}, OnWheel(window, -90, dice_.OneIn(2) ? 0.7 : 0));
  } else {
    device.setFocus(Qt::TabFocusReason);
    PressKeysIn(device, {Qt::Key_Down, Qt::Key_Right, Qt::Key_Up, Qt::Key_Left, Qt::Key_Return, Qt::Key_Enter,
                         Qt::Key_Space, Qt::Key_Escape});
  }
}

void Monkey::UseFindAll() {
  static const std::vector<QString> words = {"cat", "a", "e", "apple", "1", "00", "Caf\u00c9", "Page", ""};
  if (dice_.OneIn(6)) {
    Note("tick MatchCase");
    ClickTick(stage_->Window(), "MatchCase");
    LetSearchEnd();
    return;
  }
  auto& field = Find<LineField>(stage_->Window(), "FindWhat");
  const auto& hits = Find<RowList>(stage_->Window(), "Hits");
  if (!field.text().isEmpty() && dice_.Below(4) < (hits.model()->rowCount() == 0 ? 1 : 3)) {
    UseList("Hits");
    return;
  }
  // Mostly something that is there.
  QString text = dice_.OneIn(4) ? AnyTyped(dice_) : dice_.AnyOf(words);
  if (dice_.OneIn(3))
    text =
        dice_.AnyOf<QString>({screen_->Title.text(), screen_->Note.text(), screen_->LinkText.text()}).left(3);
  const int kind = dice_.Below(4);
  Note("find in all pages: " + text.toStdString() + " " + std::to_string(kind));
  QTest::mouseClick(&field, Qt::LeftButton);
  if (kind == 0) {
    UndoInFindWhat(field);
    return;
  }
  QTest::keySequence(&field, QKeySequence::SelectAll);
  QTest::keyClick(&field, Qt::Key_Delete);
  TypeText(field, text);
  LetSearchEnd();
  if (kind < 3) QTest::keyClick(&field, Qt::Key_Return);
}

/// The keys for Undo and Redo are for the field first, and for the document if that has nothing to offer.
void Monkey::UndoInFindWhat(LineField& field) {
  const bool back = !dice_.OneIn(3);
  if (!Find<QDockWidget>(stage_->Window(), "FindAllPanelDock").isFloating()) LeaveForPanel(place_left_);
  const bool has_own = back ? field.isUndoAvailable() : field.isRedoAvailable();
  field_to_undo_ = screen_->FieldWithUnheldWords();
  if (!has_own && !back) field_to_redo_ = screen_->FieldToRedo();
  focus_ = "FindWhat";
  QTest::keyClick(&field, back ? Qt::Key_Z : Qt::Key_Y, Qt::ControlModifier);
  if (!has_own) return;
  Expect(field.hasFocus(), "the panel's field takes back its own typing and keeps the focus");
  stage_->Seen.Clear();
}

void Monkey::UseList(const QString& name) {
  auto& list = Find<RowList>(stage_->Window(), name);
  const int rows = list.model()->rowCount();
  const int kind = dice_.Below(6);
  Note("use " + name.toStdString() + " " + std::to_string(kind) + " of " + std::to_string(rows));
  if (rows == 0 || kind < 2) {
    list.setFocus(Qt::TabFocusReason);
    PressKeysIn(list, {Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End,
                       Qt::Key_Right, Qt::Key_Return, Qt::Key_Enter});
    return;
  }
  const QModelIndex cell = list.model()->index(dice_.Below(rows), dice_.Below(2));
  list.scrollTo(cell);
  const QPoint place = list.visualRect(cell).center();
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
  // What was typed meanwhile may have emptied the list.
  if (kind < 4 || !list.indexAt(place).isValid()) return;
  QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
  QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, place);
}

/// Presses some keys until one of them leads elsewhere.
void Monkey::PressKeysIn(QWidget& control, const std::vector<Qt::Key>& keys) {
  for (int left = dice_.Between(1, 6); left > 0; --left) {
    QTest::keyClick(&control, dice_.AnyOf(keys));
    if (stage_->Seen.First(Event::Kind::Led) != nullptr) return;
  }
}

/// The click that came next took the focus back from where the panel had led.
void Monkey::LeaveAgain(LiteralPlace place) {
  model_->EndCommand(place);
  model_->BeginCommand(place,
                       model_->Showing() == showing_ ? with_redo_ : std::map<std::string, std::string>());
  if (place.Field != "Text1") place.Anchor = place.Caret;
  model_->LeaveField(model_->Focus);
  model_->LeavePlace(place);
  model_->Focus = "";
}

void Monkey::FollowPanels() {
  const Event* last = nullptr;
  for (const Event& event : stage_->Seen.Events) {
    if (event.What != Event::Kind::Led) continue;
    if (last != nullptr) LeaveAgain(last->Place);
    last = &event;
    Remember("led to " + std::to_string(event.Number) + " " + event.Control);
    if (event.Window == "PreviewPanel") {
      model_->GoAlong(event.Number);
    } else {
      model_->LeadTo(event.Number, event.Control, std::stoi(event.Values.at("link")),
                     event.Values.at("record"));
    }
    ++counts_.Led;
  }
  const bool is_part = model_->IsShown && last->Number >= 1 && last->Number <= kLastPage;
  if (!is_part || last->Window == "PreviewPanel") return;
  // The editor does not show more links than it has rows.
  if (std::stoi(last->Values.at("link")) > kLastLink) return;
  ExpectSame(screen_->Focus(), last->Control, "the field that a panel has led to");
  Expect(stage_->Window().isActiveWindow(), "a panel leads into the main window");
  // A link that is left for the panel is stored at that moment, after the panel has looked, and a target "3"
  // is found as "003".
  const bool may_differ = focus_ == "Text5" || focus_ == "Combo1" || last->Control == "Combo1";
  if (is_fresh_ && !may_differ && last->Window == "Hits")
    ExpectSame(screen_->SelectedIn(last->Control).toStdString(), last->Values.at("found"),
               "what is selected");
}

}  // namespace tavrel::test
