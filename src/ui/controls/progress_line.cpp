#include "ui/controls/progress_line.h"

#include "ui/controls/redraw.h"

namespace tavrel {
namespace {

constexpr int kRedrawInterval = 100;  // milliseconds

}  // namespace

ProgressLine::ProgressLine(QWidget* parent) : QProgressBar(parent) {
  QSizePolicy policy = sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  setSizePolicy(policy);
  setMaximumHeight(fontMetrics().height() / 2);
  setTextVisible(false);
  hide();
}

void ProgressLine::Tell(int done, int all) {
  if (!since_redraw_.isValid()) since_redraw_.start();
  setMaximum(all);
  setValue(done);
  show();
  if (since_redraw_.elapsed() < kRedrawInterval) return;
  LetWindowsRedraw();
  since_redraw_.restart();
}

}  // namespace tavrel
