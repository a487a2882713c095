#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <utility>

#include "core/document/document_file.h"
#include "core/ipod/folder_store.h"
#include "core/ipod/note_writer.h"
#include "core/text/run_time_error.h"
#include "reliability/faults.h"
#include "reliability/in_memory.h"
#include "reliability/written_file.h"
#include "support/fake_platform.h"
#include "support/fixtures.h"
#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::AnyOf;
using testing::HasSubstr;
using Operation = FailingFiles::Operation;
using FileMap = std::map<std::string, std::string>;

std::string Note(const std::string& title, const std::string& text) {
  return "<title>" + title + "</title>\r\n<meta name=\"LineWrap\" content=\"false\">\r\n" + text + "\r\n";
}

/// Writes the notes of Trio.dat, or copies such a folder, into one that holds old notes, or into none.
class NotesSweep : public testing::TestWithParam<bool> {
 protected:
  NotesSweep() {
    Notes = {
        {"z001.txt", Note("-A", "one")}, {"z002.txt", Note("B", "two")}, {"z003.txt", Note("C", "three")}};
    if (GetParam()) {
      OldNotes = {{"z001.txt", "from before"},
                  {"z002.txt", std::string(1000, 'b')},
                  {"z003.txt", std::string(300, 'c')},
                  {"other.txt", "no note of this project"}};
    }
  }

  fs::path Target() const { return Folder.Path() / "Trio"; }

  static FileMap Files(const fs::path& folder) {
    FileMap files;
    std::error_code error;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, error)) {
      std::string bytes(entry.file_size(), '\0');
      std::ifstream(entry.path(), std::ios::binary)
          .read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
      files[entry.path().filename().string()] = std::move(bytes);
    }
    return files;
  }

  /// Writes the folder over the old notes, with a fault; gives the message of the error.
  std::string Write(const std::function<void(FailingFiles&)>& break_files) {
    fs::remove_all(Target());
    for (const auto& [name, bytes] : OldNotes) Folder.Write(Target() / name, bytes);
    FakePlatform platform;
    platform.Files.NeverWaitForTheDisk();
    platform.Files.CutWritesAt(Part);
    break_files(platform.Files);
    const std::string message = FileErrorOf([&] { WriteFolder(platform); });
    Calls = platform.Files.Calls();
    Failures = platform.Files.Failures();
    return message;
  }

  std::map<Operation, int> RecordedCalls() {
    EXPECT_EQ(Write([](FailingFiles&) {}), "");
    EXPECT_EQ(Files(Target()), NewNotes());
    return Calls;
  }

  FileMap NewNotes() const {
    FileMap notes = Notes;
    notes.insert(OldNotes.begin(), OldNotes.end());  // those of the same name stay as they are
    return notes;
  }

  virtual void WriteFolder(Platform& platform) = 0;

  /// Each note that is there is the old one or the new one; what is no note of the project is untouched.
  void ExpectWholeNotes() const {
    FileMap left = Files(Target());
    for (const auto& [name, bytes] : Notes) {
      const auto found = left.find(name);
      if (found == left.end()) continue;
      const auto old = OldNotes.find(name);
      EXPECT_TRUE(found->second == bytes || (old != OldNotes.end() && found->second == old->second))
          << name << " is half a note of " << found->second.size() << " bytes";
      left.erase(found);
    }
    EXPECT_EQ(left.size(), GetParam() ? 1U : 0U);
    if (GetParam()) {
      EXPECT_EQ(left["other.txt"], OldNotes.at("other.txt"));
    }
  }

  InMemory Memory;
  TemporaryFolder Folder;
  FileMap Notes;
  FileMap OldNotes;
  std::size_t Part = 25;
  std::map<Operation, int> Calls;
  int Failures = 0;
};

class PublishSweep : public NotesSweep {
 protected:
  PublishSweep() { ReadDocumentText(kTrio, State); }

  void WriteFolder(Platform& platform) override { PublishNotes(State, platform, Target(), {}); }

  Global State;
};

class CopySweep : public NotesSweep {
 protected:
  /// The first note is longer than what is copied at once, so its bytes are read three times.
  CopySweep() {
    Part = 100'000;
    Notes["z001.txt"] = std::string(300'000, 'x') + "the end";
    for (const auto& [name, bytes] : Notes) Folder.Write(Source() / name, bytes);
  }

  fs::path Source() const { return Folder.Path() / "source"; }

  void WriteFolder(Platform& platform) override {
    CopyFolder(Source(), Target(), platform, [](int /*done*/, int /*all*/) {});
    EXPECT_EQ(Files(Source()), Notes);
  }
};

/// The notes that are published before one cannot be written are new, and those that follow are untouched.
TEST_P(PublishSweep, LeavesEachNoteWholeOrMissingWhicheverCallFailsWithWhateverError) {
  const std::map<Operation, int> recorded = RecordedCalls();
  int cases = 0;
  for (const auto& [operation, count] : recorded) {
    for (int nth = 1; nth <= count; ++nth) {
      for (const std::error_code& error : ErrorsOf(operation)) {
        SCOPED_TRACE(NameOf(operation) + (" " + std::to_string(nth) + ": ") + error.message());
        const std::string message =
            Write([&, op = operation](FailingFiles& files) { files.FailAt(op, nth, error); });
        EXPECT_EQ(Failures, 1);
        ExpectWholeNotes();
        const int failing = Calls[Operation::CreateOrEmpty];
        const std::string note = "z00" + std::to_string(failing) + ".txt";
        EXPECT_THAT(message, AllOf(HasSubstr(PathText(Target() / note)), HasSubstr(error.message())));
        const FileMap left = Files(Target());
        const FileMap all_new = NewNotes();
        for (int before = 1; before < failing; ++before) {
          const std::string name = "z00" + std::to_string(before) + ".txt";
          EXPECT_TRUE(left.contains(name) && left.at(name) == all_new.at(name)) << name;
        }
        EXPECT_TRUE(operation == Operation::CreateOrEmpty || !left.contains(note));
        ++cases;
      }
    }
  }
  // The notes are of 69, 68 and 70 bytes: three writes of 25 bytes each.
  EXPECT_EQ(recorded, (std::map<Operation, int>{
                          {Operation::CreateOrEmpty, 3}, {Operation::Write, 9}, {Operation::Close, 3}}));
  EXPECT_GE(cases, 15 * 4);
}

TEST_P(PublishSweep, GoesOnAfterAShortWriteAndLeavesNoHalfNoteWhenNothingIsTaken) {
  const int writes = RecordedCalls()[Operation::Write];
  for (int nth = 1; nth <= writes; ++nth) {
    SCOPED_TRACE(nth);
    EXPECT_EQ(Write([nth](FailingFiles& files) { files.CutWriteAt(nth, 1); }), "");
    EXPECT_EQ(Files(Target()), NewNotes());
    EXPECT_NE(Write([nth](FailingFiles& files) { files.CutWriteAt(nth, 0); }), "");
    ExpectWholeNotes();
  }
}

TEST_P(PublishSweep, NamesTheNoteWhenItsHalfCannotBeRemovedEither) {
  for (const std::error_code& error : ErrorsOf(Operation::Remove)) {
    const std::string message = Write([&](FailingFiles& files) {
      files.FailAt(Operation::Write, 5, std::errc::no_space_on_device);
      files.FailAlways(Operation::Remove, error);
    });
    EXPECT_THAT(message, HasSubstr(PathText(Target() / "z002.txt")));
    EXPECT_EQ(Files(Target()).at("z001.txt"), Notes["z001.txt"]);
    EXPECT_EQ(Files(Target()).contains("z003.txt"), GetParam());
  }
}

TEST_P(CopySweep, LeavesEachNoteWholeOrMissingWhicheverCallFailsWithWhateverError) {
  const std::map<Operation, int> recorded = RecordedCalls();
  std::map<Operation, int> cases;
  for (const auto& [operation, count] : recorded) {
    for (int nth = 1; nth <= count; ++nth) {
      for (const std::error_code& error : ErrorsOf(operation)) {
        SCOPED_TRACE(NameOf(operation) + (" " + std::to_string(nth) + ": ") + error.message());
        const std::string message =
            Write([&, op = operation](FailingFiles& files) { files.FailAt(op, nth, error); });
        EXPECT_EQ(Failures, 1);
        ExpectWholeNotes();
        if (message.empty()) {
          // A file that was only read has given all its bytes when it is closed.
          EXPECT_EQ(operation, Operation::Close);
          EXPECT_EQ(Files(Target()), NewNotes());
          continue;
        }
        EXPECT_THAT(message, HasSubstr(error.message()));
        EXPECT_THAT(message, AnyOf(HasSubstr(PathText(Source())), HasSubstr(PathText(Target()))));
        ++cases[operation];
      }
    }
  }
  // The first note takes two reads and the others one, and each the one that finds its end.
  EXPECT_EQ(recorded, (std::map<Operation, int>{{Operation::Open, 3},
                                                {Operation::CreateOrEmpty, 3},
                                                {Operation::Read, 7},
                                                {Operation::Write, 6},
                                                {Operation::Close, 6},
                                                {Operation::FlushVolume, 1}}));
  for (const auto& [operation, count] : recorded) {
    const int failing = operation == Operation::Close ? 3 : count;
    EXPECT_EQ(cases[operation], failing * static_cast<int>(ErrorsOf(operation).size())) << NameOf(operation);
  }
}

TEST_P(CopySweep, LeavesEachNoteWholeOrMissingWhenNothingMoreIsTaken) {
  const int writes = RecordedCalls()[Operation::Write];
  for (int nth = 1; nth <= writes; ++nth) {
    SCOPED_TRACE(nth);
    EXPECT_EQ(Write([nth](FailingFiles& files) { files.CutWriteAt(nth, 1); }), "");
    EXPECT_EQ(Files(Target()), NewNotes());
    EXPECT_NE(Write([nth](FailingFiles& files) { files.CutWriteAt(nth, 0); }), "");
    ExpectWholeNotes();
  }
}

const auto kFolders = [](const auto& sweep) { return sweep.param ? "IntoAFolderOfNotes" : "IntoNoFolder"; };

INSTANTIATE_TEST_SUITE_P(Notes, PublishSweep, testing::Bool(), kFolders);
INSTANTIATE_TEST_SUITE_P(Notes, CopySweep, testing::Bool(), kFolders);

}  // namespace
}  // namespace tavrel::test
