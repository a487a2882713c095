#include <algorithm>
#include <cstdint>
#include <gtest/gtest.h>
#include <memory>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "core/check/project_check.h"
#include "core/document/document_file.h"
#include "core/editing/blocks.h"
#include "core/editing/page_commands.h"
#include "core/editing/random_pages.h"
#include "core/editing/search.h"

// A check that goes on while random commands change the project against one that begins anew each time.

namespace tavrel::test {
namespace {

/// All there is in a finding.
std::string Written(const Finding& finding) {
  return std::to_string(finding.Page) + " field " + std::to_string(static_cast<int>(finding.Where)) +
         " link " + std::to_string(finding.Link) + " @" + std::to_string(finding.Position) + "+" +
         std::to_string(finding.Length) + " " + finding.Sentence + (finding.StopsPublishing ? " stops" : "") +
         (finding.CutsNote ? " cuts" : "") + (finding.LeadsNowhere ? " nowhere" : "");
}

std::vector<std::string> Written(const std::vector<Finding>& findings) {
  std::vector<std::string> written;
  for (const Finding& finding : findings) written.push_back(Written(finding));
  return written;
}

/// Those that publishing asks for.
std::vector<Finding> Severe(std::vector<Finding> findings) {
  std::erase_if(findings, [](const Finding& f) { return !f.StopsPublishing && !f.TooManyNotes; });
  return findings;
}

/// Somebody who changes a document in every way.
class AnyCommands {
 public:
  AnyCommands(std::mt19937& random, Global& document) : random_(random), document_(document) {}

  void RunAny() {
    document_.CurrentPage = static_cast<std::int16_t>(AnyPage(random_));
    switch (random_() % 10) {
      case 0:
      case 1:
      case 2:
        document_.Page(document_.CurrentPage) = AnyPageRecord();
        return;
      case 3:
        document_.Page(document_.CurrentPage) +=
            "<text>" + std::string(random_() % 2 == 0 ? 5 : 4090, 'x') + "</text>";
        return;
      case 4:
        document_.Page(AnyPage(random_)) = document_.Page(AnyPage(random_));
        return;
      case 5:
        return RunPageCommand();
      case 6:
        return RunBlockCommand();
      case 7:
        ReplaceInPages(document_, "a", AnyOf<std::string>(random_, {"<c>", ">", "", "\x80"}), false,
                       CodePage::Windows1252());
        return;
      case 8:
        document_.MusicLink(Any(random_, 0, 100)) =
            AnyOf<std::string>(random_, {"", "<album>a</album>", "<notes>n</notes>", "<song>s</song>"});
        return;
      default:
        // Read anew, nothing is shared with what was checked.
        ReadDocumentText(DocumentText(document_), document_);
    }
  }

 private:
  /// Music links mostly name what there can be.
  std::string AnyPageRecord() {
    std::string record = AnyRecord(random_);
    if (random_() % 3 == 0)
      record += "<text>a <b> \x80 > <</text><link><linktext>b</linktext><linkto>" + AnyTarget(random_) +
                "</linkto><linktext>m</linktext><linkto>M" + std::to_string(random_() % 102) +
                "</linkto></link>";
    return record;
  }

  void RunPageCommand() {
    switch (random_() % 6) {
      case 0:
        return InsertPage(document_);
      case 1:
        return CutPage(document_);
      case 2:
        return CopyPage(document_);
      case 3:
        return PastePage(document_);
      case 4:
        return ClearPage(document_);
      default:
        return document_.CurrentPage > 1 ? MovePageUp(document_) : MovePageDown(document_);
    }
  }

  void RunBlockCommand() {
    const int start = AnyPage(random_);
    const int end = std::min(start + Any(random_, 0, 4), kLastPage);
    const int to = AnyPage(random_);
    switch (random_() % 4) {
      case 0:
        if (CanCopyPages(start, end, to)) CopyPages(document_, RangeBetween(start, end), to);
        return;
      case 1:
        return ClearPages(document_, RangeBetween(start, end));
      case 2:
        if (CanDeletePages(start, end))
          DeletePages(document_, RangeBetween(start, end), CodePage::Windows1252());
        return;
      default:
        const int count = Any(random_, 1, 5);
        if (CanInsertPages(start, count)) InsertPages(document_, start, count);
    }
  }

  std::mt19937& random_;
  Global& document_;
};

TEST(RandomRepeatedCheck, FindsAfterEveryCommandWhatAFreshCheckFinds) {
  constexpr int kDocuments = 12;
  constexpr int kCommands = 60;
  std::mt19937 random(10);
  std::size_t found = 0;
  std::size_t stopped = 0;
  for (int document = 0; document < kDocuments; ++document) {
    const auto global = std::make_unique<Global>();
    const auto check = std::make_unique<ProjectCheck>();
    AnyCommands commands(random, *global);
    PublishOptions options;
    for (int command = 0; command < kCommands && !testing::Test::HasFailure(); ++command) {
      commands.RunAny();
      if (random() % 8 == 0)
        options = {.NotesMenuLink = random() % 2 == 0, .BackgroundMusic = random() % 2 == 0};
      const int other_notes = random() % 4 == 0 ? 995 : 0;
      const std::vector<Finding> fresh = CheckProject(*global, CodePage::Windows1252(), options, other_notes);
      ASSERT_EQ(Written(check->Run(*global, CodePage::Windows1252(), options, other_notes)), Written(fresh))
          << "document " << document << ", command " << command;
      found += fresh.size();
      const std::vector<Finding> severe = Severe(fresh);
      ASSERT_EQ(Written(CheckPublishing(*global, CodePage::Windows1252(), other_notes)), Written(severe))
          << "document " << document << ", command " << command;
      stopped += severe.size();
    }
  }
  EXPECT_GT(found, 5000U);
  EXPECT_GT(stopped, 50U);
}

}  // namespace
}  // namespace tavrel::test
