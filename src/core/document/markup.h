#pragma once

#include <string>
#include <string_view>

namespace tavrel {

/// Walks the elements of one tag in the order in which GetTag counts them, once through the text.
/// The text and the tag must outlive the walk.
class TagWalker {
 public:
  /// `tag` is the opening tag, such as "<linkto>".
  TagWalker(std::string_view text, std::string_view tag);

  /// Moves to the next opening tag; false when there is none.
  bool Next();

  /// The content of the element reached; empty if it has none or no closing tag.
  std::string_view Content() const { return content_; }

  /// Where the content begins in the text.
  std::size_t ContentStart() const { return content_start_; }

  /// Next() and Content() in one: empty when there is no further element.
  std::string_view NextContent() { return Next() ? Content() : std::string_view(); }

 private:
  void FindClosing();

  std::string_view text_;
  std::string_view tag_;
  std::string closing_tag_;
  std::string_view content_;
  std::size_t content_start_ = 0;
  std::size_t search_from_ = 0;
  std::size_t closing_ = 0;
};

/// The content of the occurrence-th element that `tag` opens; empty if there is no such element, no
/// closing tag or no content. An opening tag inside another's content counts as an occurrence.
/// Occurrences below 1 mean the first.
std::string GetTag(std::string_view text, std::string_view tag, int occurrence);

/// As GetTag, without a copy: what it gives lies in `text`.
std::string_view TagContent(std::string_view text, std::string_view tag, int occurrence);

/// Replaces the content of the occurrence-th element that `tag` opens; leaves the text alone if the element
/// or its closing tag is missing.
void SetTag(std::string& text, std::string_view value, std::string_view tag, int occurrence);

/// Appends an element: the opening tag, the content and the closing tag.
void AppendTag(std::string& text, std::string_view tag, std::string_view content);

/// "<title>" gives "</title>".
std::string ClosingTag(std::string_view tag);

}  // namespace tavrel
