#include <QAction>
#include <QPlainTextEdit>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdint>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "core/check/project_check.h"
#include "edited_document.h"
#include "find_child.h"
#include "open_editor.h"
#include "rows.h"
#include "ui/controls/row_list.h"
#include "ui/view/live_document.h"
#include "worst.h"

namespace tavrel::bench {
namespace {

constexpr int kChecks = 25;
constexpr int kPage = 500;
constexpr double kFrame = 1.0 / 60;

Row FullRow() {
  EditedDocument document;
  const Edit check = [](Global& global) {
    benchmark::DoNotOptimize(
        CheckProject(global, CodePage::Windows1252(), {.NotesMenuLink = false, .BackgroundMusic = true}));
  };
  return Compare(
      "check the document : copy all pages", 6, kChecks, [&] { return document.TimeOf(check); },
      [&] { return document.TimeOfCopyingPages(); });
}

/// The editor with the list of problems open, on a page in the middle.
class CheckedEditor {
 public:
  CheckedEditor() {
    FindChild<QAction>(editor_.Window, "ViewCheck").trigger();
    ShowPage();
    if (list_.model()->rowCount() < kLastPage) throw std::runtime_error("the check does not run");
  }

  using Step = std::function<void()>;

  /// What holds the window up longest when the typing is noticed: the looking at it with all that follows at
  /// once, or the painting afterwards.
  double TimeOf(const Step& prepare, const Step& type) {
    editor_.State.Pages = pages_;
    prepare();
    ShowPage();
    type();
    QCoreApplication::processEvents();
    const double looking = Seconds([this] { live_.Look(); });
    return std::max(looking, Seconds([this] { list_.viewport()->repaint(); }));
  }

  Step EmptyPage() {
    return [this] { editor_.State.Page(kPage).clear(); };
  }
  Step Typing() {
    return [this] { text_.insertPlainText("x"); };
  }
  Step TypingLink() {
    return [this] { text_.insertPlainText("<"); };
  }

 private:
  void ShowPage() {
    editor_.State.CurrentPage = kPage;
    editor_.Window.LoadPage(kPage);
    live_.Look();
    QCoreApplication::processEvents();
  }

  OpenEditor editor_;
  decltype(Global::Pages) pages_ = editor_.State.Pages;
  QPlainTextEdit& text_ = FindChild<QPlainTextEdit>(editor_.Window, "Text1");
  RowList& list_ = FindChild<RowList>(editor_.Window, "Findings");
  LiveDocument& live_ = FindChild<LiveDocument>(editor_.Window);
};

/// The first letter on an empty page makes it a page: all others are checked again, as their links may lead
/// to it.
Row TypingRow() {
  CheckedEditor editor;
  Worst worst;
  const auto add = [&](const char* name, const CheckedEditor::Step& prepare,
                       const CheckedEditor::Step& type) {
    worst.Add(Compare(
                  "check while typing, longest : 60 Hz frame", 1, kChecks,
                  [&] { return editor.TimeOf(prepare, type); }, [] { return kFrame; }),
              name);
  };
  add(
      "a letter", [] {}, editor.Typing());
  add(
      "another finding", [] {}, editor.TypingLink());
  add("a new page's first letter", editor.EmptyPage(), editor.Typing());
  return worst.Get();
}

}  // namespace

std::vector<Row> CheckRows() {
  KeepFreedMemory();
  return {FullRow(), TypingRow()};
}

}  // namespace tavrel::bench
