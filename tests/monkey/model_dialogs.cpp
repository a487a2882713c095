#include "core/editing/literal_tags.h"
#include "monkey/literal_page.h"
#include "monkey/model.h"
#include "monkey/texts.h"

// Importing, the music editor and the planner.

namespace tavrel::test {

namespace fs = std::filesystem;

void Model::Import(const Record& record) {
  if (!MayGoOn(record, "Importing a new document")) return;
  doc_ = "";
  const Event* closed = record.Last(Event::Kind::Closed, "Import");
  if (closed == nullptr || closed->Number != 1) {
    Hide();
    return;
  }
  const fs::path folder = closed->Values.at("Dir1");
  std::vector<std::string> names;
  std::vector<std::string> notes;
  std::string name;
  for (const char c : closed->Values.at("File1")) {
    if (c != '\n') {
      name += c;
      continue;
    }
    names.push_back(Kept(QString::fromStdString(name), ""));
    notes.push_back(BytesOf(folder / name));
    name.clear();
  }
  const auto imported = LiteralImport(names, notes);
  Expect(imported.has_value(), "only notes are imported");
  Clear();
  for (std::size_t i = 0; i < imported->Pages.size(); ++i) editor_.Pages.at(i + 1) = imported->Pages[i];
  for (std::size_t i = 0; i < imported->Music.size(); ++i) music_.at(i + 1) = imported->Music[i];
  doc_ = folder.filename().string() + ".dat";
  ExpectSame(BytesOf(program_folder_ / doc_), FileText(), "the file of the imported " + doc_);
  ShowResult();
  int last = 999;
  while (last > 1 && Page(last).empty()) --last;
  const std::string told = " Last page is " + std::to_string(last) + ". Not all pages have titles    ";
  Expect(record.MessageOf(told) != nullptr, "the last page is told:" + told);
}

void Model::EditMusic(const Record& record) {
  step_name_ = "Music links";
  SavePage();
  std::array<std::array<std::string, 7>, 101> rows;
  for (std::size_t m = 1; m <= 100; ++m) rows[m] = LiteralReadMusic(music_[m]);
  bool saved = false;
  for (const Event& event : record.Events) {
    if (event.What != Event::Kind::Pressed || event.Window != "MusicEditor") continue;
    auto& row = rows.at(static_cast<std::size_t>(std::stoi(event.Values.at("MSFlexGrid2"))));
    if (event.Control == "Command2" || event.Control.starts_with("Enter:")) {
      for (std::size_t c = 0; c < 7; ++c) row[c] = Trimmed(event.Values.at("Text1_" + std::to_string(c + 1)));
    }
    if (event.Control == "Command3") row = {};
    if (event.Control == "Command1") saved = true;
  }
  for (std::size_t m = 1; saved && m <= 100; ++m) music_[m] = LiteralBuildMusic(rows[m]);
  editor_.Fields.MusicLink = LiteralGetTag(Page(editor_.CurrentPage), "<music>", 2);
}

void Model::InsertPlan(const Record& record) {
  const Event* pressed = record.Last(Event::Kind::Pressed, "Planner");
  UpdateGrid1();
  SavePage();
  const auto pages = LiteralPlanPages(pressed->Values);
  const Event* question = record.MessageOf("Overwrite pages");
  Expect(pages.has_value() == (question != nullptr), "it is asked before a plan that fits is inserted");
  if (!pages) return;
  const int top = static_cast<int>(LiteralPlanTop(pressed->Values));
  const std::string text =
      "Overwrite pages " + std::to_string(top) + " to " + std::to_string(top + 25) + "?    ";
  ExpectSame(question->Control, text, "the question");
  if (question->Number == 0) return;
  step_name_ = "Insert plan at " + LiteralFormat(top);
  for (int i = 0; i < 25; ++i) Page(top + i) = pages->at(static_cast<std::size_t>(i));
  RefreshGrid2();
  ShowPage();
}

}  // namespace tavrel::test
