#pragma once

#include <QString>

#include <filesystem>
#include <string>
#include <string_view>

#include "core/text/code_page.h"

namespace tavrel {

/// Bytes of the document as the toolkit's text, one character each.
QString ToText(std::string_view bytes, const CodePage& code_page);

/// The opposite of ToText. Characters that the code page does not hold become "?".
std::string ToBytes(QStringView text, const CodePage& code_page);

/// A file name or path as the toolkit's text.
QString ToText(const std::filesystem::path& path);

/// A path from the toolkit's text.
std::filesystem::path ToPath(const QString& text);

/// Text that is about to enter a field, made fit for it.
struct FittedText {
  QString Text;
  int Replaced = 0;  ///< how many characters became "?"
};

/// Replaces what the code page does not hold by "?". Line breaks of
/// all kinds become `line_break`.
FittedText Fit(QStringView text, const CodePage& code_page, QChar line_break);

/// Whether the text of a key event is something typed, not a control key.
bool IsTypedText(const QString& text);

/// What to tell the user about characters that became "?".
QString ReplacedNotice(int count);

/// Whether Fit would leave the text as it is.
bool IsFit(const QString& text, const CodePage& code_page, QChar line_break);

}  // namespace tavrel
