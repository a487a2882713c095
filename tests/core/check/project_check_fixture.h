#pragma once

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "core/check/project_check.h"

namespace tavrel::test {

class ProjectCheckTest : public testing::Test {
 protected:
  /// Page 1 with a title, so that only what a test adds is found.
  void SetUp() override { SetPage(1, ""); }

  void SetPage(int page, const std::string& more) { global_->Page(page) = "<title>T</title>" + more; }
  void SetText(const std::string& text, const std::string& links = "") {
    SetPage(1, "<text>" + text + "</text><link>" + links + "</link>");
  }
  static std::string Link(const std::string& text, const std::string& target) {
    return "<linktext>" + text + "</linktext><linkto>" + target + "</linkto>";
  }

  std::vector<Finding> Findings(PublishOptions options = {}, int other_notes = 0) const {
    return CheckProject(*global_, CodePage::Windows1252(), options, other_notes);
  }

  std::vector<std::string> Sentences() const {
    std::vector<std::string> sentences;
    for (const Finding& finding : Findings()) sentences.push_back(finding.Sentence);
    return sentences;
  }

  void ExpectOne(Field where, int link, std::size_t position, std::size_t length,
                 const std::string& sentence) {
    const std::vector<Finding> findings = Findings();
    ASSERT_EQ(findings.size(), 1U) << testing::PrintToString(Sentences());
    EXPECT_EQ(findings[0].Page, 1);
    EXPECT_EQ(findings[0].Where, where);
    EXPECT_EQ(findings[0].Link, link);
    EXPECT_EQ(findings[0].Position, position);
    EXPECT_EQ(findings[0].Length, length);
    EXPECT_EQ(findings[0].Sentence, sentence);
  }

  void ExpectNothing() { EXPECT_EQ(Sentences(), std::vector<std::string>()); }

  std::unique_ptr<Global> global_ = std::make_unique<Global>();
};

}  // namespace tavrel::test
