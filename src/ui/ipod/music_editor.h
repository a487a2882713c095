#pragma once

#include <memory>

#include "core/ipod/music_links.h"
#include "ui/controls/dialog.h"

namespace Ui {
class MusicEditor;
}

namespace tavrel {

class LineField;

/// Shows the document's 100 music links in a table and lets people fill, change and clear them. Nothing is
/// kept before "Save".
class MusicEditor : public Dialog {
  Q_OBJECT

 public:
  MusicEditor(App& app, QWidget* parent);
  ~MusicEditor() override;

 public slots:
  void Form_Load();
  void MSFlexGrid2_Click(int row);
  void Text1_KeyPress();
  /// "Save".
  void Command1_Click();
  /// "Enter".
  void Command2_Click();
  /// "Clear".
  void Command3_Click();
  /// "Cancel".
  void Command4_Click();

 private:
  void BuildGrid();
  void ConnectControls();
  MusicFields Row(int row) const;
  void SetRow(int row, const MusicFields& fields);

  std::unique_ptr<Ui::MusicEditor> ui_;
  std::array<LineField*, kMusicFields> text1_;
};

}  // namespace tavrel
