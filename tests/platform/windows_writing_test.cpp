#include <atomic>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <string>
#include <thread>

#include "core/text/run_time_error.h"
#include "platform/held_file.h"
#include "platform/system_platform.h"
#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::ThrowsMessage;
using FileMap = std::map<std::string, std::string>;

constexpr DWORD kReadOnly = FILE_ATTRIBUTE_READONLY;

class WindowsWritingTest : public testing::Test {
 protected:
  fs::path File(const fs::path& name = "Guide.dat") const { return Folder.Path() / name; }

  void SetAttributes(DWORD attributes) const {
    ASSERT_NE(::SetFileAttributesW(File().c_str(), attributes), 0);
  }

  /// The attributes that somebody chose, not the system.
  DWORD Attributes() const {
    return ::GetFileAttributesW(File().c_str()) &
           (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
  }

  /// The superuser of an emulator's system can write even there.
  bool ReadOnlyFilesCanBeWritten() const {
    const HANDLE handle =
        ::CreateFileW(File().c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    if (handle == INVALID_HANDLE_VALUE) return false;
    ::CloseHandle(handle);
    return true;
  }

  template <typename Action>
  void ExpectRefused(const Action& action) const {
    EXPECT_THAT(action, ThrowsMessage<FileError>(HasSubstr(PathText(File()) + "\ncould not be written: ")));
  }

  const TemporaryFolder Folder;
  const std::unique_ptr<Platform> System = MakeSystemPlatform();
};

TEST_F(WindowsWritingTest, ReplacesTheWholeFile) {
  Folder.Write("Guide.dat", "a longer text from before");
  System->WriteWholeFile(File(), "new\r\n\xE9");
  EXPECT_EQ(Folder.Files(), (FileMap{{"Guide.dat", "new\r\n\xE9"}}));
  const std::string large(3'000'000, 'x');
  System->WriteWholeFile(File(), large);
  EXPECT_TRUE(Folder.Read("Guide.dat") == large);
  EXPECT_EQ(Folder.Files().size(), 1U);
}

TEST_F(WindowsWritingTest, TakesNamesOfEveryLanguage) {
  for (const wchar_t* name : {L"caf\u00E9.dat", L"\u65E5\u672C.dat", L"\u0416.dat", L"\U0001F600.dat"}) {
    System->WriteWholeFile(File(name), "whole");
    System->WritePlainFile(File(std::wstring(L"z") + name), "plain");
    EXPECT_EQ(Folder.Read(name), "whole") << fs::path(name);
    EXPECT_EQ(Folder.Read(std::wstring(L"z") + name), "plain") << fs::path(name);
  }
  EXPECT_EQ(Folder.Files().size(), 8U);
}

TEST_F(WindowsWritingTest, ANameInOtherLetterCaseIsTheSameFile) {
  Folder.Write("Guide.dat", "old");
  EXPECT_TRUE(fs::exists(File("GUIDE.DAT")));
  System->WriteWholeFile(File("GUIDE.DAT"), "whole");
  EXPECT_EQ(Folder.Files().size(), 1U);
  EXPECT_EQ(Folder.Read("Guide.dat"), "whole");
  System->WritePlainFile(File("guide.dat"), "plain");
  EXPECT_EQ(Folder.Files().size(), 1U);
  EXPECT_EQ(Folder.Read("Guide.dat"), "plain");
}

TEST_F(WindowsWritingTest, DoesNotCopyAFileOntoItselfInOtherLetterCase) {
  Folder.Write("Guide.dat", "the only copy");
  System->CopyPlainFile(File(), File("GUIDE.DAT"));
  EXPECT_EQ(Folder.Read("Guide.dat"), "the only copy");
}

TEST_F(WindowsWritingTest, KeepsAReadOnlyDocument) {
  Folder.Write("Guide.dat", "old");
  SetAttributes(kReadOnly);
  ExpectRefused([this] { System->WriteWholeFile(File(), "new"); });
  EXPECT_EQ(Folder.Files(), (FileMap{{"Guide.dat", "old"}}));
  EXPECT_EQ(Attributes(), kReadOnly);
  SetAttributes(FILE_ATTRIBUTE_NORMAL);
}

TEST_F(WindowsWritingTest, DoesNotEmptyAReadOnlyFile) {
  Folder.Write("Guide.dat", "old");
  SetAttributes(kReadOnly);
  const bool all_powerful = ReadOnlyFilesCanBeWritten();
  if (!all_powerful) {
    ExpectRefused([this] { System->WritePlainFile(File(), "new"); });
    EXPECT_EQ(Folder.Files(), (FileMap{{"Guide.dat", "old"}}));
  }
  SetAttributes(FILE_ATTRIBUTE_NORMAL);
  if (all_powerful) GTEST_SKIP() << "the superuser may write anywhere";
}

TEST_F(WindowsWritingTest, ReplacesAHiddenDocument) {
  for (const DWORD attributes : {FILE_ATTRIBUTE_HIDDEN, FILE_ATTRIBUTE_SYSTEM}) {
    Folder.Write("Guide.dat", "old");
    SetAttributes(attributes);
    System->WriteWholeFile(File(), "new");
    EXPECT_EQ(Folder.Files(), (FileMap{{"Guide.dat", "new"}}));
    SetAttributes(FILE_ATTRIBUTE_NORMAL);
  }
}

TEST_F(WindowsWritingTest, AHiddenFileIsWrittenOrKept) {
  for (const DWORD attributes : {FILE_ATTRIBUTE_HIDDEN, FILE_ATTRIBUTE_SYSTEM}) {
    Folder.Write("Guide.dat", "old");
    SetAttributes(attributes);
    std::string expected = "new";
    try {
      System->WritePlainFile(File(), "new");
    } catch (const FileError&) {
      expected = "old";  // systems differ in whether they empty such a file
    }
    EXPECT_EQ(Folder.Files(), (FileMap{{"Guide.dat", expected}}));
    EXPECT_EQ(Attributes(), attributes);
    SetAttributes(FILE_ATTRIBUTE_NORMAL);
  }
}

TEST_F(WindowsWritingTest, KeepsAFileThatAnotherProgramHasOpen) {
  Folder.Write("Guide.dat", "old");
  for (const DWORD sharing : {DWORD{0}, DWORD{FILE_SHARE_READ}}) {
    const HeldFile held(File(), sharing);
    ExpectRefused([this] { System->WriteWholeFile(File(), "new"); });
    ExpectRefused([this] { System->WritePlainFile(File(), "new"); });
    EXPECT_EQ(std::distance(fs::directory_iterator(Folder.Path()), {}), 1);
  }
  EXPECT_EQ(Folder.Files(), (FileMap{{"Guide.dat", "old"}}));
}

TEST_F(WindowsWritingTest, WaitsForAFileThatAnotherProgramHasOpenForAMoment) {
  Folder.Write("Guide.dat", "old");
  std::atomic<bool> is_held = false;
  std::thread scanner([&] {
    const HeldFile held(File(), FILE_SHARE_READ | FILE_SHARE_WRITE);
    is_held = true;
    ::Sleep(100);
  });
  while (!is_held) ::Sleep(1);
  System->WriteWholeFile(File(), "new");
  scanner.join();
  EXPECT_EQ(Folder.Files(), (FileMap{{"Guide.dat", "new"}}));
}

TEST_F(WindowsWritingTest, CopiesAFileThatAnotherProgramOnlyReads) {
  Folder.Write("Guide.dat", "old");
  const HeldFile held(File(), FILE_SHARE_READ);
  System->CopyPlainFile(File(), File("copy.dat"));
  EXPECT_EQ(Folder.Read("copy.dat"), "old");
}

TEST_F(WindowsWritingTest, TellsOfAFileThatAnotherProgramLetsNobodyRead) {
  Folder.Write("Guide.dat", "old");
  Folder.Write("copy.dat", "before");
  const HeldFile held(File(), 0);
  EXPECT_THAT([this] { System->CopyPlainFile(File(), File("copy.dat")); },
              ThrowsMessage<FileError>(HasSubstr(PathText(File()) + "\ncould not be read: ")));
  EXPECT_EQ(Folder.Read("copy.dat"), "before");
}

TEST_F(WindowsWritingTest, GivesACopyNoAttributes) {
  Folder.Write("Guide.dat", "old");
  SetAttributes(kReadOnly | FILE_ATTRIBUTE_HIDDEN);
  System->CopyPlainFile(File(), File("copy.dat"));
  SetAttributes(FILE_ATTRIBUTE_NORMAL);
  EXPECT_EQ(Folder.Read("copy.dat"), "old");
  EXPECT_EQ(::GetFileAttributesW(File("copy.dat").c_str()) & (kReadOnly | FILE_ATTRIBUTE_HIDDEN), 0U);
}

TEST_F(WindowsWritingTest, LeavesNothingWhereNoFileCanBe) {
  for (const wchar_t* name : {L"a?b.dat", L"a|b.dat", L"a<b.dat", L"a*b.dat", L"a\tb.dat"}) {
    EXPECT_THROW(System->WriteWholeFile(File(name), "x"), FileError) << fs::path(name);
    EXPECT_THROW(System->WritePlainFile(File(name), "x"), FileError) << fs::path(name);
    EXPECT_TRUE(Folder.Files().empty()) << fs::path(name);
  }
}

TEST_F(WindowsWritingTest, LeavesNoFileOpen) {
  Folder.Write("Guide.dat", "old");
  const auto work = [this] {
    System->WriteWholeFile(File(), "new");
    System->WritePlainFile(File("plain"), "new");
    System->CopyPlainFile(File(), File("copy"));
    System->FlushVolumeOf(Folder.Path());
    EXPECT_FALSE(System->WhyNotWritable(Folder.Path()));
    EXPECT_THROW(System->CopyPlainFile(File(), Folder.Path()), FileError);
    EXPECT_THROW(System->WriteWholeFile(Folder.Path(), "new"), FileError);
  };
  work();
  DWORD before = 0;
  DWORD after = 0;
  ::GetProcessHandleCount(::GetCurrentProcess(), &before);
  for (int i = 0; i < 10; ++i) work();
  ::GetProcessHandleCount(::GetCurrentProcess(), &after);
  EXPECT_EQ(after, before);
}

TEST_F(WindowsWritingTest, WhatTheSystemHidesIsHidden) {
  Folder.Write("Guide.dat", "x");
  EXPECT_FALSE(System->IsHidden(File()));
  for (const DWORD hiding : {FILE_ATTRIBUTE_HIDDEN, FILE_ATTRIBUTE_SYSTEM,
                             FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_READONLY}) {
    SetAttributes(hiding);
    EXPECT_TRUE(System->IsHidden(File())) << hiding;
  }
  for (const DWORD showing : {FILE_ATTRIBUTE_READONLY, FILE_ATTRIBUTE_ARCHIVE, FILE_ATTRIBUTE_NORMAL}) {
    SetAttributes(showing);
    EXPECT_FALSE(System->IsHidden(File())) << showing;
  }
}

TEST_F(WindowsWritingTest, FoldersAreHiddenTooAndWhatIsNotThereIsNot) {
  const fs::path folder = File("sub");
  fs::create_directory(folder);
  EXPECT_FALSE(System->IsHidden(folder));
  ASSERT_NE(::SetFileAttributesW(folder.c_str(), FILE_ATTRIBUTE_HIDDEN), 0);
  EXPECT_TRUE(System->IsHidden(folder));
  EXPECT_FALSE(System->IsHidden(File("gone")));
}

TEST_F(WindowsWritingTest, SaysWhyAFolderCannotBeWrittenTo) {
  Folder.Write("Guide.dat", "x");
  EXPECT_FALSE(System->WhyNotWritable(Folder.Path()));
  EXPECT_EQ(System->WhyNotWritable(File("gone")), std::errc::no_such_file_or_directory);
  EXPECT_EQ(System->WhyNotWritable(File("gone") / "inner"), std::errc::no_such_file_or_directory);
  EXPECT_EQ(System->WhyNotWritable(File()), std::errc::not_a_directory);
  EXPECT_EQ(Folder.Files(), (FileMap{{"Guide.dat", "x"}}));
}

}  // namespace
}  // namespace tavrel::test
