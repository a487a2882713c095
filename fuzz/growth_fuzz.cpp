#include <algorithm>
#include <array>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "core/check/project_check.h"
#include "core/document/document_file.h"
#include "core/document/markup.h"
#include "core/document/page_record.h"
#include "core/editing/find_all.h"
#include "core/editing/link_numbers.h"
#include "core/editing/search.h"
#include "core/ipod/music_links.h"
#include "core/ipod/note_reader.h"
#include "core/ipod/note_writer.h"
#include "core/planner/plan_file.h"
#include "core/preview/note.h"
#include "core/shell/registry_value.h"
#include "core/text/field_reader.h"
#include "core/text/file_names.h"
#include "core/text/run_time_error.h"
#include "expect.h"
#include "support/fake_platform.h"

using namespace tavrel;
using namespace tavrel::fuzz;

namespace {

/// A text and another one that is looked for in it.
struct Texts {
  std::string Text;
  std::string Wanted;
};

/// Gives the size of what it has made, which takes its time too.
using Work = std::function<std::size_t(Global& global, const Texts& texts)>;

std::size_t ReadDocument(Global& global, const Texts& texts) {
  ReadDocumentText(texts.Text, global);
  return DocumentText(global).size();
}

std::size_t ReadAndWritePlan(Global&, const Texts& texts) {
  return PlanText(ReadPlanText(texts.Text)).size();
}

std::size_t ReadNote(Global& global, const Texts& texts) {
  NoteReader reader(global, {"z001.txt"}, CodePage::Windows1252());
  reader.ProcessInput(NoteLines(texts.Text), 1);
  return global.Page(1).size();
}

std::size_t WriteNote(Global& global, const Texts& texts) {
  global.Page(1) = texts.Text;
  return NoteText(global, 1, {}).size();
}

std::size_t ReadAndBuildPage(Global&, const Texts& texts) {
  return BuildPage(ReadPage(texts.Text), CodePage::Windows1252()).size();
}

std::size_t Renumber(Global&, const Texts& texts) {
  std::string record = texts.Text;
  RenumberLinks(record, [](int number) { return std::optional(number + 1); });
  return record.size();
}

std::size_t WalkTags(Global&, const Texts& texts) {
  std::size_t elements = 0;
  for (const char* tag : {"<title>", "<linkto>", "<a<a"}) {
    for (TagWalker walker(texts.Text, tag); walker.Next();) ++elements;
    std::string text = texts.Text;
    SetTag(text, "x", tag, static_cast<int>(elements));
  }
  return elements;
}

std::size_t ReadFields(Global&, const Texts& texts) {
  std::size_t size = 0;
  for (FieldReader fields(texts.Text); !fields.AtEnd();) size += fields.NextField().size();
  return size;
}

std::string PageWithText(const std::string& text) {
  std::string record;
  AppendTag(record, "<text>", text);
  return record;
}

std::size_t Find(Global& global, const Texts& texts) {
  if (texts.Wanted.empty()) return 0;
  global.Page(1) = PageWithText(texts.Text);
  const auto match = FindInPages(global, texts.Wanted, 1, false, CodePage::Windows1252());
  return match ? match->Position : 0;
}

std::size_t Replace(Global& global, const Texts& texts) {
  if (texts.Wanted.empty()) return 0;
  global.Page(1) = PageWithText(texts.Text);
  const std::string replacement = texts.Wanted.substr(1) + texts.Text.substr(0, 5);
  ReplaceInPages(global, texts.Wanted, replacement, false, CodePage::Windows1252());
  return global.Page(1).size();
}

std::size_t ReadRegistry(Global&, const Texts& texts) {
  test::FakePlatform platform;
  platform.Registry["KEY|NAME"] = {.Type = 4, .Bytes = texts.Text};
  std::string value;
  GetKeyValue(platform, RegistryRoot::LocalMachine, "KEY", "NAME", value);
  return value.size();
}

std::size_t ReadMusic(Global& global, const Texts& texts) {
  global.MusicLink(1) = BuildMusicLink(ReadMusicLink(texts.Text));
  return GetMusic(global, "M1").size();
}

std::size_t CleanNames(Global&, const Texts& texts) {
  const CodePage& code_page = CodePage::Windows1252();
  return NameInCodePage(PathFromName(CleanName(texts.Text), code_page), code_page).size();
}

/// A page, and music to which it may lead.
void SetPageAndMusic(Global& global, const Texts& texts) {
  global.Page(1) = texts.Text;
  global.MusicLink(1) = texts.Wanted;
}

std::size_t Check(Global& global, const Texts& texts) {
  SetPageAndMusic(global, texts);
  std::size_t size = 0;
  for (const Finding& finding : CheckProject(global, CodePage::Windows1252(), {}))
    size += finding.Sentence.size();
  return size;
}

std::size_t ReadBeginning(Global& global, const Texts& texts) {
  SetPageAndMusic(global, texts);
  return tavrel::ReadNote(NoteBeginning(global, 1, {})).Text.size();
}

std::size_t SearchAll(Global& global, const Texts& texts) {
  if (texts.Wanted.empty()) return 0;
  global.Page(1) = texts.Text;
  std::vector<Hit> hits;
  for (FindAll search(global, texts.Wanted, false, CodePage::Windows1252()); !search.IsDone();)
    search.SearchPage(hits);
  return hits.size();
}

const std::array<Work, 16> kWorks = {ReadDocument, ReadAndWritePlan, ReadNote,   WriteNote, ReadAndBuildPage,
                                     Renumber,     WalkTags,         ReadFields, Find,      Replace,
                                     ReadRegistry, ReadMusic,        CleanNames, Check,     ReadBeginning,
                                     SearchAll};

/// A text of the size: its start, then the piece again and again, then its end.
struct Pattern {
  std::string Start;
  std::string Piece;
  std::string End;

  std::string OfSize(std::size_t size) const {
    std::string text = Start;
    while (!Piece.empty() && text.size() + End.size() < size) text += Piece;
    return text + End;
  }
};

/// A line with a part of a pattern, in which "$" stands for a line end.
std::string Part(Input& input) {
  std::string part;
  for (const char c : input.Line()) part += c == '$' ? std::string("\r\n") : std::string(1, c);
  return part;
}

Pattern PatternOf(Input& input) {
  Pattern pattern;
  for (std::string* part : {&pattern.Start, &pattern.Piece, &pattern.End}) *part = Part(input);
  return pattern;
}

double ProcessorSeconds() {
  std::timespec time{};
  ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

/// What a work takes.
struct Cost {
  double Seconds = 0;
  std::size_t Bytes = 0;  ///< read and made

  double OfByte() const { return Seconds / static_cast<double>(Bytes); }
};

/// A work on texts that can be of any size.
struct Task {
  const Work& Does;
  Pattern Text;
  Pattern Wanted;

  Cost Once(const Texts& texts) const {
    const auto global = std::make_unique<Global>();
    const double start = ProcessorSeconds();
    std::size_t made = 1;
    try {
      made += Does(*global, texts);
    } catch (const RunTimeError&) {
      made = 1;
    }
    return {ProcessorSeconds() - start, texts.Text.size() + texts.Wanted.size() + made};
  }

  /// The least of so many tries: others use the processor too.
  Cost OfSize(std::size_t size, int tries) const {
    const Texts texts = {Text.OfSize(size), Wanted.OfSize(size / 4)};
    Cost least = Once(texts);
    while (--tries > 0) least.Seconds = std::min(least.Seconds, Once(texts).Seconds);
    return least;
  }
};

/// A work whose time grows as the square of the size takes 16 times as long for each byte of a text that is
/// 16 times as large; half as much, to leave room for what is measured wrongly, is a fault. What takes no
/// time worth speaking of, even with sanitizers, is not looked at.
void ExpectLinear(const Task& task) {
  constexpr std::size_t kSmall = 2'000;
  constexpr std::size_t kLarge = 16 * kSmall;
  constexpr double kShort = 0.01;
  constexpr double kMostGrowth = 8;
  for (const int tries : {1, 3, 10}) {
    const Cost large = task.OfSize(kLarge, tries);
    if (large.Seconds < kShort || large.OfByte() < kMostGrowth * task.OfSize(kSmall, tries).OfByte()) return;
  }
  Expect(false, "the time grows as the size does");
}

}  // namespace

/// Large texts that repeat themselves. An input is the number of a work (as a letter from "0" on), then three
/// lines with a start, a piece that is repeated and an end for the text, and three for one that is looked for
/// in it. The time is measured only if TAVREL_FUZZ_GROWTH is set; without it, large texts must merely come to
/// an end.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const bool kIsMeasuring = std::getenv("TAVREL_FUZZ_GROWTH") != nullptr;
  Input input(data, size);
  const Work& work = kWorks.at(static_cast<std::size_t>(input.Choice(kWorks.size())));
  const Pattern text = PatternOf(input);
  const Task task = {work, text, PatternOf(input)};
  if (kIsMeasuring) {
    ExpectLinear(task);
  } else {
    task.OfSize(2'000, 1);
  }
  return 0;
}
