#include "edited_document.h"

#include <benchmark/benchmark.h>
#include <malloc.h>

#include "core/document/markup.h"
#include "ratios.h"
#include "support/full_size_document.h"

namespace tavrel::bench {
namespace {

double TimeOfCopying(const TextViews& texts) {
  std::vector<std::string> copies(texts.size());
  const double seconds = Seconds([&] {
    for (std::size_t i = 0; i < texts.size(); ++i) copies[i] = texts[i];
  });
  benchmark::DoNotOptimize(copies.data());
  benchmark::ClobberMemory();
  return seconds;
}

}  // namespace

void KeepFreedMemory() {
  ::mallopt(M_TRIM_THRESHOLD, 1'000'000'000);
}

EditedDocument::EditedDocument() {
  test::MakeFullSizeDocument(*state_);
  pages_ = state_->Pages;
}

EditedDocument::EditedDocument(const Texts& texts) : EditedDocument() {
  for (int page = 1; page <= kLastPage; ++page) {
    const auto text = static_cast<std::size_t>(page) - 1;
    SetTag(state_->Page(page).Edit(), text < texts.size() ? texts[text] : "", "<text>", 1);
  }
  pages_ = state_->Pages;
}

double EditedDocument::TimeOf(const Edit& edit) {
  for (std::size_t page = 0; page < pages_.size(); ++page) state_->Pages[page] = pages_[page].Bytes();
  state_->CurrentPage = 1;
  state_->PageClipboard.clear();
  const double seconds = Seconds([&] { edit(*state_); });
  benchmark::DoNotOptimize(state_->Pages.data());
  return seconds;
}

double EditedDocument::TimeOfCopyingPages() const {
  return TimeOfCopying({pages_.begin(), pages_.end()});
}

double EditedDocument::TimeOfCopyingTexts() const {
  return TimeOfCopying(PageTexts());
}

TextViews EditedDocument::PageTexts() const {
  TextViews texts;
  for (const std::string& page : pages_) texts.push_back(TagContent(page, "<text>", 1));
  return texts;
}

}  // namespace tavrel::bench
