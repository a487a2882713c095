#include "ui/ipod/music_editor.h"

#include "core/document/markup.h"
#include "core/text/file_names.h"
#include "core/text/numbers.h"
#include "ui/controls/program_control.h"
#include "ui_music_editor.h"

namespace tavrel {
namespace {

struct Column {
  const char* Heading;
  const char* WidthSample;
};

constexpr int kNameColumn = 0;
constexpr std::array<Column, kMusicFields + 1> kColumns = {{
    {QT_TRANSLATE_NOOP("tavrel::MusicEditor", "Link"), "M0000"},
    {QT_TRANSLATE_NOOP("tavrel::MusicEditor", "Song"), "A LONG SONG TITLE__"},
    {QT_TRANSLATE_NOOP("tavrel::MusicEditor", "Album"), "THE ALBUM NAME__"},
    {QT_TRANSLATE_NOOP("tavrel::MusicEditor", "Composer"), "COMPOSER'S NAME"},
    {QT_TRANSLATE_NOOP("tavrel::MusicEditor", "Artist"), "ARTIST'S NAME"},
    {QT_TRANSLATE_NOOP("tavrel::MusicEditor", "Genre"), "THE GENRE"},
    {QT_TRANSLATE_NOOP("tavrel::MusicEditor", "Playlist"), "PLAYLIST NAME"},
    {QT_TRANSLATE_NOOP("tavrel::MusicEditor", "Notes"), "THESE ARE SOME NOTES"},
}};

/// Column 1 holds the first field.
int ColumnOf(std::size_t field) {
  return static_cast<int>(field) + 1;
}

/// The tags at which a field's text would be taken for something else: its own closing tag and the opening
/// tags of the others.
QStringList TagsThatSpoil(std::size_t field) {
  QStringList tags;
  for (const std::string_view tag : kMusicTags) tags << QString::fromStdString(std::string(tag));
  tags[static_cast<qsizetype>(field)] = QString::fromStdString(ClosingTag(kMusicTags[field]));
  return tags;
}

}  // namespace

MusicEditor::MusicEditor(App& app, QWidget* parent)
    : Dialog(app, parent), ui_(std::make_unique<Ui::MusicEditor>()) {
  ui_->setupUi(this);
  text1_ = {ui_->Text1_1, ui_->Text1_2, ui_->Text1_3, ui_->Text1_4, ui_->Text1_5, ui_->Text1_6, ui_->Text1_7};
  PrepareControls();
  ConnectControls();
  Form_Load();
}

MusicEditor::~MusicEditor() = default;

void MusicEditor::ConnectControls() {
  ProgramControl& control = app_.Control;
  On(control, ui_->MSFlexGrid2, &Grid::Click, this, [this](int row) { MSFlexGrid2_Click(row); });
  On(control, ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  On(control, ui_->Command2, &QPushButton::clicked, this, [this] { Command2_Click(); });
  On(control, ui_->Command3, &QPushButton::clicked, this, [this] { Command3_Click(); });
  On(control, ui_->Command4, &QPushButton::clicked, this, [this] { Command4_Click(); });
  ui_->TagNotice->SetOwner(tr("A music link"));
  for (std::size_t field = 0; field < kMusicFields; ++field) {
    On(control, text1_[field], &LineField::returnPressed, this, [this] { Text1_KeyPress(); });
    ui_->TagNotice->Watch(*text1_[field], TagsThatSpoil(field));
  }
}

void MusicEditor::Form_Load() {
  BuildGrid();
  MSFlexGrid2_Click(1);
  text1_.front()->setFocus();
}

void MusicEditor::BuildGrid() {
  Grid& grid = *ui_->MSFlexGrid2;
  grid.SetCodePage(app_.CodePageInUse());
  grid.SetSize(kLastMusicLink, static_cast<int>(kColumns.size()));
  for (int column = 0; column < static_cast<int>(kColumns.size()); ++column) {
    const Column& look = kColumns[static_cast<std::size_t>(column)];
    grid.SetHeading(column, tr(look.Heading), column == kNameColumn ? Qt::AlignHCenter : Qt::AlignLeft);
    grid.setColumnWidth(column, grid.WidthOf(look.WidthSample));
  }
  for (int link = 1; link <= kLastMusicLink; ++link) {
    grid.SetTextMatrix(link, kNameColumn, MusicLinkName(link));
    SetRow(link, ReadMusicLink(app_.State.MusicLink(link)));
  }
}

void MusicEditor::MSFlexGrid2_Click(int row) {
  const MusicFields fields = Row(row);
  for (std::size_t field = 0; field < kMusicFields; ++field) text1_[field]->SetBytes(fields[field]);
  ui_->MSFlexGrid2->SelectRow(row);
}

void MusicEditor::Text1_KeyPress() {
  Command2_Click();
}

void MusicEditor::Command1_Click() {
  for (int link = 1; link <= kLastMusicLink; ++link)
    app_.State.MusicLink(link).Update(BuildMusicLink(Row(link)));
  accept();
}

void MusicEditor::Command2_Click() {
  MusicFields typed;
  for (std::size_t field = 0; field < kMusicFields; ++field)
    typed[field] = TrimBlanks(text1_[field]->Bytes());
  SetRow(ui_->MSFlexGrid2->Row(), typed);
}

void MusicEditor::Command3_Click() {
  for (LineField* field : text1_) field->clear();
  SetRow(ui_->MSFlexGrid2->Row(), {});
}

void MusicEditor::Command4_Click() {
  reject();
}

MusicFields MusicEditor::Row(int row) const {
  MusicFields fields;
  for (std::size_t field = 0; field < kMusicFields; ++field) {
    fields[field] = ui_->MSFlexGrid2->TextMatrix(row, ColumnOf(field));
  }
  return fields;
}

void MusicEditor::SetRow(int row, const MusicFields& fields) {
  for (std::size_t field = 0; field < kMusicFields; ++field) {
    ui_->MSFlexGrid2->SetTextMatrix(row, ColumnOf(field), fields[field]);
  }
}

}  // namespace tavrel
