#include <gtest/gtest.h>
#include <iterator>
#include <random>
#include <string>

#include "core/document/document_file.h"
#include "support/fixtures.h"
#include "support/full_size_document.h"

namespace tavrel::test {
namespace {

using namespace std::string_literals;

Global Read(const std::string& text) {
  Global global;
  ReadDocumentText(text, global);
  return global;
}

void ExpectSameDocument(const Global& a, const Global& b) {
  EXPECT_EQ(a.Pages, b.Pages);
  EXPECT_EQ(a.MusicLinks, b.MusicLinks);
}

/// Any bytes but line feeds and "<p>": what a line of the file can hold.
std::string RandomRecord(std::mt19937& random) {
  std::string record = "<";
  for (int left = static_cast<int>(random() % 200); left > 0; --left) {
    const char any = static_cast<char>(random() % 256);
    if (any != '\n' && any != 'p') record += any;
  }
  return record;
}

std::string RandomPage(std::mt19937& random) {
  std::string page = RandomRecord(random);
  for (int breaks = static_cast<int>(random() % 5); breaks > 0; --breaks)
    page += "\r\n" + RandomRecord(random);
  return page;
}

TEST(DocumentRoundTrip, GivesTheBytesOfAFileBack) {
  for (const std::string_view document : {kGuide, kSongs, kTrio, kFruit}) {
    Global global;
    ReadDocumentText(document, global);
    EXPECT_EQ(DocumentText(global), document);
  }
}

TEST(DocumentRoundTrip, GivesOddBytesBack) {
  const std::string text = " 1 ,\0\x01\x80\xFF\r<p>\r\n 99 , ,\"\r\n\r\n 7 ,\0<p>\r<p>\t\xA0 \r\n 8 ,"s +
                           std::string(1'000'000, '\xE9') + "\r\n";
  EXPECT_EQ(DocumentText(Read(text)), text);
}

TEST(DocumentRoundTrip, KeepsEverythingOfRandomDocuments) {
  std::mt19937 random(42);
  for (int round = 0; round < 50; ++round) {
    Global global;
    for (int link = 0; link <= 99; ++link) {
      if (random() % 3 == 0) global.MusicLink(link) = RandomRecord(random);
    }
    for (int page = 0; page <= 999; ++page) {
      if (random() % 10 == 0) global.Page(page) = RandomPage(random);
    }
    const std::string saved = DocumentText(global);
    const Global loaded = Read(saved);
    ExpectSameDocument(loaded, global);
    EXPECT_EQ(DocumentText(loaded), saved);
  }
}

TEST(DocumentRoundTrip, IsStableForAnyFileThatLoads) {
  std::mt19937 random(43);
  const std::string pieces[] = {"<p>", "<", "p>", "\r", "\n",       "\r\n",
                                ",",   " ", "a",  "\"", "\r\n 3 ,", "\n 12,x"};
  for (int round = 0; round < 2000; ++round) {
    std::string text = "\r\n 1 ,";
    for (int left = static_cast<int>(random() % 30); left > 0; --left)
      text += pieces[random() % std::size(pieces)];
    const Global loaded = Read(text);
    ExpectSameDocument(Read(DocumentText(loaded)), loaded);
  }
}

TEST(DocumentRoundTrip, KeepsAFullSizeDocument) {
  Global global;
  MakeFullSizeDocument(global);
  ExpectSameDocument(Read(DocumentText(global)), global);
}

TEST(DocumentRoundTrip, LosesMusicLink100AndPage1000) {
  Global global;
  for (int link = 1; link <= 100; ++link)
    global.MusicLink(link) = "<song>S" + std::to_string(link) + "</song>";
  global.Page(1000) = "<title>x</title>";
  const Global loaded = Read(DocumentText(global));
  EXPECT_EQ(loaded.MusicLink(99), "<song>S99</song>");
  EXPECT_EQ(loaded.MusicLink(100), "");
  EXPECT_EQ(loaded.Page(1000), "");
}

TEST(DocumentRoundTrip, TurnsATypedMarkIntoALineBreak) {
  Global global;
  global.Page(1) = "<title>a<p>b</title><text>x<p>y</text>";
  EXPECT_EQ(Read(DocumentText(global)).Page(1), "<title>a\r\nb</title><text>x\r\ny</text>");
}

}  // namespace
}  // namespace tavrel::test
