#pragma once

#include <QObject>

#include <memory>

#include "ui/app.h"

class QWidget;

namespace tavrel {

class BodyField;
class Editor;
class FindForm;
class ReplaceForm;

/// Find, Find Next and Replace: the searches through the texts of all pages.
class SearchCommands : public QObject {
  Q_OBJECT

 public:
  SearchCommands(App& app, Editor& editor, BodyField& body, QWidget* window);
  ~SearchCommands() override;

 public slots:
  /// "Find". Searches from page 1 on, whatever page is shown.
  void EditSearch_Click();
  /// Searches from the page after the next on: the next one is passed over.
  void EditFindNext_Click();
  void EditReplace_Click();

 private:
  FindForm& Finder();
  ReplaceForm& Replacer();
  void ShowMatch(int first_page);

  App& app_;
  Editor& editor_;
  BodyField& body_;
  QWidget* window_;
  // Made at their first use and kept, so that they remember "Match case".
  std::unique_ptr<FindForm> find_form_;
  std::unique_ptr<ReplaceForm> replace_form_;
};

}  // namespace tavrel
