#include "core/document/markup.h"

#include "core/text/characters.h"

namespace tavrel {
namespace {

/// Finds a tag as text.find(tag, from) does. Records are full of tags that begin alike, so its second and
/// last characters are looked at before the whole is compared.
std::size_t FindTag(std::string_view text, std::string_view tag, std::size_t from) {
  if (tag.size() < 2) return text.find(tag, from);
  std::size_t at = FindNear(text, tag.front(), from);
  while (at != kNotFound && text.size() - at >= tag.size()) {
    if (text[at + 1] == tag[1] && text[at + tag.size() - 1] == tag.back() &&
        text.compare(at, tag.size(), tag) == 0) {
      return at;
    }
    at = text.find(tag.front(), at + 1);
  }
  return kNotFound;
}

std::size_t FindOpening(std::string_view text, std::string_view tag, int occurrence) {
  std::size_t position = FindTag(text, tag, 0);
  for (; occurrence > 1 && position != kNotFound; --occurrence) position = FindTag(text, tag, position + 1);
  return position;
}

}  // namespace

TagWalker::TagWalker(std::string_view text, std::string_view tag)
    : text_(text), tag_(tag), closing_tag_(ClosingTag(tag)) {}

bool TagWalker::Next() {
  content_ = {};
  if (search_from_ == kNotFound) return false;
  const std::size_t opening = FindTag(text_, tag_, search_from_);
  search_from_ = opening == kNotFound ? kNotFound : opening + 1;
  if (opening == kNotFound) return false;

  // The closing tag found for one element serves all that open before it, which keeps the walk linear.
  content_start_ = opening + tag_.size();
  if (closing_ != kNotFound && closing_ < content_start_) FindClosing();
  if (closing_ != kNotFound) content_ = text_.substr(content_start_, closing_ - content_start_);
  return true;
}

void TagWalker::FindClosing() {
  closing_ = FindNear(text_, tag_.front(), content_start_);
  if (closing_ != kNotFound && text_.substr(closing_).starts_with(closing_tag_)) {
    // Nothing opens in between or inside, unless the tag overlaps itself.
    if (closing_tag_.find(tag_.front(), 1) == kNotFound) search_from_ = closing_ + closing_tag_.size();
  } else if (closing_ != kNotFound) {
    closing_ = FindTag(text_, closing_tag_, closing_);
  }
}

std::string GetTag(std::string_view text, std::string_view tag, int occurrence) {
  return std::string(TagContent(text, tag, occurrence));
}

std::string_view TagContent(std::string_view text, std::string_view tag, int occurrence) {
  const std::size_t opening = FindOpening(text, tag, occurrence);
  if (opening == kNotFound) return {};
  const std::size_t start = opening + tag.size();
  const std::size_t end = FindTag(text, ClosingTag(tag), start);
  return end == kNotFound ? std::string_view() : text.substr(start, end - start);
}

void SetTag(std::string& text, std::string_view value, std::string_view tag, int occurrence) {
  const std::size_t opening = FindOpening(text, tag, occurrence);
  if (opening == kNotFound) return;
  const std::size_t start = opening + tag.size();
  const std::size_t end = FindTag(text, ClosingTag(tag), start - 1);
  if (end != kNotFound) text = text.substr(0, start).append(value).append(text, end);
}

void AppendTag(std::string& text, std::string_view tag, std::string_view content) {
  text.append(tag).append(content).append("</").append(tag.substr(1));
}

std::string ClosingTag(std::string_view tag) {
  std::string closing(tag);
  return closing.insert(1, "/");
}

}  // namespace tavrel
