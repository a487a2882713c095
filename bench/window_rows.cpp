#include <QApplication>
#include <QEvent>
#include <QPlainTextEdit>

#include <memory>
#include <stdexcept>
#include <vector>

#include "open_editor.h"
#include "rows.h"
#include "ui/ipod/music_editor.h"
#include "ui/shell/recovery_keeper.h"

namespace tavrel::bench {
namespace {

constexpr int kMoves = 200;
constexpr int kOpenings = 50;
constexpr int kStride = 137;
constexpr double kFrame = 1.0 / 60;

/// Knows when a widget was painted last.
class PaintWatch : public QObject {
 public:
  explicit PaintWatch(QWidget& widget) { widget.installEventFilter(this); }

  /// Lets events run until the widget is painted.
  void WaitForPaint() {
    while (!painted_) QCoreApplication::processEvents();
    painted_ = false;
  }

  void Forget() { painted_ = false; }

  bool eventFilter(QObject*, QEvent* event) override {
    painted_ = painted_ || event->type() == QEvent::Paint;
    return false;
  }

 private:
  bool painted_ = false;
};

double TimeMove(OpenEditor& editor, PaintWatch& body) {
  const int page = (editor.State.CurrentPage + kStride) % kLastPage + 1;
  QCoreApplication::processEvents();
  body.Forget();
  return Seconds([&] {
    editor.Window.SavePage();
    editor.State.CurrentPage = static_cast<std::int16_t>(page);
    editor.Window.LoadPage(page);
    body.WaitForPaint();
    QCoreApplication::processEvents();
  });
}

double TimeMusicEditor(OpenEditor& editor) {
  QCoreApplication::processEvents();
  std::unique_ptr<MusicEditor> dialog;
  const double seconds = Seconds([&] {
    dialog = std::make_unique<MusicEditor>(editor.Application, &editor.Window);
    PaintWatch watch(*dialog);
    dialog->show();
    watch.WaitForPaint();
    QCoreApplication::processEvents();
  });
  return seconds;
}

/// What keeping a changed draft costs the window; the rest is done on another thread.
double TimeDraft(OpenEditor& editor, RecoveryKeeper& keeper) {
  editor.State.Page(kLastPage) += ' ';
  const double seconds = Seconds([&] { keeper.Look(); });
  keeper.WaitUntilKept();
  return seconds;
}

}  // namespace

std::vector<Row> WindowRows() {
  OpenEditor editor;
  auto* body = editor.Window.findChild<QPlainTextEdit*>("Text1");
  if (body == nullptr) throw std::runtime_error("the main window has no page text");
  PaintWatch watch(*body->viewport());
  RecoveryKeeper keeper(editor.Application, editor.Folder.Path() / "draft.recovery",
                        [&editor] { return editor.Window.TypedPage(); });
  const auto frame = [] { return kFrame; };
  return {Compare(
              "store a page, show another : 60 Hz frame", 0.5, kMoves,
              [&] { return TimeMove(editor, watch); }, frame),
          Compare(
              "open the Music Editor : 60 Hz frame", 1, kOpenings, [&] { return TimeMusicEditor(editor); },
              frame),
          Compare(
              "take a draft to be kept : 60 Hz frame", 1, kOpenings,
              [&] { return TimeDraft(editor, keeper); }, frame)};
}

}  // namespace tavrel::bench
