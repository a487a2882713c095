#include "core/check/project_check.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "core/check/page_check.h"
#include "core/ipod/device_limits.h"
#include "core/text/numbers.h"
#include "core/text/run_time_error.h"

namespace tavrel {
namespace {

std::string Bytes(std::size_t count) {
  return count == 1 ? "1 byte" : std::to_string(count) + " bytes";
}

/// Looks at all pages.
class ProjectCheck {
 public:
  ProjectCheck(const Global& global, const CodePage& code_page, const PublishOptions& options)
      : global_(global), code_page_(code_page), options_(options) {}

  std::vector<Finding> Run(int other_notes) {
    CheckPages();
    FindReachedPages();
    AddUnreachedPages();
    std::stable_sort(findings_.begin(), findings_.end(),
                     [](const Finding& one, const Finding& other) { return one.Page < other.Page; });
    CheckNumberOfNotes(other_notes);
    CheckUnstored();
    return std::move(findings_);
  }

 private:
  void Add(int page, Field where, std::string sentence) {
    Finding& finding = findings_.emplace_back();
    finding.Page = page;
    finding.Where = where;
    finding.Sentence = std::move(sentence);
  }

  void CheckPages() {
    for (int page = 1; page <= kLastPage; ++page) {
      if (global_.Page(page).empty()) continue;
      ++notes_;
      PageReport report = CheckPage(global_, page, code_page_);
      leads_to_.at(static_cast<std::size_t>(page)) = std::move(report.LeadsTo);
      const bool can_be_published =
          std::none_of(report.Findings.begin(), report.Findings.end(),
                       [](const Finding& finding) { return finding.StopsPublishing; });
      std::move(report.Findings.begin(), report.Findings.end(), std::back_inserter(findings_));
      if (can_be_published) CheckLength(page);
    }
  }

  void CheckLength(int page) {
    const std::size_t length = NoteText(global_, page, options_).size();
    if (length <= kShownBytes) return;
    Add(page, Field::Page,
        "The note is " + Bytes(length - kShownBytes) + " too long. An iPod shows the first 4,096.");
  }

  void FindReachedPages() {
    std::vector<int> ahead;
    const auto reach = [&](int page) {
      if (!std::exchange(is_reached_.at(static_cast<std::size_t>(page)), true)) ahead.push_back(page);
    };
    if (!global_.Page(1).empty()) reach(1);
    while (!ahead.empty()) {
      const int page = ahead.back();
      ahead.pop_back();
      for (const int next : leads_to_.at(static_cast<std::size_t>(page))) reach(next);
    }
  }

  void AddUnreachedPages() {
    if (global_.Page(1).empty()) {
      if (notes_ > 0) Add(1, Field::Page, "The page is empty, so no page is reached from it.");
      return;
    }
    for (int page = 1; page <= kLastPage; ++page) {
      if (global_.Page(page).empty() || is_reached_.at(static_cast<std::size_t>(page))) continue;
      Add(page, Field::Page, "No links lead here from page 001.");
    }
  }

  void CheckNumberOfNotes(int other_notes) {
    const int notes = notes_ + other_notes;
    if (notes > kMostNotes)
      Add(0, Field::Project, "There would be " + std::to_string(notes) + " notes. An iPod shows 1,000.");
  }

  void CheckUnstored() {
    if (!global_.MusicLink(kLastMusicLink).empty())
      Add(0, Field::Project, "Music link M100 is not stored in the project's file.");
    if (!global_.Page(kLastRecord).empty())
      Add(0, Field::Project, "A page 1000 is neither stored nor published.");
  }

  const Global& global_;
  const CodePage& code_page_;
  const PublishOptions& options_;
  std::vector<Finding> findings_;
  std::array<std::vector<int>, kLastPage + 1> leads_to_;
  std::array<bool, kLastPage + 1> is_reached_{};
  int notes_ = 0;
};

}  // namespace

std::vector<Finding> CheckProject(const Global& global, const CodePage& code_page,
                                  const PublishOptions& options, int other_notes) {
  return ProjectCheck(global, code_page, options).Run(other_notes);
}

}  // namespace tavrel
