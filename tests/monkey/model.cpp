#include "monkey/model.h"

#include <algorithm>

#include "core/editing/literal_tags.h"
#include "monkey/literal_page.h"
#include "monkey/texts.h"

namespace tavrel::test {
namespace {

template <typename Records, typename Texts>
bool IsSame(const Records& records, const Texts& texts) {
  return std::equal(records.begin(), records.end(), texts.begin());
}

void ExpectSameLink(const Link& actual, const Link& expected, const std::string& what) {
  ExpectSame(actual.Text, expected.Text, "the text of " + what);
  ExpectSame(actual.Target, expected.Target, "the target of " + what);
}

}  // namespace

void Model::Resynchronise(const Global& global, const Screen& screen) {
  std::copy(global.Pages.begin(), global.Pages.end(), editor_.Pages.begin());
  editor_.PageClipboard = global.PageClipboard;
  editor_.CurrentPage = global.CurrentPage;
  editor_.Fields = screen.Fields();
  for (int row = 1; row <= kLastLink; ++row)
    editor_.Fields.Links.at(static_cast<std::size_t>(row) - 1) = screen.LinkAt(row);
  std::copy(global.MusicLinks.begin(), global.MusicLinks.end(), music_.begin());
  doc_ = global.DocPath.string();
  find_text_ = global.FindText;
  entry_ = screen.Entry();
  current_link_ = global.CurrentLink;
  selected_link_ = screen.Links.Row();
  selected_page_ = screen.Pages.Row();
  for (int row = 1; row <= kLastPage; ++row) {
    rows_.at(static_cast<std::size_t>(row)) = {screen.Pages.TextMatrix(row, 1),
                                               screen.Pages.TextMatrix(row, 2),
                                               screen.Pages.CellBackColor(row, 1) == QColor(255, 255, 192)};
  }
  IsShown = !screen.IsCovered();
  // Whatever the fields hold has been shown or stored just now.
  at_first_ = LiteralBuildPage(editor_.Fields);
  record_at_first_ = Page(editor_.CurrentPage);
  untouched_ = at_first_;
}

void Model::ObserveCovered(const Screen& screen) {
  editor_.Fields.Links.at(static_cast<std::size_t>(current_link_) - 1) = screen.LinkAt(current_link_);
  const int page = editor_.CurrentPage;
  rows_.at(static_cast<std::size_t>(page)) = {screen.Pages.TextMatrix(page, 1),
                                              screen.Pages.TextMatrix(page, 2),
                                              screen.Pages.CellBackColor(page, 1) == QColor(255, 255, 192)};
  selected_link_ = screen.Links.Row();
  selected_page_ = screen.Pages.Row();
}

void Model::Compare(const Global& global, const Screen& screen) const {
  for (int page = 0; !IsSame(global.Pages, editor_.Pages) && page <= kLastRecord; ++page) {
    ExpectSame(global.Page(page), editor_.Pages.at(static_cast<std::size_t>(page)),
               "page " + std::to_string(page));
  }
  for (int link = 0; !IsSame(global.MusicLinks, music_) && link <= kLastMusicLink; ++link) {
    ExpectSame(global.MusicLink(link), music_.at(static_cast<std::size_t>(link)),
               "music " + std::to_string(link));
  }
  ExpectSame(global.PageClipboard, editor_.PageClipboard, "the page clipboard");
  ExpectSame(std::to_string(global.CurrentPage), std::to_string(editor_.CurrentPage), "the current page");
  ExpectSame(std::to_string(global.CurrentLink), std::to_string(current_link_), "the current link");
  ExpectSame(global.DocPath.string(), doc_, "the open document");
  ExpectSame(global.FindText, find_text_, "the text searched for");
  Expect(IsShown == !screen.IsCovered(), "the cover is up while no document is open, and only then");
  if (!was_shown_) return;

  const PageFields shown = screen.Fields();
  ExpectSame(shown.Title, editor_.Fields.Title, "the title field");
  ExpectSame(shown.Note, editor_.Fields.Note, "the note field");
  ExpectSame(shown.Body, editor_.Fields.Body, "the body field");
  ExpectSame(shown.MusicText, editor_.Fields.MusicText, "the music text field");
  ExpectSame(shown.MusicLink, editor_.Fields.MusicLink, "the music link field");
  ExpectSameLink(screen.Entry(), entry_, "the link in the entry fields");
  for (int row = 1; row <= kLastLink; ++row) {
    ExpectSameLink(screen.LinkAt(row), editor_.Fields.Links.at(static_cast<std::size_t>(row) - 1),
                   "link row " + std::to_string(row));
  }
  for (int row = 1; row <= kLastPage; ++row) {
    const Row& expected = rows_.at(static_cast<std::size_t>(row));
    const bool same =
        screen.Pages.TextMatrix(row, 1) == expected.Title && screen.Pages.TextMatrix(row, 2) == expected.Note;
    // A full look at every row would take most of the time.
    if (same && row % 37 != selected_page_ % 37) continue;
    const std::string what = " in row " + std::to_string(row) + " of the pages grid";
    ExpectSame(screen.Pages.TextMatrix(row, 0), LiteralFormat(row), "the number" + what);
    ExpectSame(screen.Pages.TextMatrix(row, 1), expected.Title, "the title" + what);
    ExpectSame(screen.Pages.TextMatrix(row, 2), expected.Note, "the note" + what);
    for (const int column : {1, 2}) {
      const QColor colour = expected.IsPage ? QColor(255, 255, 192) : QColor(255, 255, 255);
      Expect(screen.Pages.CellBackColor(row, column) == colour, "the colour" + what);
    }
  }
  if (IsShown) ExpectSame(screen.Window.TypedPage(), TypedPage(), "the page as it would be stored now");
  if (Focus != "MSFlexGrid1")
    ExpectSame(std::to_string(screen.Links.Row()), std::to_string(selected_link_), "the selected link");
  if (Focus != "MSFlexGrid2")
    ExpectSame(std::to_string(screen.Pages.Row()), std::to_string(selected_page_), "the selected page");
}

void Model::Type(const std::string& field, const std::string& bytes) {
  if (field == "Text3") editor_.Fields.Title = bytes;
  if (field == "Text4") editor_.Fields.Note = bytes;
  if (field == "Text1") editor_.Fields.Body = bytes;
  if (field == "Text5") entry_.Text = bytes;
  if (field == "Combo1") entry_.Target = bytes;
  if (field == "Text6") editor_.Fields.MusicText = bytes;
  if (field == "Combo2") editor_.Fields.MusicLink = bytes;
}

std::string Model::Typed(const std::string& field) const {
  if (field == "Text3") return editor_.Fields.Title;
  if (field == "Text4") return editor_.Fields.Note;
  if (field == "Text1") return editor_.Fields.Body;
  if (field == "Text5") return entry_.Text;
  if (field == "Combo1") return entry_.Target;
  if (field == "Text6") return editor_.Fields.MusicText;
  return field == "Combo2" ? editor_.Fields.MusicLink : "";
}

void Model::Observe(const std::string& field, const Screen& screen) {
  const PageFields shown = screen.Fields();
  const Link entry = screen.Entry();
  if (field == "Text3") Type(field, shown.Title);
  if (field == "Text4") Type(field, shown.Note);
  if (field == "Text1") Type(field, shown.Body);
  if (field == "Text5") Type(field, entry.Text);
  if (field == "Combo1") Type(field, entry.Target);
  if (field == "Text6") Type(field, shown.MusicText);
  if (field == "Combo2") Type(field, shown.MusicLink);
}

void Model::LeaveField(const std::string& field) {
  if (field == "Text3" || field == "Text4") UpdateGrid2();
  if (field == "Text5" || field == "Combo1") UpdateGrid1();
}

bool Model::ShowsGrids(const Screen& screen) const {
  const Link shown = screen.LinkAt(current_link_);
  const Link& link = editor_.Fields.Links.at(static_cast<std::size_t>(current_link_) - 1);
  const int page = editor_.CurrentPage;
  const Row& row = rows_.at(static_cast<std::size_t>(page));
  const bool selected = Focus == "MSFlexGrid1" || screen.Links.Row() == selected_link_;
  return selected && shown.Text == link.Text && shown.Target == link.Target &&
         screen.Pages.TextMatrix(page, 1) == row.Title && screen.Pages.TextMatrix(page, 2) == row.Note;
}

void Model::LeaveIfLeft(const std::string& field, const Screen& screen) {
  if (!ShowsGrids(screen)) LeaveField(field);
}

std::string Model::RecordOfFields() const {
  PageFields fields = editor_.Fields;
  fields.Links.at(static_cast<std::size_t>(current_link_) - 1) = entry_;
  return LiteralBuildPage(fields);
}

std::string Model::TypedPage() const {
  std::string typed = RecordOfFields();
  // An untouched page keeps its record, however it is written.
  return typed == untouched_ ? editor_.Pages.at(static_cast<std::size_t>(editor_.CurrentPage)) : typed;
}

std::string Model::TypedPageWith(const std::map<std::string, std::string>& texts) const {
  if (texts.empty()) return TypedPage();
  Model typed(*this);
  for (const auto& [field, text] : texts) typed.Type(field, text);
  return typed.TypedPage();
}

std::string Model::DraftText(const std::string& typed_page) const {
  Model typed(*this);
  typed.Page(editor_.CurrentPage) = typed_page;
  return typed.FileText();
}

void Model::PressEnter(const std::string& field) {
  LeaveField(field);
}

void Model::UpdateGrid1() {
  editor_.Fields.Links.at(static_cast<std::size_t>(current_link_) - 1) = {Trimmed(entry_.Text),
                                                                          Trimmed(entry_.Target)};
  selected_link_ = current_link_;
}

void Model::UpdateGrid2() {
  const int page = editor_.CurrentPage;
  rows_.at(static_cast<std::size_t>(page)) = {editor_.Fields.Title, editor_.Fields.Note, !Page(page).empty()};
  selected_page_ = page;
}

void Model::RefreshGrid2() {
  for (int page = 1; page <= kLastPage; ++page) {
    const std::string& record = Page(page);
    rows_.at(static_cast<std::size_t>(page)) = {LiteralGetTag(record, "<title>", 1),
                                                LiteralGetTag(record, "<note>", 1), !record.empty()};
  }
}

void Model::SavePage() {
  StorePage();
  FocusBody();
}

void Model::StorePage() {
  UpdateGrid2();
  const std::string record = LiteralBuildPage(editor_.Fields);
  editor_.SavePage();
  ExpectSame(Page(editor_.CurrentPage), record, "the record that the fields make");
  untouched_ = record;
  UpdateGrid2();
}

void Model::FocusBody() {
  LeaveField(Focus);
  Focus = "Text1";
}

void Model::LoadPage(int page) {
  editor_.Fields = LiteralReadPage(Page(page));
  entry_ = editor_.Fields.Links.front();
  current_link_ = 1;
  selected_link_ = 1;
  selected_page_ = page;
  at_first_ = LiteralBuildPage(editor_.Fields);
  record_at_first_ = Page(editor_.CurrentPage);
  untouched_ = at_first_;
  ++showing_;
}

void Model::ShowPage() {
  LoadPage(editor_.CurrentPage);
}

void Model::ClickPage(int row) {
  SavePage();
  editor_.CurrentPage = row;
  LoadPage(row);
}

void Model::ClickLink(int row) {
  UpdateGrid1();
  entry_ = editor_.Fields.Links.at(static_cast<std::size_t>(row) - 1);
  current_link_ = row;
  selected_link_ = row;
  Focus = "Text5";
}

}  // namespace tavrel::test
