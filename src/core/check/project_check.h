#pragma once

#include <array>
#include <bitset>
#include <vector>

#include "core/check/finding.h"
#include "core/check/page_check.h"
#include "core/document/global.h"
#include "core/ipod/note_writer.h"
#include "core/text/code_page.h"

namespace tavrel {

/// Finds everything in a project that would go wrong if it were published, again and again while it is being
/// written: only pages that have changed are read again, or all if pages came or went, or music changed.
class ProjectCheck {
 public:
  /// The findings, page by page. `other_notes` will stand beside those of the project.
  std::vector<Finding> Run(const Global& global, const CodePage& code_page, const PublishOptions& options,
                           int other_notes = 0);

 private:
  using Pages = std::bitset<kLastPage + 1>;

  struct CheckedPage {
    Record Bytes;
    PageReport Report;
  };

  /// What the findings of a page depend on besides the page.
  struct Surroundings {
    Pages IsPage;
    std::array<Record, kLastMusicLink + 1> MusicLinks;
    PublishOptions Options;
  };

  void Renew(const Global& global, const PublishOptions& options);
  void CheckPages(const Global& global, const CodePage& code_page);
  Pages ReachedPages() const;
  void AddUnreached(int page, const Pages& reached, std::vector<Finding>& findings) const;
  CheckedPage& At(int page) { return pages_.at(static_cast<std::size_t>(page)); }
  const CheckedPage& At(int page) const { return pages_.at(static_cast<std::size_t>(page)); }

  std::array<CheckedPage, kLastPage + 1> pages_;
  Surroundings surroundings_;
};

/// The same, once.
std::vector<Finding> CheckProject(const Global& global, const CodePage& code_page,
                                  const PublishOptions& options, int other_notes = 0);

/// Of the same only what stops publishing, and that there are too many notes. It takes less time.
std::vector<Finding> CheckPublishing(const Global& global, const CodePage& code_page, int other_notes);

}  // namespace tavrel
