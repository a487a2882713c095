#include "ui/ipod/music_editor_test.h"

namespace tavrel::test {
namespace {

constexpr int kColumns = 7;

}  // namespace

void MusicEditorTest::PlayEditor(const Robot::Step& step) {
  Player.Expect("MusicEditor", step);
  Choose("EditMusic");
  EXPECT_EQ(Player.StepsLeft(), 0);
  EXPECT_TRUE(Program.Failures.empty());
}

void MusicEditorTest::SaveRow(int row, const QStringList& fields) {
  PlayEditor([&](QWidget& dialog) {
    ClickRow(MusicGrid(dialog), row);
    TypeFields(dialog, fields);
    Click(dialog, "Command2");
    Click(dialog, "Command1");
    EXPECT_FALSE(dialog.isVisible());
  });
}

QString MusicField(int column) {
  return QString("Text1_%1").arg(column);
}

Grid& MusicGrid(const QWidget& dialog) {
  return Find<Grid>(dialog, "MSFlexGrid2");
}

void TypeFields(const QWidget& dialog, const QStringList& fields) {
  for (int column = 1; column <= kColumns; ++column)
    TypeInto(dialog, MusicField(column), fields.value(column - 1));
}

Texts Fields(const QWidget& dialog) {
  Texts texts;
  for (int column = 1; column <= kColumns; ++column)
    texts.push_back(Find<LineField>(dialog, MusicField(column)).Bytes());
  return texts;
}

Texts Cells(const QWidget& dialog, int row) {
  Texts texts;
  for (int column = 1; column <= kColumns; ++column)
    texts.push_back(MusicGrid(dialog).TextMatrix(row, column));
  return texts;
}

Texts OnlySong(const std::string& song) {
  Texts texts(kColumns);
  texts.front() = song;
  return texts;
}

}  // namespace tavrel::test
