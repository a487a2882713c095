#include "support/full_size_document.h"

#include <string>

#include "core/document/page_record.h"
#include "core/text/numbers.h"

namespace tavrel::test {
namespace {

constexpr std::size_t kTextLength = 3500;
constexpr int kMusicLinks = 99;

std::string Text(int page) {
  std::string text;
  for (int line = 1; text.size() < kTextLength; ++line) {
    text +=
        "Line " + std::to_string(line) + " of page " + FormatPage(page) + ", which goes on for a while.\r\n";
  }
  text.resize(kTextLength - 1);
  while (text.back() == '\r' || text.back() == '\n' || text.back() == ' ') text.back() = '.';
  return text + "!";
}

std::string Page(int page) {
  PageFields fields;
  fields.Title = "Title of page " + FormatPage(page);
  fields.Note = "Note of page " + FormatPage(page);
  fields.Body = Text(page);
  for (int link = 1; link <= kLastLink; ++link) {
    const int target = (page * 7 + link * 13) % kLastPage + 1;
    fields.Links[static_cast<std::size_t>(link) - 1] = {"Go to page " + std::to_string(target),
                                                        FormatPage(target)};
  }
  fields.MusicText = "Listen";
  fields.MusicLink = MusicLinkName(page % kMusicLinks + 1);
  return BuildPage(fields, CodePage::Windows1252());
}

}  // namespace

void MakeFullSizeDocument(Global& global) {
  for (int link = 1; link <= kMusicLinks; ++link) {
    const std::string number = std::to_string(link);
    global.MusicLink(link) = "<song>Song " + number + "</song><artist>Artist " + number + "</artist>";
  }
  for (int page = 1; page <= kLastPage; ++page) global.Page(page) = Page(page);
}

}  // namespace tavrel::test
