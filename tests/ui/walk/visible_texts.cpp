#include "ui/walk/visible_texts.h"

#include <QAbstractButton>
#include <QAction>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTabBar>
#include <QTableView>

#include "ui/walk/controls_of.h"

namespace tavrel::test {
namespace {

class Collection {
 public:
  void Add(const std::string& where, const QString& text) {
    if (!text.trimmed().isEmpty()) texts_.push_back({where, text});
  }

  void AddControl(const QWidget& control) {
    const std::string name = NameOf(control);
    Add(name + " tooltip", control.toolTip());
    Add(name + " accessible name", control.accessibleName());
    Add(name + " accessible description", control.accessibleDescription());
    Add(name + " status tip", control.statusTip());
    if (const auto* label = qobject_cast<const QLabel*>(&control)) Add(name, label->text());
    if (const auto* button = qobject_cast<const QAbstractButton*>(&control)) Add(name, button->text());
    if (const auto* field = qobject_cast<const QLineEdit*>(&control)) Add(name, field->placeholderText());
    if (const auto* tabs = qobject_cast<const QTabBar*>(&control)) AddTabs(name, *tabs);
    if (const auto* grid = qobject_cast<const QTableView*>(&control))
      AddHeadings(name, *grid->horizontalHeader());
  }

  void AddItem(const QAction& item) {
    const std::string name = item.objectName().toStdString();
    Add(name, item.text());
    // An item without a tooltip of its own gives its text without the mark of the letter.
    Add(name + " tooltip", item.toolTip());
    Add(name + " status tip", item.statusTip());
  }

  std::vector<VisibleText> Take() { return std::move(texts_); }

 private:
  void AddTabs(const std::string& name, const QTabBar& tabs) {
    for (int tab = 0; tab < tabs.count(); ++tab) {
      Add(name, tabs.tabText(tab));
      Add(name + " tooltip", tabs.tabToolTip(tab));
    }
  }

  void AddHeadings(const std::string& name, const QHeaderView& headings) {
    for (int column = 0; column < headings.count(); ++column)
      Add(name + " heading", headings.model()->headerData(column, Qt::Horizontal).toString());
  }

  std::vector<VisibleText> texts_;
};

}  // namespace

std::vector<VisibleText> VisibleTexts(const QWidget& window) {
  Collection collection;
  collection.Add("caption", window.windowTitle());
  for (const QWidget* control : ControlsOf(window)) collection.AddControl(*control);
  for (const QMenu* menu : window.findChildren<QMenu*>()) {
    collection.Add(menu->objectName().toStdString(), menu->title());
    for (const QAction* item : menu->actions()) collection.AddItem(*item);
  }
  return collection.Take();
}

}  // namespace tavrel::test
