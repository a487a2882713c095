#include "core/history/document_copy.h"

namespace tavrel::test {
namespace {

constexpr int kFirstMusicLink = 2000;

/// Calls `see` with the number and the record of all that is not empty, in order.
template <typename See>
void SeeRecords(const Global& global, const See& see) {
  int number = 0;
  for (const Record& page : global.Pages) {
    if (!page.empty()) see(number, page.Bytes());
    ++number;
  }
  number = kFirstMusicLink;
  for (const Record& link : global.MusicLinks) {
    if (!link.empty()) see(number, link.Bytes());
    ++number;
  }
}

}  // namespace

DocumentCopy::DocumentCopy(const Global& global) {
  SeeRecords(global, [this](int number, const std::string& bytes) {
    records_.emplace_hint(records_.end(), number, std::string(bytes.begin(), bytes.end()));
  });
}

std::string DocumentCopy::Page(int number) const {
  const auto found = records_.find(number);
  return found == records_.end() ? std::string() : found->second;
}

void DocumentCopy::SetPage(int number, const std::string& bytes) {
  if (bytes.empty()) {
    records_.erase(number);
  } else {
    records_[number] = bytes;
  }
}

bool DocumentCopy::IsIn(const Global& global) const {
  auto expected = records_.begin();
  bool is_same = true;
  SeeRecords(global, [&](int number, const std::string& bytes) {
    is_same = is_same && expected != records_.end() && expected->first == number && expected->second == bytes;
    if (is_same) ++expected;
  });
  return is_same && expected == records_.end();
}

std::string DocumentCopy::Others(const Global& global) const {
  const DocumentCopy other(global);
  std::string told;
  for (int number = 0; number <= kFirstMusicLink + kLastMusicLink; ++number) {
    if (Page(number) == other.Page(number)) continue;
    told += std::to_string(number) + ": [" + other.Page(number) + "] for [" + Page(number) + "]\n";
  }
  return told;
}

}  // namespace tavrel::test
