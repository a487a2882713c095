#pragma once

#include <QStringList>
#include <QWidget>

#include <string>
#include <vector>

namespace tavrel::test {

/// A text that people see or hear, and where.
struct VisibleText {
  std::string Where;
  QString Text;
};

/// The program's own texts in a window and its menus: captions, labels, buttons, tabs, headings, tooltips,
/// menu items and accessible names. What people have written or named (fields, rows, cells) is not among
/// them.
std::vector<VisibleText> VisibleTexts(const QWidget& window);

}  // namespace tavrel::test
