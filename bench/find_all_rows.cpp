#include <QCheckBox>
#include <QCoreApplication>
#include <QEvent>

#include <benchmark/benchmark.h>
#include <memory>
#include <stdexcept>
#include <string.h>
#include <string>
#include <string_view>
#include <vector>

#include "core/document/page_parts.h"
#include "core/editing/find_all.h"
#include "edited_document.h"
#include "find_child.h"
#include "open_editor.h"
#include "rows.h"
#include "ui/controls/line_field.h"
#include "ui/controls/row_list.h"
#include "ui/view/find_all_panel.h"
#include "worst.h"

namespace tavrel::bench {
namespace {

constexpr int kSearches = 15;
constexpr double kFrame = 1.0 / 60;

/// On every page, and only on the last one.
constexpr std::string_view kFrequent[] = {"e", "page", "a while"};
constexpr std::string_view kOnLastPage[] = {"page 999,", "9 of page 999"};
constexpr std::string_view kAbsentOrOnce[] = {"z", "e#", "the swan lake", "e on for a while", "page 999,"};

/// Knows when a list was painted with rows in it.
class RowsWatch : public QObject {
 public:
  explicit RowsWatch(RowList& list) : list_(list) { list.viewport()->installEventFilter(this); }

  void WaitForRows() {
    for (are_there_ = false; !are_there_;) QCoreApplication::processEvents();
  }

  bool eventFilter(QObject*, QEvent* event) override {
    are_there_ = are_there_ || (event->type() == QEvent::Paint && list_.model()->rowCount() > 0);
    return false;
  }

 private:
  RowList& list_;
  bool are_there_ = false;
};

/// The panel in a window of its own, searching the full-size document.
class Searching {
 public:
  Searching() {
    panel_.Show(editor_.State);
    panel_.resize(600, 300);
    panel_.show();
    QCoreApplication::processEvents();
  }

  void MatchCase(bool match_case) { FindChild<QCheckBox>(panel_, "MatchCase").setChecked(match_case); }

  double TimeToFirstHits(std::string_view wanted) {
    what_.clear();
    QCoreApplication::processEvents();
    return Seconds([&] {
      what_.setText(QString::fromLatin1(wanted.data(), static_cast<qsizetype>(wanted.size())));
      watch_.WaitForRows();
    });
  }

 private:
  OpenEditor editor_;
  FindAllPanel panel_{editor_.Application};
  LineField& what_ = FindChild<LineField>(panel_, "FindWhat");
  RowsWatch watch_{FindChild<RowList>(panel_, "Hits")};
};

std::string NameOf(std::string_view wanted, bool match_case) {
  return "\"" + std::string(wanted) + "\"" + (match_case ? ", case matched" : ", any case");
}

template <typename Words>
Row FirstHitsRow(const std::string& work, Searching& searching, const Words& words) {
  Worst worst;
  for (const bool match_case : {true, false}) {
    searching.MatchCase(match_case);
    for (const std::string_view wanted : words)
      worst.Add(
          Compare(
              work, 1, kSearches, [&] { return searching.TimeToFirstHits(wanted); }, [] { return kFrame; }),
          NameOf(wanted, match_case));
  }
  return worst.Get();
}

/// What every field holds that is searched.
TextViews SearchedFields(const Global& document) {
  TextViews fields;
  for (int page = 1; page <= kLastPage; ++page) {
    const PageParts parts = PartsOf(document.Page(page));
    fields.insert(fields.end(), {parts.Title, parts.Note, parts.Text, parts.MusicText, parts.MusicLink});
    for (const PageParts::Link& link : parts.Links) fields.insert(fields.end(), {link.Text, link.Target});
  }
  return fields;
}

std::size_t FindAllHits(const Global& document, std::string_view wanted, bool match_case) {
  std::vector<Hit> hits;
  FindAll search(document, wanted, match_case, CodePage::Windows1252());
  while (!search.IsDone()) search.SearchPage(hits);
  benchmark::DoNotOptimize(hits.data());
  return hits.size();
}

/// From hit to hit to the field's end, so that all its bytes are looked at; a text that is not there takes
/// one call.
std::size_t CountByTheLibrary(std::string_view field, std::string_view wanted) {
  std::size_t hits = 0;
  const char* const end = field.data() + field.size();
  for (const char* at = field.data();; ++hits) {
    const void* hit = ::memmem(at, static_cast<std::size_t>(end - at), wanted.data(), wanted.size());
    benchmark::DoNotOptimize(hit);
    if (hit == nullptr) return hits;
    at = static_cast<const char*>(hit) + wanted.size();
  }
}

template <typename Words>
Row ListRow(const std::string& work, bool match_case, const Words& words) {
  const EditedDocument document;
  const TextViews fields = SearchedFields(document.State());
  Worst worst;
  for (const std::string_view wanted : words) {
    std::size_t found = 0;
    std::size_t counted = 0;
    const Row row = Compare(
        work, 4, kSearches,
        [&] { return Seconds([&] { found = FindAllHits(document.State(), wanted, match_case); }); },
        [&] {
          counted = 0;
          return Seconds([&] {
            for (const std::string_view field : fields) counted += CountByTheLibrary(field, wanted);
          });
        });
    if (match_case && found != counted) throw std::runtime_error("the search misses what is there");
    worst.Add(row, "\"" + std::string(wanted) + "\", " + std::to_string(found) + " hits");
  }
  return worst.Get();
}

}  // namespace

std::vector<Row> FindAllRows() {
  KeepFreedMemory();
  Searching searching;
  return {FirstHitsRow("first hits of a frequent text : 60 Hz frame", searching, kFrequent),
          FirstHitsRow("first hit, on the last page : 60 Hz frame", searching, kOnLastPage),
          ListRow("find in all pages, case matched : memmem", true, kAbsentOrOnce),
          ListRow("find in all pages, any case : memmem", false, kAbsentOrOnce),
          ListRow("list all hits, case matched : memmem", true, kFrequent),
          ListRow("list all hits, any case : memmem", false, kFrequent)};
}

}  // namespace tavrel::bench
