#include <cstdlib>
#include <filesystem>
#include <map>
#include <memory>
#include <string>

#include "core/document/document_file.h"
#include "core/document/recovery.h"
#include "core/text/run_time_error.h"
#include "expect.h"
#include "support/fake_platform.h"
#include "support/temporary_folder.h"

using namespace tavrel;
using namespace tavrel::fuzz;

namespace {

namespace fs = std::filesystem;
using Files = std::map<std::string, std::string>;

const fs::path kRecoveryFile = "program/open.recovery";
const std::string kGuide = "\r\n 1 ,<title>Guide</title>\r\n";

/// A fresh folder for each input, in memory where the system has one, to spare the disk.
void StayInMemory() {
  static const bool kIsThere = fs::is_directory("/dev/shm") && ::setenv("TMPDIR", "/dev/shm", 1) == 0;
  static_cast<void>(kIsThere);
}

/// The document in a file's text; nothing if it is damaged.
std::unique_ptr<Global> DocumentIn(const std::string& text) {
  auto global = std::make_unique<Global>();
  try {
    ReadDocumentText(text, *global);
  } catch (const RunTimeError&) {
    return nullptr;
  }
  return global;
}

/// What was there is as it was, and what is new lies in the program's folder.
void ExpectNothingElse(Files found, const Files& before, const test::TemporaryFolder& folder,
                       const Recovered& recovered) {
  for (const auto& [name, bytes] : before) {
    ExpectEqual(found[name], bytes, "another file stays as it is");
    found.erase(name);
  }
  for (const fs::path& file : {recovered.Document, recovered.Damaged}) {
    if (file.empty()) continue;
    Expect(file.parent_path() == folder.Path() / kRecoveryFile.parent_path(), "it lies in the folder");
    Expect(found.erase(file.lexically_relative(folder.Path()).string()) == 1, "a new file is there");
  }
  Expect(found.empty(), "there is nothing else");
}

/// Recovers from a file of those bytes. Gives the recovered document's text, an empty one without any.
std::string Recover(const std::string& bytes) {
  const test::TemporaryFolder folder;
  const Files before = {{"program/Guide.dat", kGuide}, {"program/Guide (recovered).dat", kGuide}};
  for (const auto& [name, text] : before) folder.Write(name, text);
  folder.Write(kRecoveryFile, bytes);
  test::FakePlatform platform;
  const Recovered recovered = RecoverDraft(folder.Path() / kRecoveryFile, platform);
  ExpectNothingElse(folder.Files(), before, folder, recovered);
  if (!recovered.Damaged.empty()) {
    ExpectEqual(folder.Read(recovered.Damaged), bytes, "a damaged recovery file is kept as it is");
  }
  if (recovered.Document.empty()) return {};
  Expect(recovered.Document.extension() == ".dat", "a document's name");
  const std::string text = folder.Read(recovered.Document);
  Expect(DocumentIn(text) != nullptr, "what was recovered can be opened");
  return text;
}

}  // namespace

/// Any bytes are a recovery file, whole or damaged. A document that was kept comes back as it was. An input
/// is the bytes, and those behind its first line are the document's too.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  StayInMemory();
  Input input(data, size);
  Recover(std::string(input.Rest()));

  input.Line();
  const std::unique_ptr<Global> document = DocumentIn(std::string(input.Rest()));
  if (!document) return 0;
  const std::string text = DocumentText(*document);
  const test::TemporaryFolder folder;
  test::FakePlatform platform;
  KeepDraft({"Other.dat", text}, folder.Path() / "kept", platform);
  ExpectEqual(Recover(folder.Read("kept")), text, "the draft comes back");
  return 0;
}
