#pragma once

#include <QStringList>

#include <string>
#include <vector>

#include "support/window_test.h"

namespace tavrel::test {

using Texts = std::vector<std::string>;

/// Edits music links as a person does.
class MusicEditorTest : public WindowTest {
 protected:
  /// Chooses Edit > Music Editor and plays `step` on it.
  void PlayEditor(const Robot::Step& step);

  /// Opens the editor, fills one row, song first, and saves.
  void SaveRow(int row, const QStringList& fields);
};

/// The field for a column, 1 to 7.
QString MusicField(int column);

Grid& MusicGrid(const QWidget& dialog);

/// Types into the fields, song first, and empties those that no text is given for.
void TypeFields(const QWidget& dialog, const QStringList& fields);
/// What the fields show, song first.
Texts Fields(const QWidget& dialog);
/// Columns 1 to 7 of a row.
Texts Cells(const QWidget& dialog, int row);

/// Seven texts, all empty but the song.
Texts OnlySong(const std::string& song);

}  // namespace tavrel::test
