#include <QAction>
#include <QPlainTextEdit>

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "core/editing/page_commands.h"
#include "core/editing/search.h"
#include "core/history/step_recorder.h"
#include "edited_document.h"
#include "open_editor.h"
#include "rows.h"
#include "ui/controls/grid.h"
#include "ui/main/command_steps.h"

namespace tavrel::bench {
namespace {

constexpr int kCommands = 200;
constexpr int kRepetitions = 51;
constexpr int kStride = 137;

/// On every page of the full-size document, many times.
constexpr const char* kOnAllPages = "a while";

/// Measures how long recording takes at both ends of each command. That is all that it costs a command which
/// changes one page: such a command gives the page other bytes and never copies those that a step keeps. The
/// difference between commands with and without recording would drown in how much they differ themselves.
class TimedSteps : public CommandWatch {
 public:
  explicit TimedSteps(OpenEditor& editor) : steps_(editor.Application, editor.Window) {
    // The steps have just made themselves the watch.
    editor.Program.SetWatch(this);
  }

  void Begins() override {
    seconds_ = Seconds([this] { steps_.Begins(); });
  }

  void Ends() override {
    seconds_ += Seconds([this] { steps_.Ends(); });
  }

  /// Of the last command.
  double SecondsTaken() const { return seconds_; }

 private:
  CommandSteps steps_;
  double seconds_ = 0;
};

template <typename Child>
Child& Find(const QObject& parent, const char* name) {
  auto* child = parent.findChild<Child*>(name);
  if (child == nullptr) throw std::runtime_error(std::string("the main window has no ") + name);
  return *child;
}

/// The editor's commands, each time on another page of the same document.
class Recordings {
 public:
  using Command = std::function<void()>;

  Recordings() { editor_.State.PageClipboard = editor_.State.Page(kLastPage); }

  Row Of(const std::string& work, const Command& prepare, const Command& command) {
    const auto recording = [&] {
      Run(prepare, command);
      return steps_.SecondsTaken();
    };
    const auto without = [&] {
      const double seconds = Run(prepare, command);
      return seconds - steps_.SecondsTaken();
    };
    return Compare(work, 0.1, kCommands, recording, without);
  }

  Command Choosing(const char* item) {
    return [this, item] { Find<QAction>(editor_.Window, item).trigger(); };
  }

  void Type() { Find<QPlainTextEdit>(editor_.Window, "Text1").insertPlainText("typed"); }

  void ClickNextPage() {
    emit Find<Grid>(editor_.Window, "MSFlexGrid2").Click(editor_.State.CurrentPage % kLastPage + 1);
  }

 private:
  double Run(const Command& prepare, const Command& command) {
    const int page = (editor_.State.CurrentPage + kStride) % kLastPage + 1;
    editor_.State.Pages = pages_;
    editor_.State.CurrentPage = static_cast<std::int16_t>(page);
    editor_.Window.LoadPage(page);
    prepare();
    QCoreApplication::processEvents();
    return Seconds(command);
  }

  OpenEditor editor_;
  decltype(Global::Pages) pages_ = editor_.State.Pages;
  TimedSteps steps_{editor_};
};

std::vector<Row> OnePageRows() {
  Recordings recordings;
  const auto nothing = [] {};
  const auto type = [&recordings] { recordings.Type(); };
  return {recordings.Of("record Clear page : the command", nothing, recordings.Choosing("EditClear")),
          recordings.Of("record Paste page : the command", nothing, recordings.Choosing("EditPastePage")),
          recordings.Of("record an edit, moving on : the command", type,
                        [&recordings] { recordings.ClickNextPage(); })};
}

Shown PageOne(const Global& global, std::size_t showing) {
  Shown shown;
  shown.Typed = global.Page(1);
  shown.Showing = showing;
  return shown;
}

/// What recording adds to an edit of all pages: besides its own work, the edit has to copy every page first,
/// as the step keeps the bytes from before. The history is full, so that every step makes an old one go.
Row AllPagesRow(const std::string& work, const Edit& edit) {
  EditedDocument document;
  StepRecorder recorder;
  const auto with = [&](Global& global) {
    recorder.Begin(global, PageOne(global, 1));
    edit(global);
    recorder.End(global, PageOne(global, 2));
  };
  return CompareAdded(
      work, 2, kRepetitions, [&] { return document.TimeOf(with); }, [&] { return document.TimeOf(edit); },
      [&] { return document.TimeOfCopyingPages(); });
}

void ReplaceOnAllPages(Global& global) {
  const int pages = ReplaceInPages(global, kOnAllPages, "an hour", true, CodePage::Windows1252());
  if (pages != kLastPage) throw std::runtime_error("the searched text is not on all pages");
}

}  // namespace

std::vector<Row> HistoryRows() {
  KeepFreedMemory();
  std::vector<Row> rows = OnePageRows();
  rows.push_back(AllPagesRow("record inserting at page 1 : copy all pages", InsertPage));
  rows.push_back(AllPagesRow("record replacing everywhere : copy all pages", ReplaceOnAllPages));
  return rows;
}

}  // namespace tavrel::bench
