#include "core/check/project_check.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <string>
#include <utility>

#include "core/ipod/device_limits.h"
#include "core/text/run_time_error.h"

namespace tavrel {
namespace {

std::string Bytes(std::size_t count) {
  return count == 1 ? "1 byte" : std::to_string(count) + " bytes";
}

Finding& Add(std::vector<Finding>& findings, int page, Field where, std::string sentence) {
  Finding& finding = findings.emplace_back();
  finding.Page = page;
  finding.Where = where;
  finding.Sentence = std::move(sentence);
  return finding;
}

bool StopsPublishing(const Finding& finding) {
  return finding.StopsPublishing;
}

bool CanBePublished(MusicAddresses& music, int page, const PageParts& parts) {
  try {
    NoteLength(music, page, parts, {});
    return true;
  } catch (const RunTimeError&) {
    return false;
  }
}

void CheckLength(MusicAddresses& music, int page, const PageParts& parts, const PublishOptions& options,
                 PageReport& report) {
  if (std::any_of(report.Findings.begin(), report.Findings.end(), StopsPublishing)) return;
  const std::size_t length = NoteLength(music, page, parts, options);
  if (length <= kShownBytes) return;
  Add(report.Findings, page, Field::Page,
      "The note is " + Bytes(length - kShownBytes) + " too long. An iPod shows the first 4,096.")
      .CutsNote = true;
}

void CheckNumberOfNotes(int notes, std::vector<Finding>& findings) {
  if (notes > kMostNotes)
    Add(findings, 0, Field::Project,
        "There would be " + std::to_string(notes) + " notes. An iPod shows 1,000.")
        .TooManyNotes = true;
}

void CheckUnstored(const Global& global, std::vector<Finding>& findings) {
  if (!global.MusicLink(kLastMusicLink).empty())
    Add(findings, 0, Field::Project, "Music link M100 is not stored in the project's file.");
  if (!global.Page(kLastRecord).empty())
    Add(findings, 0, Field::Project, "A page 1000 is neither stored nor published.");
}

}  // namespace

std::vector<Finding> ProjectCheck::Run(const Global& global, const CodePage& code_page,
                                       const PublishOptions& options, int other_notes) {
  Renew(global, options);
  CheckPages(global, code_page);
  const Pages reached = ReachedPages();
  std::vector<Finding> findings;
  for (int page = 1; page <= kLastPage; ++page) {
    const std::vector<Finding>& found = At(page).Report.Findings;
    findings.insert(findings.end(), found.begin(), found.end());
    AddUnreached(page, reached, findings);
  }
  CheckNumberOfNotes(static_cast<int>(surroundings_.IsPage.count()) + other_notes, findings);
  CheckUnstored(global, findings);
  return findings;
}

/// Forgets all pages if what surrounds them has changed.
void ProjectCheck::Renew(const Global& global, const PublishOptions& options) {
  Surroundings now{{}, global.MusicLinks, options};
  for (int page = 1; page <= kLastPage; ++page)
    now.IsPage[static_cast<std::size_t>(page)] = !global.Page(page).empty();
  const auto shares = [](const Record& one, const Record& other) { return one.Shares(other); };
  const bool is_same =
      now.IsPage == surroundings_.IsPage &&
      std::equal(now.MusicLinks.begin(), now.MusicLinks.end(), surroundings_.MusicLinks.begin(), shares) &&
      now.Options == surroundings_.Options;
  if (!is_same) pages_ = {};
  surroundings_ = std::move(now);
}

void ProjectCheck::CheckPages(const Global& global, const CodePage& code_page) {
  MusicAddresses music(global);
  for (int page = 1; page <= kLastPage; ++page) {
    const Record& bytes = global.Page(page);
    CheckedPage& checked = At(page);
    if (bytes.Shares(checked.Bytes)) continue;
    checked = {bytes, {}};
    if (bytes.empty()) continue;
    const PageParts parts = PartsOf(bytes);
    checked.Report = CheckPage(global, music, page, parts, code_page);
    CheckLength(music, page, parts, surroundings_.Options, checked.Report);
  }
}

/// The pages to which one comes from page 1 on.
ProjectCheck::Pages ProjectCheck::ReachedPages() const {
  Pages reached;
  std::vector<int> ahead;
  const auto reach = [&](int page) {
    auto is_reached = reached[static_cast<std::size_t>(page)];
    if (is_reached) return;
    is_reached = true;
    ahead.push_back(page);
  };
  reach(1);
  while (!ahead.empty()) {
    const int page = ahead.back();
    ahead.pop_back();
    for (const int next : At(page).Report.LeadsTo) reach(next);
  }
  return reached;
}

void ProjectCheck::AddUnreached(int page, const Pages& reached, std::vector<Finding>& findings) const {
  const bool is_page = surroundings_.IsPage[static_cast<std::size_t>(page)];
  if (page == 1 && !is_page && surroundings_.IsPage.any()) {
    Add(findings, page, Field::Page, "The page is empty, so no page is reached from it.");
  } else if (surroundings_.IsPage[1] && is_page && !reached[static_cast<std::size_t>(page)]) {
    Add(findings, page, Field::Page, "No links lead here from page 001.");
  }
}

std::vector<Finding> CheckProject(const Global& global, const CodePage& code_page,
                                  const PublishOptions& options, int other_notes) {
  return std::make_unique<ProjectCheck>()->Run(global, code_page, options, other_notes);
}

std::vector<Finding> CheckPublishing(const Global& global, const CodePage& code_page, int other_notes) {
  std::vector<Finding> findings;
  MusicAddresses music(global);
  int notes = other_notes;
  for (int page = 1; page <= kLastPage; ++page) {
    if (global.Page(page).empty()) continue;
    ++notes;
    const PageParts parts = PartsOf(global.Page(page));
    if (CanBePublished(music, page, parts)) continue;
    const std::vector<Finding> found = CheckPage(global, music, page, parts, code_page).Findings;
    std::copy_if(found.begin(), found.end(), std::back_inserter(findings), StopsPublishing);
  }
  CheckNumberOfNotes(notes, findings);
  return findings;
}

}  // namespace tavrel
