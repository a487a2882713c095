#include "ui/controls/body_field.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMetaMethod>
#include <QMimeData>
#include <QTextBlock>

#include <algorithm>
#include <memory>

#include "ui/controls/replaced_notice.h"
#include "ui/controls/text_conversion.h"

namespace tavrel {
namespace {

constexpr QChar kLineFeed = u'\n';

// The text box takes a lone CR or LF for a line break of its own, so it is given their pictures instead,
// which no code page holds.
constexpr QChar kPictureOfCr = u'\u240D';
constexpr QChar kPictureOfLf = u'\u240A';

QString ShownText(std::string_view bytes, const CodePage& code_page) {
  QString text = ToText(bytes, code_page);
  text.replace("\r\n", QString(QChar::ParagraphSeparator));
  text.replace(u'\r', kPictureOfCr);
  text.replace(u'\n', kPictureOfLf);
  return text;
}

QString WithoutPictures(QString text) {
  text.replace(kPictureOfCr, u'\r');
  text.replace(kPictureOfLf, u'\n');
  return text;
}

/// Whether a text holds a word so long that looking for a place to break it would take the layout minutes.
/// No-break spaces belong to their word.
bool HasEndlessWord(const QString& text) {
  constexpr qsizetype kEndless = 2000;
  qsizetype length = 0;
  for (const QChar c : text) {
    const bool breaks = c.isSpace() && c != QChar::Nbsp;
    length = breaks ? 0 : length + 1;
    if (length > kEndless) return true;
  }
  return false;
}

}  // namespace

BodyField::BodyField(QWidget* parent) : QPlainTextEdit(parent), code_page_(&CodePage::Windows1252()) {}

std::string BodyField::Bytes() const {
  // The document's own plain text would turn no-break spaces into blanks.
  std::string bytes;
  bytes.reserve(static_cast<std::size_t>(Length()));
  for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
    if (block.blockNumber() > 0) bytes += "\r\n";
    bytes += ToBytes(WithoutPictures(block.text()), *code_page_);
  }
  return bytes;
}

void BodyField::SetBytes(std::string_view bytes) {
  const QString text = ShownText(bytes, *code_page_);
  const auto wrap =
      HasEndlessWord(text) ? QTextOption::WrapAnywhere : QTextOption::WrapAtWordBoundaryOrAnywhere;
  if (wrap != wordWrapMode()) {
    clear();
    setWordWrapMode(wrap);
  }
  setPlainText(text);
}

int BodyField::Length() const {
  return document()->characterCount() - 1 + document()->blockCount() - 1;
}

void BodyField::Select(std::size_t position, std::size_t length) {
  QTextCursor cursor = textCursor();
  cursor.setPosition(CursorPosition(position));
  cursor.setPosition(CursorPosition(position + length), QTextCursor::KeepAnchor);
  setTextCursor(cursor);
  ensureCursorVisible();
}

void BodyField::SetCaret(int anchor, int caret) {
  const int end = document()->characterCount() - 1;
  QTextCursor cursor = textCursor();
  cursor.setPosition(std::min(anchor, end));
  cursor.setPosition(std::min(caret, end), QTextCursor::KeepAnchor);
  setTextCursor(cursor);
  ensureCursorVisible();
}

int BodyField::CursorPosition(std::size_t byte) const {
  const int last = document()->characterCount() - 1;
  const int bytes = static_cast<int>(std::min(byte, static_cast<std::size_t>(Length())));
  int line_breaks = 0;
  for (QTextBlock block = document()->begin().next(); block.isValid(); block = block.next()) {
    // A line begins behind the line feeds that the cursor does not count.
    if (block.position() + line_breaks + 1 > bytes) break;
    ++line_breaks;
  }
  return std::min(bytes - line_breaks, last);
}

QString BodyField::SelectedText() const {
  QString text = textCursor().selectedText();
  text.replace(QChar::ParagraphSeparator, kLineFeed);
  return WithoutPictures(text);
}

bool BodyField::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && IsUndoOrRedo(*static_cast<QKeyEvent*>(event)))
    return false;
  return QPlainTextEdit::event(event);
}

void BodyField::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::InsertLineSeparator)) {
    textCursor().insertBlock();
    ensureCursorVisible();
  } else if (IsTypedText(event->text()) && !IsFit(event->text(), *code_page_, kLineFeed)) {
    ReplaceSelection(event->text());
  } else {
    QPlainTextEdit::keyPressEvent(event);
  }
}

void BodyField::inputMethodEvent(QInputMethodEvent* event) {
  if (IsFit(event->commitString(), *code_page_, kLineFeed)) {
    QPlainTextEdit::inputMethodEvent(event);
    return;
  }
  const FittedText fitted = Fit(event->commitString(), *code_page_, kLineFeed);
  QInputMethodEvent fitted_event(event->preeditString(), event->attributes());
  fitted_event.setCommitString(fitted.Text, event->replacementStart(), event->replacementLength());
  QPlainTextEdit::inputMethodEvent(&fitted_event);
  TellReplaced(fitted.Replaced);
}

void BodyField::insertFromMimeData(const QMimeData* source) {
  if (source->hasText()) ReplaceSelection(source->text());
}

bool BodyField::canInsertFromMimeData(const QMimeData* source) const {
  return source->hasText();
}

QMimeData* BodyField::createMimeDataFromSelection() const {
  auto mime = std::make_unique<QMimeData>();
  mime->setText(SelectedText());
  return mime.release();
}

void BodyField::ReplaceSelection(const QString& text) {
  const FittedText fitted = Fit(text, *code_page_, kLineFeed);
  if (HasEndlessWord(fitted.Text)) setWordWrapMode(QTextOption::WrapAnywhere);
  textCursor().insertText(fitted.Text);
  if (HasEndlessWord(textCursor().block().text())) setWordWrapMode(QTextOption::WrapAnywhere);
  ensureCursorVisible();
  TellReplaced(fitted.Replaced);
}

void BodyField::TellReplaced(int count) {
  if (count == 0) return;
  if (isSignalConnected(QMetaMethod::fromSignal(&BodyField::CharactersReplaced))) {
    emit CharactersReplaced(count);
  } else {
    ShowReplacedNotice(*this, count);
  }
}

}  // namespace tavrel
