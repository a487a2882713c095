#include "ui/controls/text_conversion.h"

#include <QCoreApplication>

#include "core/text/run_time_error.h"

namespace tavrel {
namespace {

/// Takes one character off the front of the text; half a surrogate pair counts as a character of its own.
char32_t TakeCharacter(QStringView& text) {
  const bool pair = text.size() > 1 && text[0].isHighSurrogate() && text[1].isLowSurrogate();
  const char32_t character = pair ? QChar::surrogateToUcs4(text[0], text[1]) : text[0].unicode();
  text = text.mid(pair ? 2 : 1);
  return character;
}

bool IsLineBreak(char32_t character) {
  return character == U'\r' || character == U'\n' || character == QChar::LineSeparator ||
         character == QChar::ParagraphSeparator;
}

}  // namespace

QString ToText(std::string_view bytes, const CodePage& code_page) {
  QString text(static_cast<qsizetype>(bytes.size()), Qt::Uninitialized);
  QChar* out = text.data();
  for (const char byte : bytes) *out++ = QChar(static_cast<char16_t>(code_page.Character(byte)));
  return text;
}

std::string ToBytes(QStringView text, const CodePage& code_page) {
  std::string bytes;
  bytes.reserve(static_cast<std::size_t>(text.size()));
  while (!text.isEmpty()) bytes += code_page.Byte(TakeCharacter(text)).value_or('?');
  return bytes;
}

QString ToText(const std::filesystem::path& path) {
  return QString::fromStdString(PathText(path));
}

std::filesystem::path ToPath(const QString& text) {
  return std::filesystem::path(text.toStdU16String()).make_preferred();
}

FittedText Fit(QStringView text, const CodePage& code_page, QChar line_break) {
  FittedText fitted;
  fitted.Text.reserve(text.size());
  while (!text.isEmpty()) {
    const bool crlf = text.startsWith(u"\r\n");
    const char32_t character = TakeCharacter(text);
    if (IsLineBreak(character)) {
      fitted.Text += line_break;
      if (crlf) text = text.mid(1);
    } else if (code_page.Byte(character)) {
      fitted.Text += QChar(static_cast<char16_t>(character));
    } else {
      fitted.Text += u'?';
      ++fitted.Replaced;
    }
  }
  return fitted;
}

bool IsTypedText(const QString& text) {
  return !text.isEmpty() && text.at(0).category() != QChar::Other_Control;
}

QString ReplacedNotice(int count) {
  if (count == 1)
    return QCoreApplication::translate("Fields", "A character that an iPod note cannot hold became \"?\".");
  return QCoreApplication::translate("Fields", "%1 characters that an iPod note cannot hold became \"?\".")
      .arg(count);
}

bool IsFit(const QString& text, const CodePage& code_page, QChar line_break) {
  return Fit(text, code_page, line_break).Text == text;
}

}  // namespace tavrel
