#include <QString>

#include <memory>

#include "core/editing/literal_tags.h"
#include "core/text/run_time_error.h"
#include "literal_rules.h"
#include "monkey/literal_page.h"
#include "monkey/model.h"
#include "monkey/texts.h"

// The commands of the File menu.

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;

/// A typed name as it stands in a path.
std::string FileName(const std::string& typed) {
  const std::u32string name = CodePage::Windows1252().Decode(LiteralCleanName(typed));
  return name.empty() ? "" : (QString::fromStdU32String(name) + ".dat").toStdString();
}

/// What the button was pressed on that closed a dialog which asks for a name, or null. Every other try of a
/// name was answered with Cancel.
const Event* NameGiven(const Record& record, const std::string& window) {
  const Event* closed = record.Last(Event::Kind::Closed, window);
  const bool accepted = closed != nullptr && closed->Number == 1;
  const Event* given = nullptr;
  int tries = 0;
  for (const Event& event : record.Events) {
    const bool asks = event.Control == "Command1" || (window == "NewDoc" && event.Control == "Enter:Text1");
    if (event.What != Event::Kind::Pressed || event.Window != window || !asks) continue;
    if (FileName(event.Values.at("Text1")).empty()) continue;
    ++tries;
    given = &event;
  }
  int refused = 0;
  for (const Event& event : record.Events) {
    const bool asked =
        event.What == Event::Kind::Message && event.Control == " File already exists. Overwrite?    ";
    if (asked && event.Number == 0) ++refused;
  }
  Expect(tries - static_cast<int>(accepted) == refused,
         window + " stays open for names that are not overwritten");
  return accepted ? given : nullptr;
}

const std::map<std::string, std::string>& Buttons() {
  static const std::map<std::string, std::string> buttons = {
      {"Image2", "FileNew"},      {"Image3", "FileOpen"},      {"Image4", "FileSave"},
      {"Image11", "ToolsManage"}, {"Image12", "ToolsPublish"}, {"Command4", "EditMusic"}};
  return buttons;
}

}  // namespace

bool Model::MayGoOn(const Record& record, const std::string& question) const {
  Expect((record.MessageOf(question) != nullptr) == !doc_.empty(),
         "it is asked while a document is open: " + question);
  return !record.IsRefused(question);
}

void Model::Clear() {
  for (int page = 1; page <= 999; ++page) Page(page) = "";
  for (std::size_t link = 1; link <= 100; ++link) music_.at(link) = "";
}

void Model::LoadDoc() {
  const auto global = std::make_unique<Global>();
  std::copy(editor_.Pages.begin(), editor_.Pages.end(), global->Pages.begin());
  std::copy(music_.begin(), music_.end(), global->MusicLinks.begin());
  try {
    fuzz::LiteralReadDocument(BytesOf(program_folder_ / doc_), *global);
  } catch (const RunTimeError& error) {
    Break(std::string("a damaged document was opened: ") + error.what());
  }
  std::copy(global->Pages.begin(), global->Pages.end(), editor_.Pages.begin());
  std::copy(global->MusicLinks.begin(), global->MusicLinks.end(), music_.begin());
  RefreshGrid2();
  editor_.CurrentPage = 1;
  LoadPage(1);
  is_other_document_ = true;
}

void Model::ShowResult() {
  if (doc_.empty()) {
    Hide();
    return;
  }
  LoadDoc();
  IsShown = true;
  was_shown_ = true;
  Focus = "Text1";
}

void Model::Hide() {
  IsShown = false;
  is_other_document_ = true;
}

std::string Model::FileText() const {
  std::string text;
  const auto add = [&text](std::size_t number, const std::string& record) {
    if (!record.empty()) text += " " + std::to_string(number) + " ," + record + "\r\n";
  };
  for (std::size_t link = 0; link <= 99; ++link) add(link, music_.at(link));
  text += "\r\n";
  for (std::size_t page = 0; page <= 999; ++page) {
    std::string record = editor_.Pages.at(page);
    for (std::size_t at = 0; (at = record.find("\r\n", at)) != std::string::npos; at += 3)
      record.replace(at, 2, "<p>");
    add(page, record);
  }
  return text;
}

bool Model::RunFileCommand(const std::string& command, const Record& record) {
  const auto button = Buttons().find(command);
  const std::string& name = button == Buttons().end() ? command : button->second;
  const auto refuses = [&](const std::string& message) {
    Expect((record.MessageOf(message) != nullptr) == doc_.empty(), message);
    return doc_.empty();
  };
  if (name == "FileNew") {
    New(record);
  } else if (name == "FileOpen") {
    Open(record);
  } else if (name == "FileSave") {
    if (refuses("Nothing to save!    ")) return true;
    SavePage();
    is_saved_ = true;
    Expect(record.MessageOf("Project saved...    ") != nullptr, "saving is told");
    ExpectSame(BytesOf(program_folder_ / doc_), FileText(), "the file of " + doc_);
  } else if (name == "FileSaveAs") {
    if (refuses("Nothing to save!    ")) return true;
    const Event* given = NameGiven(record, "SaveAs");
    if (given == nullptr) return true;
    doc_ = FileName(given->Values.at("Text1"));
    is_saved_ = true;
    ExpectSame(BytesOf(program_folder_ / doc_), FileText(), "the file of " + doc_);
  } else if (name == "FileClose") {
    if (refuses("Nothing to close!    ") || !MayGoOn(record, "Closing the document")) return true;
    Hide();
    doc_ = "";
    Clear();
  } else if (name == "ToolsImport") {
    Import(record);
  } else if (name == "EditMusic") {
    EditMusic(record);
  } else if (name == "EditProjectPlanner") {
    SavePage();
  } else if (name == "ToolsPublish") {
    if (!refuses("Nothing to publish!    ")) SavePage();
  } else {
    return false;
  }
  return true;
}

void Model::New(const Record& record) {
  if (!MayGoOn(record, "Creating a new document")) return;
  doc_ = "";
  Clear();
  if (const Event* given = NameGiven(record, "NewDoc")) {
    const auto ticked = [&](const char* box) { return given->Values.at(box) == "1"; };
    doc_ = FileName(given->Values.at("Text1"));
    ShowResult();
    const auto pages = LiteralDefaultPages(ticked("Check1"), ticked("Check2"), ticked("Check3"));
    for (int page = 1; page <= 999; ++page) {
      const auto index = static_cast<std::size_t>(page) - 1;
      ExpectSame(Page(page), index < pages.size() ? pages[index] : "", "page of a new document");
    }
    return;
  }
  ShowResult();
}

void Model::Open(const Record& record) {
  if (!MayGoOn(record, "Opening a new document")) return;
  doc_ = "";
  const Event* closed = record.Last(Event::Kind::Closed, "OpenDoc");
  if (closed != nullptr && closed->Number == 1) {
    const Event* pressed = record.Last(Event::Kind::Pressed, "OpenDoc");
    Expect(pressed != nullptr, "the dialog was answered");
    Clear();
    doc_ = pressed->Values.at("List1");
  }
  ShowResult();
}

}  // namespace tavrel::test
