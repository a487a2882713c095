#include "core/document/markup.h"

namespace tavrel {
namespace {

constexpr auto kNotFound = std::string_view::npos;

std::size_t FindOpening(std::string_view text, std::string_view tag, int occurrence) {
  std::size_t position = text.find(tag);
  for (; occurrence > 1 && position != kNotFound; --occurrence) position = text.find(tag, position + 1);
  return position;
}

}  // namespace

TagWalker::TagWalker(std::string_view text, std::string_view tag)
    : text_(text), tag_(tag), closing_tag_(ClosingTag(tag)) {}

bool TagWalker::Next() {
  content_ = {};
  if (search_from_ == kNotFound) return false;
  const std::size_t opening = text_.find(tag_, search_from_);
  search_from_ = opening == kNotFound ? kNotFound : opening + 1;
  if (opening == kNotFound) return false;

  // The closing tag found for one element serves all that open before it, which keeps the walk linear.
  const std::size_t start = opening + tag_.size();
  if (closing_ != kNotFound && closing_ < start) closing_ = text_.find(closing_tag_, start);
  if (closing_ != kNotFound) content_ = text_.substr(start, closing_ - start);
  return true;
}

std::string GetTag(std::string_view text, std::string_view tag, int occurrence) {
  const std::size_t opening = FindOpening(text, tag, occurrence);
  if (opening == kNotFound) return {};
  const std::size_t start = opening + tag.size();
  const std::size_t end = text.find(ClosingTag(tag), start);
  if (end == kNotFound) return {};
  return std::string(text.substr(start, end - start));
}

void SetTag(std::string& text, std::string_view value, std::string_view tag, int occurrence) {
  const std::size_t opening = FindOpening(text, tag, occurrence);
  if (opening == kNotFound) return;
  const std::size_t start = opening + tag.size();
  const std::size_t end = text.find(ClosingTag(tag), start - 1);
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
