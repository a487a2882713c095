#include "core/document/page_record.h"

#include "core/document/markup.h"
#include "core/text/file_names.h"
#include "core/text/numbers.h"

namespace tavrel {
namespace {

void AppendIfAny(std::string& record, std::string_view tag, std::string_view content) {
  const std::string_view trimmed = TrimBlanks(content);
  if (!trimmed.empty()) AppendTag(record, tag, trimmed);
}

std::string LinkBlock(const std::array<Link, kLastLink>& links) {
  std::string block;
  for (const Link& link : links) {
    const std::string_view target = TrimBlanks(link.Target);
    if (target.empty()) continue;
    AppendTag(block, "<linktext>", TrimBlanks(link.Text));
    AppendTag(block, "<linkto>", NormaliseTarget(target));
  }
  return block;
}

}  // namespace

PageFields ReadPage(std::string_view record) {
  PageFields fields;
  fields.Title = GetTag(record, "<title>", 1);
  fields.Note = GetTag(record, "<note>", 1);
  fields.Body = GetTag(record, "<text>", 1);
  fields.MusicText = GetTag(record, "<music>", 1);
  fields.MusicLink = GetTag(record, "<music>", 2);

  const std::string block = GetTag(record, "<link>", 1);
  TagWalker texts(block, "<linktext>");
  TagWalker targets(block, "<linkto>");
  for (Link& link : fields.Links) {
    link.Text = texts.NextContent();
    link.Target = targets.NextContent();
  }
  return fields;
}

std::string BuildPage(const PageFields& fields, const CodePage& code_page) {
  std::string record;
  AppendIfAny(record, "<title>", fields.Title);
  AppendIfAny(record, "<note>", fields.Note);
  AppendIfAny(record, "<text>", fields.Body);

  const std::string links = LinkBlock(fields.Links);
  if (!links.empty()) AppendTag(record, "<link>", links);

  const std::string_view music_text = TrimBlanks(fields.MusicText);
  if (!music_text.empty()) {
    AppendTag(record, "<music>", music_text);
    AppendTag(record, "<music>", TrimBlanks(code_page.Upper(fields.MusicLink)));
  }
  return record;
}

bool IsMusicTarget(std::string_view target) {
  return target.starts_with('M') || target.starts_with('m');
}

std::string NormaliseTarget(std::string_view target) {
  return IsMusicTarget(target) ? std::string(target) : FormatPage(LeadingDigits(target));
}

}  // namespace tavrel
