#pragma once

#include <QList>
#include <QWidget>

namespace tavrel::test {

/// The controls in the order of the Tab key, from the one on which it arrives after going round once.
QList<QWidget*> TabbedControls(QWidget& window);

/// These controls in the order in which the eye meets them: group by group as the form's layouts hold them,
/// in each group row by row, in each row in the direction of reading.
QList<QWidget*> InReadingOrder(const QWidget& window, const QList<QWidget*>& controls);

/// The list turned round so that it begins with `first`.
QList<QWidget*> BeginningWith(const QWidget* first, QList<QWidget*> controls);

}  // namespace tavrel::test
