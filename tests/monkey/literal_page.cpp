#include "monkey/literal_page.h"

#include "core/editing/literal_tags.h"
#include "monkey/texts.h"

namespace tavrel::test {
namespace {

constexpr std::array<const char*, 7> kMusic = {"song",  "album",    "composer", "artist",
                                               "genre", "playlist", "notes"};

std::string Element(const std::string& name, const std::string& content) {
  return "<" + name + ">" + content + "</" + name + ">";
}

std::string ElementIfAny(const std::string& name, const std::string& content) {
  return content.empty() ? "" : Element(name, content);
}

/// Windows-1252.
char Capital(char character) {
  const auto byte = static_cast<unsigned char>(character);
  if (byte >= 'a' && byte <= 'z') return static_cast<char>(byte - 32);
  if (byte >= 0xE0 && byte <= 0xFE && byte != 0xF7) return static_cast<char>(byte - 32);
  if (byte == 0x9A || byte == 0x9C || byte == 0x9E) return static_cast<char>(byte - 16);
  return byte == 0xFF ? '\x9F' : character;
}

std::string Capitals(std::string text) {
  for (char& character : text) character = Capital(character);
  return text;
}

/// A number of 16 bits with a sign, with at least three digits.
std::string PageNumber(int number) {
  return number < 0 ? "-" + LiteralFormat(-number) : LiteralFormat(number);
}

bool IsMusic(const std::string& target) {
  return target[0] == 'M' || target[0] == 'm';
}

}  // namespace

PageFields LiteralReadPage(const std::string& record) {
  PageFields fields;
  fields.Title = LiteralGetTag(record, "<title>", 1);
  fields.Note = LiteralGetTag(record, "<note>", 1);
  fields.Body = LiteralGetTag(record, "<text>", 1);
  fields.MusicText = LiteralGetTag(record, "<music>", 1);
  fields.MusicLink = LiteralGetTag(record, "<music>", 2);
  const std::string links = LiteralGetTag(record, "<link>", 1);
  for (int i = 1; i <= 49; ++i) {
    Link& link = fields.Links.at(static_cast<std::size_t>(i) - 1);
    link.Text = LiteralGetTag(links, "<linktext>", i);
    link.Target = LiteralGetTag(links, "<linkto>", i);
  }
  return fields;
}

std::string LiteralBuildPage(const PageFields& fields) {
  std::string page = ElementIfAny("title", Trimmed(fields.Title));
  page += ElementIfAny("note", Trimmed(fields.Note));
  page += ElementIfAny("text", Trimmed(fields.Body));
  std::string links;
  for (const Link& link : fields.Links) {
    std::string target = Trimmed(link.Target);
    if (target.empty()) continue;
    if (!IsMusic(target)) target = PageNumber(LiteralNumber(target));
    links += Element("linktext", Trimmed(link.Text)) + Element("linkto", target);
  }
  page += ElementIfAny("link", links);
  const std::string music = Trimmed(fields.MusicText);
  if (!music.empty()) page += Element("music", music) + Element("music", Trimmed(Capitals(fields.MusicLink)));
  return page;
}

std::array<std::string, 7> LiteralReadMusic(const std::string& record) {
  std::array<std::string, 7> fields;
  for (std::size_t i = 0; i < fields.size(); ++i)
    fields[i] = LiteralGetTag(record, std::string("<") + kMusic[i] + ">", 1);
  return fields;
}

std::string LiteralBuildMusic(const std::array<std::string, 7>& fields) {
  std::string record;
  for (std::size_t i = 0; i < fields.size(); ++i) record += ElementIfAny(kMusic[i], fields[i]);
  return record;
}

int LiteralDecimal(const std::string& text) {
  const std::string digits = Trimmed(text);
  if (digits.empty() || digits.find_first_not_of("0123456789") != std::string::npos) return 0;
  constexpr int kTooLarge = 1000000;
  int number = 0;
  for (const char digit : digits) number = std::min(kTooLarge, number * 10 + (digit - '0'));
  return number;
}

std::string LiteralCleanName(const std::string& typed) {
  std::string name;
  for (const char character : Trimmed(typed)) {
    // No file's name can hold a zero byte.
    const bool goes = std::string("&\\/.?*").find(character) != std::string::npos || character == '\0';
    if (!goes) name += character;
  }
  return name;
}

std::vector<std::string> LiteralDefaultPages(bool title, bool contents, bool about) {
  const auto pair = [](const std::string& text, const std::string& to) {
    return Element("linktext", text) + Element("linkto", to);
  };
  const std::string back = title ? pair("Title page", "001") : "";
  std::vector<std::string> pages;
  if (title) {
    std::string links;
    if (contents) links += pair("Contents", "002");
    if (about) links += pair("About", contents ? "003" : "002");
    pages.push_back(
        "<title>Title</title><text>This is the first page of the document.</text>"
        "<note>First page of Tavrel</note><link>" +
        links + "</link>");
  }
  if (contents) {
    pages.push_back(
        "<title>Contents</title><text>Contents page with links to other pages</text>"
        "<note>Links to documents</note><link>" +
        back + "</link>");
  }
  if (about) {
    pages.push_back(
        "<title>About</title><text>Enter your name, copyright information etc.\r\n\r\n"
        "Created with Tavrel Writer\r\n</text><note>Creator + copyright</note><link>" +
        back + "</link>");
  }
  return pages;
}

}  // namespace tavrel::test
