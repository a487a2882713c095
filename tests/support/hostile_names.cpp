#include "support/hostile_names.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace tavrel::test {
namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;

/// A part of a name and what cleaning leaves of it. None has a blank at an end, but for the blank itself.
struct Piece {
  std::string_view Typed;
  std::string_view Left;
};

constexpr std::string_view kBlank = " ";

constexpr Piece kPieces[] = {
    {"/", ""},
    {"\\", ""},
    {".", ""},
    {"..", ""},
    {"../", ""},
    {"..\\", ""},
    {"?", ""},
    {"*", ""},
    {"&", ""},
    {"\0"sv, ""},
    {kBlank, kBlank},
    {kBlank, kBlank},
    {"/etc/passwd", "etcpasswd"},
    {"elsewhere", "elsewhere"},
    {"kept.txt", "kepttxt"},
    {"NUL", "NUL"},
    {"con", "con"},
    {"COM1", "COM1"},
    {"C:", "C:"},
    {"~", "~"},
    {"-", "-"},
    {"$HOME", "$HOME"},
    {"%s%n", "%s%n"},
    {"`id`", "`id`"},
    {";|<>\"'", ";|<>\"'"},
    {"\n", "\n"},
    {"\r\n", "\r\n"},
    {"\t", "\t"},
    {"\x01", "\x01"},
    {"\x7F", "\x7F"},
    {"\x80", "\xE2\x82\xAC"},
    {"\x81", "\xC2\x81"},
    {"\x85", "\xE2\x80\xA6"},
    {"\xA0", "\xC2\xA0"},
    {"\xE9", "\xC3\xA9"},
    {"\xFF", "\xC3\xBF"},
    {".dat", "dat"},
    {".pln", "pln"},
    {"z001.txt", "z001txt"},
    {"a", "a"},
    {"Guide", "Guide"},
};

/// Puts the pieces together: blanks at the ends go first, then what cleaning removes.
HostileName Made(const std::vector<Piece>& pieces) {
  HostileName name;
  std::size_t first = 0;
  std::size_t end = pieces.size();
  while (first < end && pieces[first].Typed == kBlank) ++first;
  while (first < end && pieces[end - 1].Typed == kBlank) --end;
  for (const Piece& piece : pieces) name.Typed += piece.Typed;
  for (std::size_t i = first; i < end; ++i) name.Left += pieces[i].Left;
  return name;
}

std::string Times(int count, std::string_view text) {
  std::string result;
  for (int i = 0; i < count; ++i) result += text;
  return result;
}

}  // namespace

std::vector<HostileName> HostileNames() {
  std::vector<HostileName> names = {
      {"", ""},
      {"   ", ""},
      {". . .", "  "},
      {" .. ", ""},
      {"? ?", " "},
      {"../..", ""},
      {"/etc/passwd", "etcpasswd"},
      {"../elsewhere/kept.txt", "elsewherekepttxt"},
      {"..\\elsewhere\\kept", "elsewherekept"},
      {"C:\\x", "C:x"},
      {"a. ", "a"},
      {"a .", "a "},
      {"\0"s, ""},
      {"\0\0"s, ""},
      {"..\0/"s, ""},
      {"a\0b"s, "ab"},
      {"\0 a"s, " a"},
      {"\x01\x1F\x7F", "\x01\x1F\x7F"},
      {"a\nb", "a\nb"},
      {"\x80\xE9", "\xE2\x82\xAC\xC3\xA9"},
  };
  for (const char* kept : {"~", "~root", "-rf", "--help", "$HOME", "%TEMP%", "`id`", "; rm -rf x", "NUL",
                           "con", "COM1", "LPT9", "C:", "a:b", "<>|\"", "'", "guide"}) {
    names.push_back({kept, kept});
  }
  // Around the limit with an extension and without one, in bytes and in characters of two bytes.
  for (const int length : {250, 251, 252, 255, 256, 5000})
    names.push_back({Times(length, "n"), Times(length, "n")});
  for (const int length : {125, 126, 127, 128}) {
    names.push_back({Times(length, "\xE9"), Times(length, "\xC3\xA9")});
  }
  for (const Piece& piece : kPieces) names.push_back(Made({piece}));
  return names;
}

HostileName RandomHostileName(std::mt19937& random) {
  constexpr std::size_t kMostPieces = 8;
  constexpr std::size_t kLongOnes = 20;
  std::vector<Piece> pieces;
  const std::size_t count = random() % kMostPieces;
  for (std::size_t i = 0; i < count; ++i) {
    const Piece& piece = kPieces[random() % std::size(kPieces)];
    const std::size_t times = random() % kLongOnes == 0 ? random() % kMostNameBytes : 1;
    for (std::size_t time = 0; time < times; ++time) pieces.push_back(piece);
  }
  return Made(pieces);
}

int HostileNameCount() {
  constexpr int kUsual = 500;
  const char* count = std::getenv("TAVREL_HOSTILE_NAMES");
  return count == nullptr ? kUsual : std::atoi(count);
}

std::string Shown(const HostileName& name) {
  constexpr std::size_t kMostShown = 60;
  std::string shown;
  for (const char c : name.Typed.substr(0, kMostShown)) {
    std::array<char, 8> hex{};
    std::snprintf(hex.data(), hex.size(), "\\x%02X", static_cast<unsigned>(static_cast<unsigned char>(c)));
    shown += c >= ' ' && c <= '~' ? std::string(1, c) : hex.data();
  }
  return shown + " (" + std::to_string(name.Typed.size()) + " bytes)";
}

}  // namespace tavrel::test
