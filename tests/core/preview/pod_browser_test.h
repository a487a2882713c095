#pragma once

#include <gtest/gtest.h>
#include <memory>
#include <string>

#include "core/preview/pod_browser.h"
#include "core/preview/screen_text.h"

namespace tavrel::test {

inline constexpr int kRows = 4;
inline constexpr const char* kEmptyPage = "|The page is empty, so there is no note of it.";

inline ScreenLayout LayoutOf(int width, int lines) {
  return {width, lines, LetterWidth};
}

/// Somebody with the device and a document of three pages, on a screen of four lines.
class PodBrowserTest : public testing::Test {
 protected:
  void SetUp() override {
    SetPage(1, "Home", "Hello", Link("two", "002") + Link("three", "003"));
    SetPage(2, "Two", "a\r\nb\r\nc\r\nd\r\ne", Link("home", "001"));
    SetPage(3, "Three", "see <it>", Link("it", "002"));
    document_->MusicLink(1) = "<song>Blue</song><artist>Kim</artist>";
    Update();
  }

  static std::string Link(const std::string& words, const std::string& target) {
    return "<linktext>" + words + "</linktext><linkto>" + target + "</linkto>";
  }

  void SetPage(int page, const std::string& title, const std::string& text, const std::string& links) {
    document_->Page(page) = "<title>" + title + "</title><text>" + text + "</text><link>" + links + "</link>";
  }

  void Update(const PublishOptions& options = {}) { browser_.SetDocument(*document_, options); }

  /// Shows page 9, whose only link has the target.
  void StartAtLinkTo(const std::string& target, const PublishOptions& options = {}) {
    SetPage(9, "Nine", "x", Link("go", target));
    Update(options);
    browser_.Start(9);
    ExpectShown("Nine|x|[go]", 9);
  }

  void Turn(int notches) {
    for (; notches > 0; --notches) browser_.TurnForward();
    for (; notches < 0; ++notches) browser_.TurnBack();
  }

  void ExpectShown(const std::string& screen, int page) const {
    EXPECT_EQ(ScreenText(browser_, kRows), screen);
    EXPECT_EQ(browser_.Page(), page);
  }

  void ExpectPress(int page, const std::string& music = "") {
    const Followed followed = browser_.Press();
    EXPECT_EQ(followed.Page, page);
    EXPECT_EQ(followed.Music, music);
  }

  /// Page 2, turned to its end, with page 1 before it.
  void GoToTheEndOfPageTwo() {
    browser_.Start(1);
    ExpectPress(2);
    Turn(2);
    ExpectShown("Two|c|d|e|[home]", 2);
  }

  std::unique_ptr<Global> document_ = std::make_unique<Global>();
  PodBrowser browser_{LayoutOf(12, kRows)};
};

}  // namespace tavrel::test
