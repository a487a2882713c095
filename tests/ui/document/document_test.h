#pragma once

#include <QListWidget>
#include <QStringList>

#include <string>
#include <vector>

#include "support/window_test.h"

namespace tavrel::test {

using Texts = std::vector<std::string>;

/// Works with the File menu and its document dialogs as a person does.
class DocumentTest : public WindowTest {
 protected:
  using WindowTest::WindowTest;

  static constexpr const char* kOverwrite =
      "Warning|exclamation| File already exists. Overwrite?    |OK/Cancel";

  /// Chooses a menu item and plays `step` on the dialog that it opens.
  void Play(const QString& menu_item, const QString& dialog, const Robot::Step& step);

  /// File > New project: ticks the boxes, types the name and clicks "Create".
  void CreateDocument(const QString& name, const QStringList& boxes = {});
  /// File > Save As with a name and "Save".
  void SaveAs(const QString& name);

  /// Opens the document's file again, as it is on the disk.
  void Reopen();

  void ExpectNoDocument();
  void ExpectDocument(const std::string& name);

  /// Whether pages 1 to 999 and music links 1 to 100 are all empty.
  bool IsMemoryEmpty() const;

  /// The texts of all messages so far, without the rest.
  Texts MessageTexts() const;

  /// Dates a file of the program's folder at noon of 3 March 2006.
  void DateFile(const std::filesystem::path& name) const;
};

/// Selects a row by its place in the list, counted from 0.
void ClickRowAt(QListWidget& list, int row);

QStringList Rows(const QListWidget& list);

}  // namespace tavrel::test
