#include "core/check/page_check.h"

#include <algorithm>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/check/link_target.h"
#include "core/check/lost_words.h"
#include "core/check/plain_text.h"
#include "core/document/brackets.h"
#include "core/document/page_parts.h"
#include "core/document/page_record.h"
#include "core/document/spoiling_tags.h"
#include "core/text/characters.h"
#include "core/text/file_names.h"
#include "core/text/numbers.h"
#include "core/text/plain_ascii.h"

namespace tavrel {
namespace {

using Kind = LinkTarget::Kind;

constexpr char32_t kLastOfLatin1 = 0xFF;

bool AreBlank(std::string_view words) {
  const bool begins_blank = words.empty() || static_cast<unsigned char>(words.front()) <= ' ';
  return begins_blank && words.find_first_not_of(" \r\n") == kNotFound;
}

std::string Words(std::string_view words) {
  return words.empty() ? "The <" : "<" + PlainAscii(std::string(words)) + ">";
}

/// Looks at one page.
class PageCheck {
 public:
  PageCheck(const Global& global, MusicAddresses& music, int page, const PageParts& parts,
            const CodePage& code_page)
      : global_(global),
        music_(music),
        page_(page),
        code_page_(code_page),
        parts_(parts),
        published_(parts.PublishedLinks()),
        brackets_(BracketsOf(parts.Text)) {
    report_.LeadsTo.reserve(parts.Links.size());
    rows_ = parts.Links;
    if (!parts.AreLinksListed) {
      unlisted_rows_ = ListedLinks(global.Page(page));
      rows_ = unlisted_rows_;
    }
    rows_ = rows_.first(std::min<std::size_t>(rows_.size(), kLastLink));
  }

  PageReport Run() {
    CheckTitle();
    CheckLostWords();
    CheckContent(Field::Title, 0, parts_.Title);
    CheckTags(Field::Note, 0, parts_.Note);
    CheckContent(Field::Text, 0, parts_.Text);
    CheckBrackets();
    CheckLinks();
    CheckMusic();
    return std::move(report_);
  }

 private:
  Finding& Add(Field where, std::string sentence) {
    Finding& finding = report_.Findings.emplace_back();
    finding.Page = page_;
    finding.Where = where;
    finding.Sentence = std::move(sentence);
    return finding;
  }

  void AddAt(Field where, int link, std::size_t position, std::size_t length, std::string sentence) {
    Finding& finding = Add(where, std::move(sentence));
    finding.Link = link;
    finding.Position = position;
    finding.Length = length;
    if (link > 0 && !parts_.AreLinksListed)
      MoveToRow(finding, parts_.Links[static_cast<std::size_t>(link) - 1]);
  }

  /// Links outside of the list of links are published as well, but the editor has no rows for them.
  void MoveToRow(FieldPart& part, const PageParts::Link& culprit) const {
    const auto is_culprit = [&](const PageParts::Link& row) {
      const bool is_of_words = part.Where == Field::LinkText || row.Target.data() == nullptr;
      return is_of_words ? culprit.Text.data() != nullptr && row.Text.data() == culprit.Text.data()
                         : row.Target.data() == culprit.Target.data();
    };
    const auto row = std::find_if(rows_.begin(), rows_.end(), is_culprit);
    if (row == rows_.end()) {
      part = {.Page = page_, .Where = Field::Page};
    } else {
      part.Link = static_cast<int>(row - rows_.begin()) + 1;
    }
  }

  void CheckTitle() {
    if (!parts_.Title.empty()) return;
    Add(Field::Title, page_ == 1 ? "The page has no title, so the Notes menu shows a dash."
                                 : "The page has no title, so the Notes menu shows its file name.");
  }

  void CheckLostWords() {
    const std::string_view record = global_.Page(page_);
    if (IsAsWritten(record, parts_)) return;
    for (const LostWords& lost : FindLostWords(record)) {
      const FieldPart& field = lost.Behind;
      Finding& finding =
          Add(field.Where, lost.Tag.empty() ? "Words that stand in no field are lost."
                                            : "What stands behind " + std::string(lost.Tag) + " is lost.");
      finding.Position = field.Position;
      if (field.Link > 0) MoveToRow(finding, {.Text = lost.Content, .Target = lost.Content});
    }
  }

  /// What is wrong with any text, wherever it stands.
  void CheckContent(Field where, int link, std::string_view content) {
    if (IsPlain(content)) return;
    const auto is_strange = [this](char c) { return code_page_.Character(c) > kLastOfLatin1; };
    const auto strange = std::find_if(content.begin(), content.end(), is_strange);
    if (strange != content.end()) {
      const auto count = std::count_if(strange, content.end(), is_strange);
      AddAt(where, link, static_cast<std::size_t>(strange - content.begin()), 1,
            count == 1 ? "An iPod may not show one of the characters."
                       : "An iPod may not show " + std::to_string(count) + " of the characters.");
    }
    CheckTags(where, link, content);
  }

  void CheckTags(Field where, int link, std::string_view content) {
    constexpr std::size_t kShortestTag = std::string_view("<note>").size();
    if (content.size() < kShortestTag || content.find('<') == kNotFound) return;
    content = OwnContent(where, content);
    for (const std::string_view tag : SpoilingTags(where)) {
      const std::size_t position = content.find(tag);
      if (position != std::string_view::npos)
        AddAt(where, link, position, tag.size(), std::string(tag) + " cannot stand in a page.");
    }
  }

  /// Words of a link are published as they stand, into a tag of their own.
  void CheckLinkWords(Field where, int link, std::string_view words, bool is_published) {
    if (is_published && !words.empty() && AreBlank(words))
      AddAt(where, link, 0, words.size(), "The words are blanks, so nobody sees the link.");
    if (IsPlain(words)) return;
    words = OwnContent(where, words);
    CheckContent(where, link, words);
    const std::size_t bracket = words.find('<');
    if (bracket != std::string_view::npos)
      AddAt(where, link, bracket, 1, "An iPod takes the < for the beginning of a tag.");
  }

  /// Where another link's words or target open within those of one, the rest are that one's, too. They are
  /// looked at once, however many links open within one another.
  static std::string_view OwnContent(Field where, std::string_view content) {
    const std::string_view opening = where == Field::LinkText     ? "<linktext>"
                                     : where == Field::LinkTarget ? "<linkto>"
                                                                  : std::string_view();
    const std::size_t other = opening.empty() ? kNotFound : content.find(opening);
    return other == kNotFound ? content : content.substr(0, other + opening.size());
  }

  void CheckBrackets();
  void CheckInlineLink(std::size_t index);
  void CheckLinks();
  void CheckTarget(Field where, int row, std::string_view target, const LinkTarget& leads, bool is_published);
  void CheckMusic();

  bool IsUsed(std::size_t link) const {
    return link < published_ || (brackets_.AreLinks && link < brackets_.Links.size());
  }

  const Global& global_;
  MusicAddresses& music_;
  int page_;
  const CodePage& code_page_;
  const PageParts& parts_;
  std::size_t published_;
  std::vector<PageParts::Link> unlisted_rows_;  ///< the editor's, if they are not the links of the record
  std::span<const PageParts::Link> rows_;       ///< of the editor
  Brackets brackets_;
  PageReport report_;
};

void PageCheck::CheckBrackets() {
  if (!brackets_.AreLinks) {
    const std::size_t bracket = brackets_.First;
    if (bracket == std::string_view::npos) return;
    const bool has_both = parts_.Text[bracket] == '>' && !brackets_.Links.empty();
    AddAt(Field::Text, 0, bracket, 1,
          has_both ? "The first > comes before the first <, so no words of the text are linked."
                   : "The bracket links nothing; it is published as it stands.");
    return;
  }
  for (std::size_t link = 0; link < brackets_.Links.size(); ++link) CheckInlineLink(link);
  for (const std::size_t closing : brackets_.LoneClosings)
    AddAt(Field::Text, 0, closing, 1, "The > ends no link.");
}

void PageCheck::CheckInlineLink(std::size_t index) {
  const InlineLink& link = brackets_.Links[index];
  const auto add = [&](std::string sentence) {
    AddAt(Field::Text, 0, link.Position, link.Length, std::move(sentence));
  };
  if (!link.IsClosed) add("The < has no > behind it.");
  const std::string number = std::to_string(index + 1);
  if (index >= parts_.Links.size() || parts_.Links[index].Target.empty()) {
    const bool is_there = index < parts_.Links.size() && !parts_.Links[index].Text.empty();
    add(Words(link.Words) + " takes link " + number +
        (is_there ? ", which has no target." : ", which the page does not have."));
    report_.Findings.back().LeadsNowhere = true;
    return;
  }
  const std::string_view words = TrimBlanks(link.Words);
  if (link.IsClosed && AreBlank(words))
    add("Nothing stands between < and >, which take link " + number + ", so nobody sees it.");
  const auto has_words = [words](const PageParts::Link& other) { return other.Text == words; };
  if (AreBlank(words) || has_words(parts_.Links[index])) return;
  // Those that the editor keeps. To look through any number of links for each bracket could take for ever.
  const auto end = parts_.Links.begin() + std::min<std::ptrdiff_t>(std::ssize(parts_.Links), kLastLink);
  const auto other = std::find_if(parts_.Links.begin(), end, has_words);
  if (other == end) return;
  add(Words(link.Words) + " takes link " + number + ", but link " +
      std::to_string(other - parts_.Links.begin() + 1) + " has these words.");
}

void PageCheck::CheckLinks() {
  if (parts_.Links.size() > static_cast<std::size_t>(kLastLink))
    Add(Field::Page, "The page has " + std::to_string(parts_.Links.size()) +
                         " links. The editor keeps 49 when the page is stored.");
  for (std::size_t link = 0; link < parts_.Links.size(); ++link) {
    const int row = static_cast<int>(link) + 1;
    const PageParts::Link& parts = parts_.Links[link];
    CheckLinkWords(Field::LinkText, row, parts.Text, link < published_);
    if (parts.Target.empty()) continue;
    CheckTags(Field::LinkTarget, row, parts.Target);
    const LinkTarget leads = TargetOf(global_, music_, parts.Target);
    if (leads.What != Kind::Page) {
      CheckTarget(Field::LinkTarget, row, parts.Target, leads, IsUsed(link));
    } else if (IsUsed(link)) {
      report_.LeadsTo.push_back(leads.Number);
    }
  }
  if (published_ == parts_.Links.size()) return;
  const std::size_t behind = parts_.Links.size() - published_ - 1;
  const bool lacks_words = parts_.Links[published_].Text.empty();
  const std::string followers = behind == 0   ? "is"
                                : behind == 1 ? "and the link behind it are"
                                              : "and the " + std::to_string(behind) + " links behind it are";
  AddAt(lacks_words ? Field::LinkText : Field::LinkTarget, static_cast<int>(published_) + 1, 0, 0,
        std::string("The link has no ") + (lacks_words ? "words" : "target") + ", so it " + followers +
            " not in the list below the text.");
}

void PageCheck::CheckTarget(Field where, int row, std::string_view target, const LinkTarget& leads,
                            bool is_published) {
  const auto add = [&](std::string sentence) {
    AddAt(where, row, 0, target.size(), std::move(sentence));
    report_.Findings.back().StopsPublishing = leads.What == Kind::ImpossibleMusic && is_published;
    report_.Findings.back().LeadsNowhere = leads.What != Kind::Page && leads.What != Kind::Music &&
                                           leads.What != Kind::ImpossibleMusic && is_published;
  };
  switch (leads.What) {
    case Kind::Page:
      return;
    case Kind::Music:
      if (music_.OfLink(leads.Number).HasQuotationMark)
        return add("A name in music link " + MusicLinkName(leads.Number) +
                   " holds a quotation mark, at which an iPod ends the link.");
      if (music_.OfLink(leads.Number).HasBracket)
        return add("A name in music link " + MusicLinkName(leads.Number) +
                   " holds a >, at which an iPod may end the link.");
      return;
    case Kind::EmptyPage:
      return add("Page " + FormatPage(leads.Number) + " is empty.");
    case Kind::NoPage:
      return add("There can be no page " + Quoted(target) + ".");
    case Kind::NotesMenu:
      return add("The link leads to no page, but to the Notes menu.");
    case Kind::EmptyMusic:
      return add("Music link " + MusicLinkName(leads.Number) +
                 " is empty, so the link leads to the Notes menu.");
    case Kind::ImpossibleMusic:
      return add("There can be no music link " + Quoted(target) +
                 (is_published ? ". Publishing stops here." : "."));
  }
}

void PageCheck::CheckMusic() {
  CheckLinkWords(Field::MusicText, 0, parts_.MusicText, true);
  if (parts_.MusicText.empty()) return;
  if (parts_.MusicLink.empty()) {
    Add(Field::MusicLink, "The music has no music link, so it leads to the Notes menu.").LeadsNowhere = true;
  } else {
    CheckTarget(Field::MusicLink, 0, parts_.MusicLink, MusicTargetOf(music_, parts_.MusicLink), true);
  }
}

}  // namespace

PageReport CheckPage(const Global& global, MusicAddresses& music, int page, const PageParts& parts,
                     const CodePage& code_page) {
  return PageCheck(global, music, page, parts, code_page).Run();
}

}  // namespace tavrel
