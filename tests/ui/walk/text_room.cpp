#include "ui/walk/text_room.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QSplitter>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>

#include "ui/controls/dated_file_list.h"
#include "ui/controls/elided_label.h"
#include "ui/walk/controls_of.h"

namespace tavrel::test {
namespace {

/// Compares what things need with what they have.
class Measure {
 public:
  void Check(const QWidget& control, const QSize& has, const QSize& needs, const QString& text) {
    if (has.width() >= needs.width() && has.height() >= needs.height()) return;
    QString fault = QString("%1 '%2' has %3 x %4, needs %5 x %6");
    for (const QString& part : {QString::fromStdString(NameOf(control)), text}) fault = fault.arg(part);
    for (const int number : {has.width(), has.height(), needs.width(), needs.height()})
      fault = fault.arg(number);
    faults_.push_back(fault.toStdString());
  }

  const Faults& Found() const { return faults_; }

 private:
  Faults faults_;
};

void CheckLabel(const QLabel& label, Measure& measure) {
  if (label.text().isEmpty() || qobject_cast<const ElidedLabel*>(&label) != nullptr) return;
  const QSize needs = label.wordWrap()
                          ? QSize(label.minimumSizeHint().width(), label.heightForWidth(label.width()))
                          : label.sizeHint();
  measure.Check(label, label.size(), needs, label.text());
}

void CheckButton(const QAbstractButton& button, Measure& measure) {
  // The style's own idea of a button is roomier than its text needs, but what is less than it looks squeezed.
  measure.Check(button, button.size(), button.sizeHint(), button.text());
}

void CheckTabs(const QTabBar& tabs, Measure& measure) {
  const auto* holder = qobject_cast<const QTabWidget*>(tabs.parentWidget());
  for (int tab = 0; tab < tabs.count(); ++tab) {
    const QSize text = tabs.fontMetrics().size(Qt::TextShowMnemonic, tabs.tabText(tab));
    measure.Check(tabs, tabs.tabRect(tab).size(), text + QSize(8, 4), tabs.tabText(tab));
  }
  if (holder != nullptr) measure.Check(tabs, holder->size(), tabs.sizeHint(), "all tabs");
}

void CheckHeadings(const QHeaderView& headings, Measure& measure) {
  if (!headings.isVisible()) return;
  for (int section = 0; section < headings.count(); ++section) {
    const QVariant text = headings.model()->headerData(section, headings.orientation());
    const QSize has(headings.sectionSize(section), headings.height());
    const QSize needs(headings.sectionSizeHint(section), headings.fontMetrics().height());
    measure.Check(headings, has, needs, text.toString());
  }
}

/// The rows of a list of files are of one length. Names of folders may be of any: their list can be scrolled.
void CheckRows(const QAbstractItemView& list, Measure& measure) {
  const bool scrolls = list.horizontalScrollBar()->isVisible();
  const bool may_scroll = qobject_cast<const DatedFileList*>(&list) == nullptr;
  for (int row = 0; row < list.model()->rowCount(); ++row) {
    const QModelIndex index = list.model()->index(row, 0);
    const QSize needs = list.sizeHintForIndex(index);
    const int room = scrolls && may_scroll ? needs.width() : list.viewport()->width();
    measure.Check(list, QSize(room, list.visualRect(index).height()), needs, index.data().toString());
  }
}

void CheckGrid(const QTableView& grid, Measure& measure) {
  CheckHeadings(*grid.horizontalHeader(), measure);
  for (int column = 0; column < grid.model()->columnCount(); ++column) {
    const QModelIndex first = grid.model()->index(0, column);
    const QSize text = grid.fontMetrics().size(Qt::TextSingleLine, first.data().toString());
    measure.Check(grid, grid.visualRect(first).size(), text, first.data().toString());
  }
}

void CheckField(const QLineEdit& field, Measure& measure) {
  const QSize text(field.fontMetrics().horizontalAdvance(field.text()) + 8, field.sizeHint().height());
  measure.Check(field, field.size(), text, field.text());
}

void CheckBox(const QComboBox& box, Measure& measure) {
  QStyleOptionComboBox option;
  option.initFrom(&box);
  option.editable = box.isEditable();
  const QRect room =
      box.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &box);
  const QString text = box.currentText();
  measure.Check(box, QSize(room.width(), box.height()),
                QSize(box.fontMetrics().horizontalAdvance(text), box.sizeHint().height()), text);
}

void CheckControl(const QWidget& control, Measure& measure) {
  if (const auto* label = qobject_cast<const QLabel*>(&control)) CheckLabel(*label, measure);
  if (const auto* button = qobject_cast<const QAbstractButton*>(&control)) CheckButton(*button, measure);
  if (const auto* tabs = qobject_cast<const QTabBar*>(&control)) CheckTabs(*tabs, measure);
  if (const auto* field = qobject_cast<const QLineEdit*>(&control)) CheckField(*field, measure);
  if (const auto* box = qobject_cast<const QComboBox*>(&control)) CheckBox(*box, measure);
  if (const auto* grid = qobject_cast<const QTableView*>(&control)) {
    CheckGrid(*grid, measure);
  } else if (const auto* list = qobject_cast<const QAbstractItemView*>(&control)) {
    CheckRows(*list, measure);
  }
}

QRect PlaceIn(const QWidget& window, const QWidget& control) {
  return {control.mapTo(&window, QPoint()), control.size()};
}

/// The toolkit puts the parts of a splitter one pixel too far to the right when it runs from right to left.
QRect Occupied(const QWidget& window, const QWidget& control) {
  const QRect place = PlaceIn(window, control);
  const bool of_splitter = qobject_cast<const QSplitter*>(control.parentWidget()) != nullptr;
  return of_splitter && window.layoutDirection() == Qt::RightToLeft ? place.adjusted(1, 0, -1, 0) : place;
}

std::string Described(const QWidget& window, const QWidget& control) {
  const QRect place = PlaceIn(window, control);
  QString text(" at %1,%2, %3 x %4");
  for (const int number : {place.x(), place.y(), place.width(), place.height()}) text = text.arg(number);
  return NameOf(control) + text.toStdString();
}

}  // namespace

Faults CutTexts(const QWidget& window) {
  Measure measure;
  for (const QWidget* control : ControlsOf(window)) CheckControl(*control, measure);
  return measure.Found();
}

Faults OverlappingControls(const QWidget& window) {
  Faults faults;
  const QList<QWidget*> controls = ControlsOf(window);
  for (const QWidget* control : controls) {
    const QWidget* holder = control->parentWidget();
    const QRect place = Occupied(window, *control);
    const QRect room = PlaceIn(window, *holder);
    if (!room.contains(place))
      faults.push_back(Described(window, *control) + " is cut off by " + Described(window, *holder));
    for (const QWidget* other : controls) {
      const bool beside = other < control && other->parentWidget() == holder &&
                          qobject_cast<const QTabWidget*>(holder) == nullptr;
      if (beside && Occupied(window, *other).intersects(place))
        faults.push_back(Described(window, *control) + " overlaps " + Described(window, *other));
    }
  }
  return faults;
}

}  // namespace tavrel::test
