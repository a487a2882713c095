#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <numeric>
#include <ostream>
#include <tuple>

#include "core/text/run_time_error.h"
#include "reliability/faults.h"
#include "reliability/in_memory.h"
#include "reliability/written_file.h"
#include "support/fake_platform.h"
#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::HasSubstr;
using Operation = FailingFiles::Operation;
using FileMap = std::map<std::string, std::string>;

constexpr int kWrites = 5;
/// Create, writes, flush, close, replace and flush the folder.
constexpr int kCalls = 1 + kWrites + 4;

/// Saves a file again and again with another fault, over an old one or where there is none.
class SavingSweep : public testing::TestWithParam<std::tuple<WrittenFile, bool>> {
 protected:
  const WrittenFile& File() const { return std::get<0>(GetParam()); }

  FileMap OldFiles() const {
    FileMap files = File().Others;
    if (std::get<1>(GetParam())) files[File().Name] = File().Old;
    return files;
  }

  FileMap NewFiles() const {
    FileMap files = File().Others;
    files[File().Name] = File().New;
    return files;
  }

  /// Saves over the old files, five writes a file unless it is told otherwise; gives the message of the
  /// error.
  std::string Save(const std::function<void(FailingFiles&)>& break_files) {
    for (const fs::directory_entry& entry : fs::directory_iterator(Folder.Path())) fs::remove(entry.path());
    for (const auto& [name, bytes] : OldFiles()) Folder.Write(name, bytes);
    FakePlatform platform;
    platform.Files.NeverWaitForTheDisk();
    platform.Files.CutWritesAt((File().New.size() + kWrites - 1) / kWrites);
    break_files(platform.Files);
    const std::string message = FileErrorOf([&] { File().Save(Folder.Path(), platform); });
    Calls = platform.Files.Calls();
    Failures = platform.Files.Failures();
    return message;
  }

  /// How often each operation is asked for when nothing fails.
  std::map<Operation, int> RecordedCalls() {
    EXPECT_EQ(Save([](FailingFiles&) {}), "");
    EXPECT_EQ(Folder.Files(), NewFiles());
    return Calls;
  }

  /// The call that fails made the save fail, and the message says which file and why.
  void ExpectOldFiles(const std::string& message, const std::error_code& error) {
    EXPECT_THAT(message, AllOf(HasSubstr(PathText(Folder.Path() / File().Name)), HasSubstr(error.message())));
    EXPECT_EQ(Folder.Files(), OldFiles());
  }

  InMemory Memory;
  TemporaryFolder Folder;
  std::map<Operation, int> Calls;
  int Failures = 0;
};

TEST_P(SavingSweep, LeavesTheOldOrTheNewFileWhicheverCallFailsWithWhateverError) {
  int cases = 0;
  int calls = 0;
  for (const auto& [operation, count] : RecordedCalls()) {
    calls += count;
    for (int nth = 1; nth <= count; ++nth) {
      for (const std::error_code& error : ErrorsOf(operation)) {
        SCOPED_TRACE(NameOf(operation) + (" " + std::to_string(nth) + ": ") + error.message());
        const std::string message =
            Save([&, op = operation](FailingFiles& files) { files.FailAt(op, nth, error); });
        EXPECT_EQ(Failures, 1);
        ++cases;
        if (operation == Operation::FlushFolder) {
          // The new file is in place by then.
          EXPECT_EQ(message, "");
          EXPECT_EQ(Folder.Files(), NewFiles());
        } else {
          ExpectOldFiles(message, error);
        }
      }
    }
  }
  EXPECT_GE(calls, kCalls);
  EXPECT_GE(cases, kCalls * 5) << "each call fails with five errors at the least";
}

TEST_P(SavingSweep, GoesOnAfterAShortWriteAndGivesUpWhenNothingIsTaken) {
  const int writes = RecordedCalls()[Operation::Write];
  EXPECT_GE(writes, kWrites);
  for (int nth = 1; nth <= writes; ++nth) {
    for (const std::size_t bytes : {std::size_t{1}, std::size_t{2}}) {
      SCOPED_TRACE(std::to_string(bytes) + " bytes in write " + std::to_string(nth));
      EXPECT_EQ(Save([&](FailingFiles& files) { files.CutWriteAt(nth, bytes); }), "");
      EXPECT_GT(Calls[Operation::Write], writes);
      EXPECT_EQ(Folder.Files(), NewFiles());
    }
    const std::string message = Save([nth](FailingFiles& files) { files.CutWriteAt(nth, 0); });
    ExpectOldFiles(message, std::make_error_code(std::errc::io_error));
  }
}

TEST_P(SavingSweep, LeavesTheOldFileWhenTheDiskIsFullSoonerOrLater) {
  const std::size_t step = 1 + File().New.size() / 100;
  for (std::size_t room = 0; room < File().New.size(); room += step) {
    SCOPED_TRACE(room);
    const std::error_code full = std::make_error_code(std::errc::no_space_on_device);
    const std::string message = Save([&](FailingFiles& files) {
      files.CutWritesAt(File().New.size());
      if (room > 0) files.CutWriteAt(1, room);
      files.FailAt(Operation::Write, room > 0 ? 2 : 1, full);
    });
    ExpectOldFiles(message, full);
  }
}

TEST_P(SavingSweep, LeavesOnlyATemporaryFileWhenThatCannotBeRemovedEither) {
  int cases = 0;
  for (const Operation operation :
       {Operation::Write, Operation::Flush, Operation::Close, Operation::Replace}) {
    for (const std::error_code& error : ErrorsOf(Operation::Remove)) {
      SCOPED_TRACE(NameOf(operation) + (", then Remove: " + error.message()));
      const std::error_code first = std::make_error_code(std::errc::no_space_on_device);
      const std::string message = Save([&](FailingFiles& files) {
        files.FailAt(operation, 1, first);
        files.FailAlways(Operation::Remove, error);
      });
      EXPECT_EQ(Failures, 2);
      const std::vector<fs::path> temporaries = TemporariesIn(Folder.Path());
      EXPECT_EQ(temporaries.size(), 1U);
      for (const fs::path& temporary : temporaries) fs::remove(temporary);
      ExpectOldFiles(message, first);
      ++cases;
    }
  }
  EXPECT_GE(cases, 4 * 5);
}

TEST_P(SavingSweep, LeavesTheOldOrTheNewFileWhenTheDiskGoesAtAnyCall) {
  const std::map<Operation, int> recorded = RecordedCalls();
  const int calls = std::accumulate(recorded.begin(), recorded.end(), 0,
                                    [](int sum, const auto& call) { return sum + call.second; });
  EXPECT_GE(calls, kCalls);
  for (int nth = 1; nth <= calls; ++nth) {
    for (const std::error_code& error : ErrorsOf(Operation::Write)) {
      SCOPED_TRACE("gone at call " + std::to_string(nth) + ": " + error.message());
      const std::string message = Save([&](FailingFiles& files) { files.FailAllFrom(nth, error); });
      const std::vector<fs::path> temporaries = TemporariesIn(Folder.Path());
      EXPECT_LE(temporaries.size(), 1U);
      for (const fs::path& temporary : temporaries) fs::remove(temporary);
      if (nth < calls) {
        ExpectOldFiles(message, error);
      } else {  // only the folder is not flushed
        EXPECT_EQ(message, "");
        EXPECT_EQ(Folder.Files(), NewFiles());
      }
    }
  }
}

TEST_P(SavingSweep, LeavesTheOldOrTheNewFileWhenACallIsDoneButSaidToHaveFailed) {
  const auto whole = testing::AnyOf(OldFiles(), NewFiles());
  for (const Operation operation : {Operation::Write, Operation::Flush, Operation::Replace}) {
    for (const std::error_code& error : ErrorsOf(operation)) {
      SCOPED_TRACE(NameOf(operation) + (": " + error.message()));
      const std::string message = Save([&](FailingFiles& files) {
        files.FailAt(operation, 1, error);
        files.FailWithTheWorkDone();
      });
      EXPECT_THAT(message, HasSubstr(PathText(Folder.Path() / File().Name)));
      EXPECT_THAT(Folder.Files(), whole);
    }
  }
}

TEST_P(SavingSweep, TriesAnotherTemporaryNameAndGivesUpWhenAllAreTaken) {
  const std::error_code taken = std::make_error_code(std::errc::file_exists);
  EXPECT_EQ(Save([&](FailingFiles& files) { files.FailAt(Operation::CreateNew, 1, taken); }), "");
  EXPECT_EQ(Folder.Files(), NewFiles());
  ExpectOldFiles(Save([&](FailingFiles& files) { files.FailAlways(Operation::CreateNew, taken); }), taken);
}

INSTANTIATE_TEST_SUITE_P(Files, SavingSweep,
                         testing::Combine(testing::ValuesIn(WrittenFiles()), testing::Bool()),
                         [](const auto& sweep) {
                           return std::get<0>(sweep.param).Title +
                                  (std::get<1>(sweep.param) ? "Replaced" : "Made");
                         });

}  // namespace
}  // namespace tavrel::test
