#pragma once

#include <QList>
#include <QString>
#include <QWidget>

#include <string>

namespace tavrel::test {

/// The visible widgets of a window that stand for something of their own, and not for a part of another
/// control, such as the field in an editable list or a scroll bar.
QList<QWidget*> ControlsOf(const QWidget& window);

/// Those of them that people act on: buttons, boxes, fields, lists and tabs. The toolbar's are left out: they
/// repeat menu items and stay out of the keyboard's way.
QList<QWidget*> ControlsToReach(const QWidget& window);

/// "Text1 (tavrel::LineField)".
std::string NameOf(const QWidget& control);

}  // namespace tavrel::test
