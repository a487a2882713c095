#include <algorithm>

#include "core/editing/literal_tags.h"
#include "literal_editing.h"
#include "monkey/literal_page.h"
#include "monkey/model.h"
#include "monkey/texts.h"

// The commands of the Edit menu.

namespace tavrel::test {
namespace {

const Event* Accepted(const Record& record, const std::string& window, const std::string& button) {
  const Event* pressed = record.Last(Event::Kind::Pressed, window);
  const Event* closed = record.Last(Event::Kind::Closed, window);
  const bool accepted = closed != nullptr && closed->Number == 1;
  Expect(!accepted || (pressed != nullptr && pressed->Control == button),
         window + " does its work by its button");
  return accepted ? pressed : nullptr;
}

struct Numbers {
  int First;
  int Second;
  int Third;
};

Numbers NumbersIn(const Event& pressed) {
  const auto number = [&](const std::string& name) {
    const auto value = pressed.Values.find(name);
    return value == pressed.Values.end() ? 0 : LiteralDecimal(value->second);
  };
  return {number("Text1"), number("Text2"), number("Text3")};
}

bool Within(int number, int last) {
  return number >= 1 && number <= last;
}

bool IsFit(const std::string& window, const Numbers& n) {
  if (window == "BlockDelete") return Within(n.First, 998) && Within(n.Second, 999);
  if (window == "BlockInsert") return Within(n.First, 998) && Within(n.Second, 50);
  const bool range = Within(n.First, 999) && Within(n.Second, 999);
  if (window == "BlockClear") return range;
  const bool inside = std::min(n.First, n.Second) <= n.Third && n.Third <= std::max(n.First, n.Second);
  return range && Within(n.Third, 999) && !inside;
}

/// What a command for the current page is called as a step.
std::string PageStep(const std::string& command, int page) {
  const std::string name = "page " + std::to_string(page);
  if (command == "EditDelete" || command == "Image8") return "Cut " + name;
  if (command == "EditPageDeleteIt" || command == "Image15") return "Delete " + name;
  if (command == "EditPastePage" || command == "Image10") return "Paste " + name;
  if (command == "EditClear") return "Clear " + name;
  if (command == "EditInsert") return "Insert " + name;
  if (command == "EditPageUp" || command == "Image13") return "Move " + name + " up";
  if (command == "EditPageDown" || command == "Image14") return "Move " + name + " down";
  return "";
}

std::string BlockStep(const std::string& window, const Numbers& n) {
  const auto pages = [](int first, int last) {
    return first == last ? "page " + std::to_string(first)
                         : "pages " + std::to_string(first) + " to " + std::to_string(last);
  };
  const std::string range = pages(std::min(n.First, n.Second), std::max(n.First, n.Second));
  if (window == "BlockCopy") return "Copy " + range + " to page " + std::to_string(n.Third);
  if (window == "BlockClear") return "Clear " + range;
  if (window == "BlockDelete") return "Delete " + range;
  // What would be behind the last page is not inserted.
  return "Insert " + pages(n.First, std::min(n.First + n.Second - 1, 999));
}

}  // namespace

template <typename Command>
void Model::RunOnPage(Command command) {
  StorePage();
  command();
  Focus = "Text1";
  RefreshGrid2();
  ShowPage();
}

bool Model::Run(const std::string& command, const Record& record) {
  return RunPageCommand(command) || RunLinkCommand(command) || RunSearch(command, record) ||
         RunBlock(command, record) || RunFileCommand(command, record);
}

bool Model::RunPageCommand(const std::string& command) {
  step_name_ = PageStep(command, editor_.CurrentPage);
  if (command == "EditDelete" || command == "EditPageDeleteIt" || command == "Image8" ||
      command == "Image15") {
    RunOnPage([this] { editor_.Cut(); });
  } else if (command == "EditCopyPage" || command == "Image9") {
    StorePage();
    editor_.Copy();
    FocusBody();
  } else if (command == "EditPastePage" || command == "Image10") {
    editor_.Paste();
    RefreshGrid2();
    ShowPage();
  } else if (command == "EditClear") {
    editor_.Clear();
    RefreshGrid2();
    ShowPage();
  } else if (command == "EditInsert") {
    StorePage();
    editor_.Insert();
    Focus = "Text1";
    if (editor_.CurrentPage != 999) RefreshGrid2();
    ShowPage();
  } else if (command == "EditPageUp" || command == "Image13") {
    if (editor_.CurrentPage != 1) RunOnPage([this] { editor_.Up(); });
  } else if (command == "EditPageDown" || command == "Image14") {
    if (editor_.CurrentPage != 999) RunOnPage([this] { editor_.Down(); });
  } else {
    return false;
  }
  return true;
}

bool Model::RunLinkCommand(const std::string& command) {
  const int row = LinkRow;
  const std::string link = "link " + std::to_string(row);
  const std::string page = "page " + std::to_string(editor_.CurrentPage);
  if (command == "EditLinkUp" || command == "Image16") {
    step_name_ = "Move " + link + " up on " + page;
    if (row > 1) SwapLinks(row, row - 1);
  } else if (command == "EditLinkDown" || command == "Image17") {
    step_name_ = "Move " + link + " down on " + page;
    if (row < 49) SwapLinks(row, row + 1);
  } else if (command == "EditLinkDelete" || command == "Image18") {
    step_name_ = "Delete " + link + " of " + page;
    editor_.Fields.Links.at(static_cast<std::size_t>(row) - 1) = {};
    StoreLinks(row);
  } else {
    return false;
  }
  return true;
}

void Model::SwapLinks(int row, int other) {
  auto& links = editor_.Fields.Links;
  std::swap(links.at(static_cast<std::size_t>(row) - 1), links.at(static_cast<std::size_t>(other) - 1));
  StoreLinks(row);
}

void Model::StoreLinks(int row) {
  SavePage();
  ShowPage();
  selected_link_ = row;
}

bool Model::RunSearch(const std::string& command, const Record& record) {
  const bool is_find = command == "EditSearch";
  if (command == "EditFindNext") {
    if (find_text_.empty()) return true;
    SavePage();
    Find(editor_.CurrentPage + 2, record);
    return true;
  }
  if (!is_find && command != "EditReplace") return false;
  const std::string window = is_find ? "FindForm" : "ReplaceForm";
  const Event* closed = record.Last(Event::Kind::Closed, window);
  Expect(closed != nullptr, "the dialog was shown and closed");
  if (is_find) match_case_ = closed->Values.at("Check1") == "1";
  const Event* pressed = Accepted(record, window, "Command1");
  if (pressed == nullptr) return true;
  find_text_ = Trimmed(pressed->Values.at("Text1"));
  if (find_text_.empty()) return true;
  SavePage();
  if (is_find) {
    Find(1, record);
  } else {
    Replace(*pressed);
  }
  return true;
}

void Model::Find(int first_page, const Record& record) {
  const int page = editor_.Find(find_text_, first_page, match_case_).first;
  const bool told = record.MessageOf("Not found!    ") != nullptr;
  Expect(told == (page == 0), "\"Not found!\" is told if, and only if, there is no match");
  if (page == 0) return;
  Expect(page <= 999, "a match on page 1000 ends the program");
  editor_.CurrentPage = page;
  LoadPage(page);
}

void Model::Replace(const Event& pressed) {
  const bool match_case = pressed.Values.at("Check1") == "1";
  int pages = 0;
  for (int page = 1; page <= 1000; ++page) {
    if (Page(page).empty()) continue;
    const std::string text = LiteralGetTag(Page(page), "<text>", 1);
    const auto replaced = fuzz::LiteralReplace(text, find_text_, pressed.Values.at("Text2"), match_case);
    if (replaced) {
      if (*replaced != text) ++pages;
      LiteralSetTag(Page(page), *replaced, "<text>", 1);
    } else {
      NeedsResynchronising = true;
      is_name_known_ = false;
    }
  }
  if (pages == 0) is_name_known_ = false;
  step_name_ = "Replace in " + std::to_string(pages) + (pages == 1 ? " page" : " pages");
  ShowPage();
}

bool Model::RunBlock(const std::string& command, const Record& record) {
  if (!command.starts_with("EditBlock")) return false;
  const std::string window = command == "EditBlockCopy"     ? "BlockCopy"
                             : command == "EditBlockClear"  ? "BlockClear"
                             : command == "EditBlockDelete" ? "BlockDelete"
                                                            : "BlockInsert";
  for (const Event& event : record.Events) {
    const bool tried = event.What == Event::Kind::Pressed && event.Control == "Command2";
    const bool is_last = &event == record.Last(Event::Kind::Pressed, window);
    Expect(!tried || is_last || !IsFit(window, NumbersIn(event)),
           window + " stays open for unfit numbers only");
  }
  const Event* pressed = Accepted(record, window, "Command2");
  const bool works_itself = window == "BlockCopy" || window == "BlockClear";
  if (works_itself) StorePage();
  if (pressed != nullptr) {
    const Numbers n = NumbersIn(*pressed);
    Expect(IsFit(window, n), window + " stays open for unfit numbers");
    if (!works_itself) StorePage();
    step_name_ = BlockStep(window, n);
    if (window == "BlockCopy") editor_.BlockCopy(n.First, n.Second, n.Third);
    if (window == "BlockClear") editor_.BlockClear(n.First, n.Second);
    if (window == "BlockDelete") editor_.BlockDelete(n.First, n.Second);
    if (window == "BlockInsert") editor_.BlockInsert(n.First, n.Second);
  }
  if (!works_itself && pressed == nullptr) return true;
  Focus = "Text1";
  RefreshGrid2();
  ShowPage();
  return true;
}

}  // namespace tavrel::test
