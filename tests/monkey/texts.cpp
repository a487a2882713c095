#include "monkey/texts.h"

#include <algorithm>
#include <array>
#include <map>
#include <vector>

namespace tavrel::test {
namespace {

const std::vector<QString> kPieces = {"cat",
                                      "Cat",
                                      "dog",
                                      "apple pie",
                                      " ",
                                      "  ",
                                      "a",
                                      "1",
                                      "007",
                                      "999",
                                      "1000",
                                      "-5",
                                      "65541",
                                      "<linkto>",
                                      "</linkto>",
                                      "<linktext>",
                                      "</linktext>",
                                      "<link>",
                                      "</link>",
                                      "<title>",
                                      "</title>",
                                      "<text>",
                                      "</text>",
                                      "<note>",
                                      "</note>",
                                      "<music>",
                                      "</music>",
                                      "<song>",
                                      "</song>",
                                      "<p>",
                                      "</p>",
                                      "<br>",
                                      "<a href=\"",
                                      "<",
                                      ">",
                                      "</a>",
                                      "\"",
                                      "'",
                                      ",",
                                      ";",
                                      "&",
                                      "\\",
                                      "/",
                                      ".",
                                      "..",
                                      "?",
                                      "*",
                                      "%1",
                                      "%",
                                      "ipod:music?song=x",
                                      "caf\u00e9",
                                      "\u00c9T\u00c9",
                                      "\u20ac",
                                      "\u0416",
                                      "\u65e5\u672c",
                                      "\u00a0",
                                      "\u0178",
                                      "\u2026",
                                      QString::fromUcs4(U"\U0001F600", 1),
                                      "e\u0301",
                                      "\u05d0",
                                      "M1",
                                      "m2",
                                      "M100",
                                      "M0",
                                      "\t" + QString(),
                                      "z001.txt"};

/// The characters of the bytes 0x80 to 0x9F; those that stand for no other are 0.
constexpr std::array<char32_t, 32> kMiddle = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                              0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                              0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                              0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

char ByteOf(char32_t character) {
  for (std::size_t i = 0; i < kMiddle.size(); ++i) {
    const char32_t own = kMiddle[i] == 0 ? 0x80 + static_cast<char32_t>(i) : kMiddle[i];
    if (own == character) return static_cast<char>(0x80 + i);
  }
  const bool same = character < 0x80 || (character >= 0xA0 && character <= 0xFF);
  return same ? static_cast<char>(character) : '?';
}

bool IsBreak(char32_t character) {
  return character == '\r' || character == '\n' || character == 0x2028 || character == 0x2029;
}

bool plainly = false;

/// A piece of text to type or paste.
const QString& AnyPiece(Dice& dice) {
  const QString& piece = dice.AnyOf(kPieces);
  const bool is_latin = std::all_of(piece.begin(), piece.end(), [](QChar c) { return c.unicode() < 0x180; });
  return plainly && !is_latin ? kPieces.front() : piece;
}

}  // namespace

void TypePlainly() {
  plainly = true;
}

QString AnyTyped(Dice& dice) {
  QString text;
  for (int left = dice.Between(0, 4); left > 0; --left) {
    const QString& piece = AnyPiece(dice);
    if (piece != "\t") text += piece;
  }
  return text;
}

QString AnyPasted(Dice& dice) {
  static const std::vector<QString> odd = {
      "\r\n", "\n",   "\r",     "\t",    QString(QChar(0)), "\u2028", "\u2029", QString(QChar(0xD800)),
      "\x7f", "\x1b", "\u240D", "\uFEFF"};
  QString text;
  for (int left = dice.Between(0, 6); left > 0; --left)
    text += dice.OneIn(4) && !plainly ? dice.AnyOf(odd) : AnyPiece(dice);
  if (dice.OneIn(12)) text += AnyPiece(dice).repeated(dice.Between(1, 1500));
  return text;
}

QString AnyName(Dice& dice) {
  static const std::vector<QString> names = {"alpha", "Beta", "gamma delta", "caf\u00e9", "my.doc?", "alpha"};
  static const std::vector<QString> odd = {
      "",       "   ", "..", "../../up", "C:\\x",   "a/b",  "&&&", "CON", "nul", QString(300, 'x'),
      "\u65e5", "-rf", "~",  "%s%n",     ".hidden", "a b  "};
  return !plainly && dice.OneIn(5) ? dice.AnyOf(odd) : dice.AnyOf(names);
}

QString AnyNumber(Dice& dice) {
  static const std::vector<QString> odd = {"",       "0",           "000", "1000", "-1",  "x",   "32768",
                                           "65537",  "99999999999", "1.5", "1e2",  " 7 ", "7 7", "0x10",
                                           "\u0663", "998",         "999", "50",   "51"};
  if (dice.OneIn(6)) return dice.AnyOf(odd);
  const int number = dice.OneIn(8) ? dice.Between(1, 999) : dice.Between(1, 12);
  return QString::number(number).rightJustified(dice.OneIn(2) ? 3 : 1, '0');
}

QString AnyTarget(Dice& dice) {
  static const std::vector<QString> odd = {"",         "M1",         "m2",   "M100",  "M007",
                                           "M",        "abc",        "1000", "32766", "65535",
                                           "<linkto>", "5<linkto>6", "-3",   "x5",    "</linkto>"};
  if (plainly) return QString::number(dice.Between(1, 20));
  return dice.OneIn(4) ? dice.AnyOf(odd) : AnyNumber(dice);
}

std::string Kept(const QString& text, const std::string& line_break) {
  std::string kept;
  for (qsizetype at = 0; at < text.size(); ++at) {
    char32_t character = text[at].unicode();
    const bool pair = text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
    if (pair) character = QChar::surrogateToUcs4(text[at], text[at + 1]);
    if (pair) ++at;
    if (character == '\r' && at + 1 < text.size() && text[at + 1] == '\n') ++at;
    if (IsBreak(character)) {
      kept += line_break;
    } else {
      kept += ByteOf(character);
    }
  }
  return kept;
}

std::string Trimmed(const std::string& text) {
  std::size_t first = 0;
  std::size_t end = text.size();
  while (first < end && text[first] == ' ') ++first;
  while (end > first && text[end - 1] == ' ') --end;
  return text.substr(first, end - first);
}

}  // namespace tavrel::test
