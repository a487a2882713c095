#include "ui/controls/line_field.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMetaMethod>
#include <QMimeData>

#include <algorithm>
#include <limits>
#include <memory>

#include "core/text/numbers.h"
#include "ui/controls/focus.h"
#include "ui/controls/replaced_notice.h"
#include "ui/controls/text_conversion.h"

namespace tavrel {
namespace {

constexpr QChar kBlank = u' ';

}  // namespace

LineField::LineField(QWidget* parent) : QLineEdit(parent), code_page_(&CodePage::Windows1252()) {
  // The toolkit would cut a loaded text at 32,767 characters.
  setMaxLength(std::numeric_limits<int>::max());
}

std::string LineField::Bytes() const {
  return ToBytes(text(), *code_page_);
}

void LineField::SetBytes(std::string_view bytes) {
  setText(ToText(bytes, *code_page_));
  setCursorPosition(0);
}

int LineField::Number() const {
  return DecimalNumber(Bytes());
}

int LineField::Anchor() const {
  // The toolkit's own undo may leave a selection from -1 on.
  if (!hasSelectedText() || selectionStart() < 0) return cursorPosition();
  return selectionStart() == cursorPosition() ? selectionEnd() : selectionStart();
}

void LineField::SetCaret(int anchor, int caret) {
  const int end = static_cast<int>(text().size());
  anchor = std::min(anchor, end);
  setCursorPosition(anchor);
  setSelection(anchor, std::min(caret, end) - anchor);
}

bool LineField::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && IsUndoOrRedo(*static_cast<QKeyEvent*>(event)))
    return false;
  return QLineEdit::event(event);
}

void LineField::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Paste)) {
    PasteFitted();
  } else if (IsTypedText(event->text()) && !IsFitForField(event->text())) {
    InsertFitted(event->text());
  } else {
    QLineEdit::keyPressEvent(event);
  }
  emit KeyPress();
}

void LineField::inputMethodEvent(QInputMethodEvent* event) {
  if (IsFitForField(event->commitString())) {
    QLineEdit::inputMethodEvent(event);
    return;
  }
  const FittedText fitted = Fit(event->commitString(), *code_page_, kBlank);
  QInputMethodEvent fitted_event(event->preeditString(), event->attributes());
  fitted_event.setCommitString(fitted.Text, event->replacementStart(), event->replacementLength());
  QLineEdit::inputMethodEvent(&fitted_event);
  TellReplaced(fitted.Replaced);
}

void LineField::mouseReleaseEvent(QMouseEvent* event) {
  QClipboard* clipboard = QApplication::clipboard();
  if (event->button() != Qt::MiddleButton || !clipboard->supportsSelection() || isReadOnly()) {
    QLineEdit::mouseReleaseEvent(event);
    return;
  }
  const QString selection = clipboard->text(QClipboard::Selection);
  setCursorPosition(cursorPositionAt(event->position().toPoint()));
  InsertFitted(selection);
}

void LineField::dropEvent(QDropEvent* event) {
  if (IsFitForField(event->mimeData()->text())) {
    QLineEdit::dropEvent(event);
    return;
  }
  setCursorPosition(cursorPositionAt(event->position().toPoint()));
  InsertFitted(event->mimeData()->text());
  event->setDropAction(Qt::CopyAction);
  event->accept();
}

void LineField::contextMenuEvent(QContextMenuEvent* event) {
  const std::unique_ptr<QMenu> menu(createStandardContextMenu());
  for (QAction* item : menu->actions()) {
    if (!item->text().startsWith(QLineEdit::tr("&Paste"))) continue;
    item->disconnect(this);
    connect(item, &QAction::triggered, this, &LineField::PasteFitted);
  }
  menu->exec(event->globalPos());
}

void LineField::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  if (IsFocusLost(*event)) emit LostFocus();
}

bool LineField::IsFitForField(const QString& text) const {
  return IsFit(text, *code_page_, kBlank);
}

void LineField::InsertFitted(const QString& text) {
  const FittedText fitted = Fit(text, *code_page_, kBlank);
  insert(fitted.Text);
  TellReplaced(fitted.Replaced);
}

void LineField::TellReplaced(int count) {
  if (count == 0) return;
  if (isSignalConnected(QMetaMethod::fromSignal(&LineField::CharactersReplaced))) {
    emit CharactersReplaced(count);
  } else {
    ShowReplacedNotice(*this, count);
  }
}

void LineField::PasteFitted() {
  const QString text = QApplication::clipboard()->text();
  // The toolkit's own paste is a step of its own for Undo.
  if (IsFitForField(text)) {
    paste();
  } else {
    InsertFitted(text);
  }
}

}  // namespace tavrel
