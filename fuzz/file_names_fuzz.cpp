#include <filesystem>
#include <string>

#include "core/text/file_names.h"
#include "core/text/run_time_error.h"
#include "expect.h"
#include "support/fake_platform.h"

using namespace tavrel;
using namespace tavrel::fuzz;

namespace {

namespace fs = std::filesystem;

std::string LiteralTrim(std::string text) {
  while (!text.empty() && text.front() == ' ') text.erase(0, 1);
  while (!text.empty() && text.back() == ' ') text.pop_back();
  return text;
}

std::string Without(const std::string& text, const std::string& unwanted) {
  std::string result;
  for (const char c : text) {
    if (unwanted.find(c) == std::string::npos) result += c;
  }
  return result;
}

/// A file or folder of that name lies in the folder and nowhere else.
void ExpectWithin(const fs::path& folder, const fs::path& name) {
  const fs::path file = folder / name;
  Expect(!name.empty() && name != "." && name != "..", "a name is a name of its own");
  Expect(name.native().find_first_of(std::string("/\\\0", 3)) == std::string::npos, "no separator, no NUL");
  Expect(file.parent_path() == folder && file.filename() == name, "it lies in the folder");
  Expect(file.lexically_normal() == file, "it does not climb");
}

/// Nothing if the name is refused.
fs::path PathOf(const std::string& name) {
  const test::FakePlatform platform;
  try {
    return PathFromTypedName(name, platform);
  } catch (const RunTimeError&) {
    return {};
  }
}

}  // namespace

/// An input is what was typed as the name of a document, a plan or a folder to publish.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const CodePage& code_page = CodePage::Windows1252();
  const std::string typed(Input(data, size).Rest());
  ExpectEqual(TrimBlanks(typed), LiteralTrim(typed), "blanks go from both ends");
  const std::string name = CleanName(typed);
  ExpectEqual(name, Without(LiteralTrim(typed), "&\\/.?*"), "a typed name is cleaned");
  ExpectEqual(CleanName(CleanName(name)), CleanName(name), "a clean name stays so");

  const std::string visible = Without(name, std::string(1, '\0'));
  const fs::path path = PathOf(name);
  Expect(path.empty() == visible.empty(), "a name of nothing is refused");
  if (path.empty()) return 0;
  ExpectEqual(NameInCodePage(path, code_page), visible, "the name can be read from the folder");
  ExpectWithin("/notes", path);
  const fs::path document = PathOf(name + ".dat");
  ExpectWithin("/documents", document);
  Expect(WithoutExtension(document) == path, "the name less its extension");

  const std::string entry = FileListEntry(name, std::tm{.tm_mday = 1});
  ExpectEqual(entry.substr(25), "01-01-00", "the date begins behind 25 characters");
  return 0;
}
