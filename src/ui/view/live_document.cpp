#include "ui/view/live_document.h"

#include <QTimer>

#include <algorithm>
#include <utility>

#include "ui/controls/program_control.h"

namespace tavrel {
namespace {

constexpr int kLookInterval = 250;

template <typename Records>
bool ShareAll(const Records& one, const Records& other) {
  return std::equal(one.begin(), one.end(), other.begin(),
                    [](const Record& a, const Record& b) { return a.Shares(b); });
}

bool IsSame(const Global& one, const Global& other) {
  return one.CurrentPage == other.CurrentPage && ShareAll(one.Pages, other.Pages) &&
         ShareAll(one.MusicLinks, other.MusicLinks);
}

}  // namespace

LiveDocument::LiveDocument(App& app, const Editor& editor, QObject* parent)
    : QObject(parent), app_(app), editor_(editor), timer_(new QTimer(this)) {
  timer_->setObjectName("LookTimer");
  timer_->start(kLookInterval);
  On(app_.Control, timer_, &QTimer::timeout, this, [this] { Look(); });
}

void LiveDocument::Look() {
  const bool is_open = app_.State.IsDocumentInEditor();
  if (!is_open && !is_open_) return;
  Global document = is_open ? WithTyped() : Global();
  if (is_open == is_open_ && IsSame(document, document_)) return;
  is_open_ = is_open;
  document_ = std::move(document);
  emit Changed();
}

Global LiveDocument::WithTyped() {
  Global document = app_.State;
  Record& page = document.Page(document.CurrentPage);
  typed_.Update(editor_.PageToStore());
  if (page != typed_) page = typed_;
  return document;
}

}  // namespace tavrel
