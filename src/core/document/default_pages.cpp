#include "core/document/default_pages.h"

#include "core/document/markup.h"

namespace tavrel {
namespace {

std::string LinkPair(std::string_view text, std::string_view target) {
  std::string pair;
  AppendTag(pair, "<linktext>", text);
  AppendTag(pair, "<linkto>", target);
  return pair;
}

/// Template pages keep an empty link block where there is nothing to link to.
std::string TemplatePage(std::string_view title, std::string_view text, std::string_view note,
                         std::string_view links) {
  std::string page;
  AppendTag(page, "<title>", title);
  AppendTag(page, "<text>", text);
  AppendTag(page, "<note>", note);
  AppendTag(page, "<link>", links);
  return page;
}

std::string TitlePage(const DefaultPages& chosen) {
  std::string links;
  if (chosen.Contents) links += LinkPair("Contents", "002");
  if (chosen.About) links += LinkPair("About", chosen.Contents ? "003" : "002");
  return TemplatePage("Title", "This is the first page of the document.", "First page of Tavrel", links);
}

}  // namespace

void MakeDefaultPages(Global& global, const DefaultPages& chosen) {
  int next = 1;
  const std::string back = chosen.Title ? LinkPair("Title page", "001") : "";
  if (chosen.Title) global.Page(next++) = TitlePage(chosen);
  if (chosen.Contents) {
    global.Page(next++) =
        TemplatePage("Contents", "Contents page with links to other pages", "Links to documents", back);
  }
  if (chosen.About) {
    // "<p>" becomes a line break when the new document is loaded from its file.
    global.Page(next) = TemplatePage(
        "About", "Enter your name, copyright information etc.<p><p>Created with Tavrel Writer<p>",
        "Creator + copyright", back);
  }
}

}  // namespace tavrel
