#include <gtest/gtest.h>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "core/document/document_file.h"
#include "core/ipod/folder_store.h"
#include "core/ipod/literal_notes.h"
#include "core/ipod/note_reader.h"
#include "core/ipod/note_writer.h"
#include "core/text/file_names.h"
#include "support/fake_platform.h"
#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;

/// Documents as the editor makes them, with a few oddities. Every anchor of their notes has its end.
class RandomDocument {
 public:
  explicit RandomDocument(unsigned seed) : random_(seed) {}

  LiteralDocument Make() {
    LiteralDocument document;
    for (int left = Number(12); left > 0; --left) document.MusicLinks[1 + Number(12)] = MusicRecord();
    for (int left = Number(15); left > 0; --left)
      document.Pages[1 + Number(Number(4) == 0 ? 999 : 30)] = Page();
    std::erase_if(document.MusicLinks, [](const auto& link) { return link.second.empty(); });
    std::erase_if(document.Pages, [](const auto& page) { return page.second.empty(); });
    return document;
  }

  /// From 0 up to below a bound.
  int Number(int below) { return static_cast<int>(random_() % static_cast<unsigned>(below)); }

 private:
  template <std::size_t Count>
  std::string OneOf(const char* const (&choices)[Count]) {
    return choices[Number(Count)];
  }

  std::string Word() {
    constexpr const char* kWords[] = {"Road", "caf\xE9",  "a, b",  "\"x\"", "p",  "/p",     "br", "body",
                                      "a",    "z001.txt", "title", "&",     "M1", "meta x", "/a", " "};
    return OneOf(kWords);
  }

  static std::string Element(const std::string& tag, const std::string& value) {
    return value.empty() ? "" : "<" + tag + ">" + value + "</" + tag + ">";
  }

  std::string MusicRecord() {
    constexpr const char* kValues[] = {"",    "",    "Blue",   "BLUE",    "Kim Low",
                                       "a&b", "x=y", "song=1", "caf\xC9", "q\"r"};
    std::string record;
    for (const char* tag : {"song", "album", "composer", "artist", "genre", "playlist", "notes"}) {
      if (Number(2) == 0) record += Element(tag, OneOf(kValues));
    }
    return record;
  }

  std::string Target() {
    if (Number(3) == 0) return "M" + std::to_string(1 + Number(13));
    const std::string digits = std::to_string(1000 + Number(Number(4) == 0 ? 1000 : 31));
    return digits.substr(1);
  }

  std::string Text() {
    constexpr const char* kBetween[] = {" ", "\r\n", "\r\n\r\n", ". ", "\n", ">", "<p>"};
    std::string text = Number(8) == 0 ? "> " : "";
    for (int left = Number(8); left > 0; --left) {
      const std::string word = Word();
      text += (Number(2) == 0 ? "<" + word + ">" : word);
      // A "<p>" is an anchor too, and any ">" behind the first is one closing tag more.
      text += OneOf(kBetween);
    }
    return text;
  }

  std::string Page() {
    std::string links;
    for (int left = Number(6); left > 0; --left) {
      const std::string text = Number(10) == 0 ? "" : Word();
      links += "<linktext>" + text + "</linktext><linkto>" + Target() + "</linkto>";
    }
    std::string page = Element("title", Number(5) == 0 ? "" : Word() + Word()) + Element("note", Word()) +
                       Element("text", Text()) + Element("link", links);
    if (Number(3) == 0)
      page += Element("music", Word()) + "<music>M" + std::to_string(1 + Number(13)) + "</music>";
    return page;
  }

  std::mt19937 random_;
};

Global StateOf(const LiteralDocument& document) {
  Global global;
  for (const auto& [page, record] : document.Pages) global.Page(page) = record;
  for (const auto& [link, record] : document.MusicLinks) global.MusicLink(link) = record;
  return global;
}

/// A computer and a device with a Notes folder.
class RoundTripTest : public testing::Test {
 protected:
  RoundTripTest() {
    System.FlushesVolumes = false;
    fs::create_directories(Computer());
    fs::create_directories(Notes());
  }

  fs::path Computer() const { return Folder.Path() / "computer"; }
  fs::path Notes() const { return Folder.Path() / "device" / "Notes"; }

  /// Publishes a document; its folder must then hold the notes by the rules.
  void Publish(const Global& global, const LiteralDocument& document, const PublishOptions& options) {
    fs::remove_all(Computer() / "Road");
    PublishNotes(global, System, Computer() / "Road", options);
    ExpectNotes("computer/Road", LiteralNotes(document, options));
  }

  /// Carries the folder to the device, loses the computer's and carries it back.
  void CarryToTheDeviceAndBack() {
    fs::remove_all(Notes() / "Road");
    CopyFolder(Computer() / "Road", Notes() / "Road", System, [](int, int) {});
    EXPECT_TRUE(DeleteFolder(Computer() / "Road", System));
    CopyFolder(Notes() / "Road", Computer() / "Road", System, [](int, int) {});
  }

  Global Import() {
    std::vector<fs::path> names;
    for (const FolderFile& file : ListFiles(Computer() / "Road", ".txt", System.SystemCodePage())) {
      names.push_back(file.Name);
    }
    Global global;
    ImportNotes(global, Computer() / "Road", names, System.SystemCodePage(), [](int) {});
    EXPECT_EQ(global.DocPath, "Road.dat");
    return global;
  }

  void ExpectNotes(const std::string& folder, const std::map<std::string, std::string>& notes) const {
    std::map<std::string, std::string> expected;
    for (const auto& [name, bytes] : notes) expected[folder + "/" + name] = bytes;
    std::map<std::string, std::string> found = Folder.Files();
    std::erase_if(found, [&](const auto& file) { return !file.first.starts_with(folder + "/"); });
    EXPECT_EQ(found, expected);
  }

  TemporaryFolder Folder;
  FakePlatform System;
};

TEST_F(RoundTripTest, EndsWhereTheRulesSay) {
  for (unsigned seed = 1; seed <= 200 && !HasFailure(); ++seed) {
    SCOPED_TRACE(seed);
    RandomDocument random(seed);
    const LiteralDocument document = random.Make();
    const PublishOptions options = {.NotesMenuLink = random.Number(2) == 0,
                                    .BackgroundMusic = random.Number(2) == 0};
    Publish(StateOf(document), document, options);
    CarryToTheDeviceAndBack();
    ExpectNotes("device/Notes/Road", LiteralNotes(document, options));
    ExpectNotes("computer/Road", LiteralNotes(document, options));

    const LiteralDocument imported = LiteralImport(LiteralNotes(document, options));
    const Global state = Import();
    EXPECT_EQ(ContentsOf(state), imported);
    EXPECT_EQ(DocumentText(state), LiteralFile(imported));

    Global loaded;
    ReadDocumentText(DocumentText(state), loaded);
    const LiteralDocument reloaded = LiteralSavedAndLoaded(imported);
    EXPECT_EQ(ContentsOf(loaded), reloaded);
    Publish(loaded, reloaded, options);
  }
}

TEST_F(RoundTripTest, DoublesTheLinksAndKeepsTheHyphenOfTheFirstTitle) {
  const LiteralDocument document = {
      .Pages = {{1,
                 "<title>One</title><note>n</note><text>See <x> now</text><link><linktext>x</linktext>"
                 "<linkto>005</linkto></link>"},
                {5, "<title>Five</title><text>five</text>"}},
      .MusicLinks = {}};
  PublishNotes(StateOf(document), System, Computer() / "Road", {.BackgroundMusic = true});
  CarryToTheDeviceAndBack();
  const Global state = Import();
  const std::string now_playing = "<meta name=\"NowPlaying\" content=\"false\">\r\n";
  EXPECT_EQ(state.Page(1), "<title>-One</title><text> \r\n\r\n" + now_playing +
                               "See x now\r\nx\r\n </text><link><linktext></linktext><linkto>002</linkto>"
                               "<linktext></linktext><linkto>002</linkto></link>");
  EXPECT_EQ(state.Page(2),
            "<title>Five</title><text> \r\n\r\n" + now_playing + "five\r\n </text><link></link>");

  // The meta line that was left is an inline link when the text is published again.
  PublishNotes(state, System, Computer() / "Again", {});
  EXPECT_EQ(Folder.Read("computer/Again/z001.txt"),
            "<title>--One</title>\r\n<meta name=\"LineWrap\" content=\"false\">\r\n \r\n\r\n"
            "<a href=\"z002.txt\">meta name=\"NowPlaying\" content=\"false\"</a>\r\nSee x now\r\nx\r\n \r\n");
}

}  // namespace
}  // namespace tavrel::test
