#include <QApplication>
#include <QTextBlock>

#include "core/document/document_file.h"
#include "core/text/run_time_error.h"
#include "literal_plan.h"
#include "literal_rules.h"
#include "monkey/literal_page.h"
#include "monkey/monkey.h"
#include "monkey/texts.h"

// What has to hold.

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;

/// Whether the document in a file is the same as in a text.
bool SaysSame(const fs::path& file, const std::string& text) {
  if (!fs::is_regular_file(file)) return false;
  const auto document = std::make_unique<Global>();
  try {
    fuzz::LiteralReadDocument(BytesOf(file), *document);
  } catch (const RunTimeError&) {
    return false;
  }
  return DocumentText(*document) == text;
}

bool IsDamaged(const std::string& document) {
  try {
    fuzz::LiteralReadDocument(document, *std::make_unique<Global>());
    return false;
  } catch (const RunTimeError&) {
    return true;
  }
}

bool IsDamagedPlan(const std::string& plan) {
  try {
    fuzz::LiteralReadPlan(plan);
    return false;
  } catch (const RunTimeError&) {
    return true;
  }
}

/// Whether there is a file whose name goes on where this one's ends, such as "my.notes.dat" for "my.dat": the
/// Backup dialog takes a name up to its first full stop, and finds nothing if that is not in the list.
bool IsNamedByAnother(const fs::path& file) {
  if (file.filename() == "dat" || file.filename() == "bak") return true;
  const std::string start = file.stem().string() + ".";
  for (const fs::directory_entry& entry : fs::directory_iterator(file.parent_path())) {
    const std::string stem = entry.path().stem().string();
    if (stem.starts_with(start)) return true;
  }
  return false;
}

bool CannotBePublished(const Global& global) {
  try {
    for (int page = 1; page <= kLastPage; ++page) fuzz::LiteralNote(global, page, {});
    return false;
  } catch (const RunTimeError&) {
    return true;
  }
}

}  // namespace

void Monkey::FollowText(const std::string& command) {
  const QString left = body_.left(selection_start_);
  const QString selected = body_.mid(selection_start_, selection_end_ - selection_start_);
  const QString right = body_.mid(selection_end_);
  std::string expected;
  const auto bytes = [](const QString& text) {
    QString shown = text;
    return Kept(shown, "\r\n");
  };
  if (command == "EditCut" || command == "Image5" || command == "EditDeleteText") {
    expected = bytes(left + right);
  } else if (command == "EditPaste" || command == "Image7") {
    expected = bytes(left) + Kept(clipboard_, "\r\n") + bytes(right);
  } else {
    return;
  }
  // The pictures that stand for lone line breaks are the field's own affair.
  if (body_.contains(u'\u240A') || body_.contains(u'\u240D')) {
    model_->Observe("Text1", *screen_);
    return;
  }
  ExpectSame(screen_->Body.Bytes(), expected, "the body after " + command);
  model_->Observe("Text1", *screen_);
}

void Monkey::Check() {
  Expect(QApplication::overrideCursor() == nullptr, "no hourglass is left");
  Expect(QApplication::activeModalWidget() == nullptr, "no dialog is left");
  Expect(QApplication::activePopupWidget() == nullptr, "no menu is left");
  Expect(stage_->State().CurrentPage >= 1 && stage_->State().CurrentPage <= kLastPage,
         "the current page is one");
  Expect(fs::current_path() == stage_->ProgramFolder, "the program's folder is the current one");
  if (!model_->IsShown) Expect(screen_->IsCovered(), "the cover is up");
  model_->Compare(stage_->State(), *screen_);
  if (counts_.Actions % 50 == 0) CheckFiles();
}

void Monkey::CheckFiles() {
  for (const fs::directory_entry& entry : fs::directory_iterator(stage_->ProgramFolder)) {
    if (!entry.is_regular_file()) continue;
    const std::string name = entry.path().filename().string();
    const std::string bytes = BytesOf(entry.path());
    Expect(!name.ends_with(".tmp"), "no temporary file is left: " + name);
    const bool is_foreign = foreign_.contains(std::hash<std::string>()(bytes));
    if (name.ends_with(".dat") && !is_foreign) {
      const auto global = std::make_unique<Global>();
      ReadDocumentText(bytes, *global);
      ExpectSame(DocumentText(*global), bytes, "the file " + name + " read and written again");
    }
    if (name.ends_with(".pln") && !is_foreign)
      Expect(!IsDamagedPlan(bytes), "the plan " + name + " can be read");
  }
}

void Monkey::Kill() {
  Note("the program is killed");
  ++counts_.Kills;
  const std::string draft = model_->DraftText(stage_->Window().TypedPage());
  const bool has_draft = model_->IsShown && !SaysSame(stage_->ProgramFolder / model_->Document(), draft);
  Restart(Ending::Killed);
  const std::vector<Recovered>& found = stage_->Run->Found.Documents;
  Expect(stage_->Run->Found.Troubles.empty(), "drafts are brought back without trouble");
  Expect(has_draft || found.empty(), "nothing comes back of a document that was saved");
  if (!has_draft) return;
  ++counts_.Recovered;
  Expect(found.size() == 1, "the draft comes back as one document");
  ExpectSame(BytesOf(found.front().Document), draft, "the document that has come back");
  if (!dice_.OneIn(6)) fs::remove(found.front().Document);
}

void Monkey::CheckPublished(const Event& closed) {
  ++counts_.Published;
  const Global& state = stage_->State();
  const fs::path parent = closed.Values.at("Dir1");
  const std::u32string name = CodePage::Windows1252().Decode(LiteralCleanName(closed.Values.at("Text1")));
  const PublishOptions options{.NotesMenuLink = closed.Values.at("Check1") == "1",
                               .BackgroundMusic = closed.Values.at("Check2") == "1"};
  for (int page = 1; page <= kLastPage; ++page) {
    const fs::path file =
        parent / fs::path(name) / ("z" + QString::number(page).rightJustified(3, '0').toStdString() + ".txt");
    if (state.Page(page).empty() || state.Page(page).size() > 5000) continue;
    ExpectSame(BytesOf(file), fuzz::LiteralNote(state, page, options),
               "the note " + file.filename().string());
  }
}

void Monkey::CheckEnd() {
  const Event& last = stage_->Seen.Events.back();
  if (last.What == Event::Kind::Ended) {
    Note("the program has ended");
    return;
  }
  ++counts_.Failures;
  Remember("the program has failed: " + last.Control);
  Expect(last.What == Event::Kind::Failed, "the program has failed or ended");
  Expect(last.Number == 1, "what fails is told in the program's own words: " + last.Control);
  Expect(IsEarned(last), "the failure has a cause: " + last.Control);
}

bool Monkey::IsEarned(const Event& failure) const {
  const std::string& text = failure.Control;
  const auto tells = [&](const std::string& part) { return text.find(part) != std::string::npos; };
  const fs::path file = text.substr(0, text.find('\n'));
  std::error_code error;
  if (tells("The document is damaged")) return IsDamaged(BytesOf(file));
  if (tells("The plan is damaged")) return IsDamagedPlan(BytesOf(file));
  if (tells("could not be imported")) return !LiteralImport({}, {BytesOf(file)}) || tells("more than 100");
  if (tells("found on page 1000")) return !stage_->State().Page(1000).empty();
  if (tells("publish again")) return CannotBePublished(stage_->State());
  if (faulty_ || tells("File name too long")) return true;
  const fs::file_status status = fs::status(file, error);
  const bool is_tampered = tampered_.contains(file.filename().string());
  if (is_tampered && fs::exists(status) && !fs::is_regular_file(status)) return true;
  if (tells("could not be made")) return fs::exists(status) && !fs::is_directory(status);
  const bool is_protected = (status.permissions() & fs::perms::owner_write) == fs::perms::none;
  if (tells("could not be written")) return fs::exists(status) && is_protected;
  if (tells("could not be read") && !fs::exists(status)) return is_tampered || IsNamedByAnother(file);
  return false;
}

}  // namespace tavrel::test
