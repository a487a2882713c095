#include "ui/walk/tab_order.h"

#include <QApplication>
#include <QLayout>
#include <QTest>

#include <algorithm>

namespace tavrel::test {
namespace {

/// A widget or a layout with its place in the window.
struct Part {
  QRect Place;
  QWidget* Widget = nullptr;
  QLayout* Layout = nullptr;
};

QRect PlaceOf(const QLayoutItem& item, const QWidget& holder, const QWidget& window) {
  return {holder.mapTo(&window, item.geometry().topLeft()), item.geometry().size()};
}

QList<Part> PartsOf(QLayout& layout, const QWidget& window) {
  QList<Part> parts;
  for (int i = 0; i < layout.count(); ++i) {
    QLayoutItem* item = layout.itemAt(i);
    if (item->isEmpty()) continue;
    parts << Part{PlaceOf(*item, *layout.parentWidget(), window), item->widget(), item->layout()};
  }
  return parts;
}

QList<Part> PartsOf(const QWidget& widget, const QWidget& window) {
  QList<Part> parts;
  for (QObject* object : widget.children()) {
    auto* child = qobject_cast<QWidget*>(object);
    if (child == nullptr || child->isWindow() || !child->isVisible()) continue;
    parts << Part{{child->mapTo(&window, QPoint()), child->size()}, child, nullptr};
  }
  return parts;
}

/// Sorts parts into rows, and each row from its beginning to its end. What overlaps in height shares a row.
void SortByRows(QList<Part>& parts, bool right_to_left) {
  const auto by_top = [](const Part& a, const Part& b) { return a.Place.top() < b.Place.top(); };
  const auto by_side = [right_to_left](const Part& a, const Part& b) {
    return right_to_left ? a.Place.right() > b.Place.right() : a.Place.left() < b.Place.left();
  };
  std::stable_sort(parts.begin(), parts.end(), by_top);
  for (auto row = parts.begin(); row != parts.end();) {
    int bottom = row->Place.bottom();
    auto end = row;
    for (; end != parts.end() && end->Place.top() <= bottom; ++end)
      bottom = std::max(bottom, end->Place.bottom());
    std::stable_sort(row, end, by_side);
    row = end;
  }
}

void Collect(QList<Part> parts, const QWidget& window, QList<QWidget*>& order) {
  SortByRows(parts, window.layoutDirection() == Qt::RightToLeft);
  for (const Part& part : parts) {
    if (part.Layout != nullptr) {
      Collect(PartsOf(*part.Layout, window), window, order);
      continue;
    }
    order << part.Widget;
    QLayout* inner = part.Widget->layout();
    Collect(inner != nullptr ? PartsOf(*inner, window) : PartsOf(*part.Widget, window), window, order);
  }
}

}  // namespace

QList<QWidget*> TabbedControls(QWidget& window) {
  constexpr int kMost = 500;
  QList<QWidget*> controls;
  QWidget* focus = window.focusWidget();
  while (focus != nullptr && !controls.contains(focus) && controls.size() < kMost) {
    controls << focus;
    QTest::keyClick(focus, Qt::Key_Tab);
    focus = window.focusWidget();
  }
  return controls;
}

QList<QWidget*> InReadingOrder(const QWidget& window, const QList<QWidget*>& controls) {
  QList<QWidget*> order;
  QLayout* layout = window.layout();
  const bool by_layout = layout != nullptr && !window.inherits("QMainWindow");
  Collect(by_layout ? PartsOf(*layout, window) : PartsOf(window, window), window, order);
  order.removeIf([&controls](QWidget* widget) { return !controls.contains(widget); });
  return order;
}

QList<QWidget*> BeginningWith(const QWidget* first, QList<QWidget*> controls) {
  const auto found = std::find(controls.begin(), controls.end(), first);
  std::rotate(controls.begin(), found == controls.end() ? controls.begin() : found, controls.end());
  return controls;
}

}  // namespace tavrel::test
