#include "core/document/backups.h"

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <string>

#include "core/text/file_names.h"
#include "core/text/run_time_error.h"
#include "support/fake_platform.h"
#include "support/fixtures.h"
#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::ThrowsMessage;
using FileMap = std::map<std::string, std::string>;
using Operation = FailingFiles::Operation;

const std::string kLetters24 = "abcdefghijklmnopqrstuvwx";
const std::string kLetters25 = kLetters24 + "y";

class BackupsTest : public testing::Test {
 protected:
  BackupsTest() { State.ProgramFolder = Folder.Path(); }

  void BackUp(const fs::path& name) { BackUpDocument(name, State, System); }
  void Restore(const fs::path& name) { RestoreDocument(name, State, System); }

  void ExpectFileError(const std::string& name, const std::function<void()>& action) {
    EXPECT_THAT(action, ThrowsMessage<FileError>(HasSubstr(PathText(Folder.Path() / name))));
  }

  TemporaryFolder Folder;
  FakePlatform System;
  Global State;
};

std::string EveryByte() {
  std::string bytes;
  for (int i = 0; i < 300'000; ++i) bytes += static_cast<char>(i * 7 % 256);
  return bytes;
}

TEST_F(BackupsTest, AreByteForByteCopies) {
  for (const std::string& bytes :
       {std::string(kGuide), EveryByte(), std::string("\n\r\x1A"), std::string()}) {
    Folder.Write("Guide.dat", bytes);
    BackUp("Guide.dat");
    EXPECT_TRUE(Folder.Files() == (FileMap{{"Guide.dat", bytes}, {"Guide.bak", bytes}})) << bytes.size();
  }
}

TEST_F(BackupsTest, ReplaceOlderOnesAndAreCopiedBack) {
  Folder.Write("Guide.dat", kGuide);
  Folder.Write("Guide.bak", "an older and much longer backup" + std::string(1000, '.'));
  BackUp("Guide.dat");
  EXPECT_EQ(Folder.Read("Guide.bak"), kGuide);
  Folder.Write("Guide.dat", kSongs);
  Restore("Guide.bak");
  EXPECT_EQ(Folder.Files(),
            (FileMap{{"Guide.dat", std::string(kGuide)}, {"Guide.bak", std::string(kGuide)}}));
}

TEST_F(BackupsTest, BringADeletedDocumentBack) {
  Folder.Write("Guide.bak", kGuide);
  Restore("Guide.bak");
  EXPECT_EQ(Folder.Files(),
            (FileMap{{"Guide.dat", std::string(kGuide)}, {"Guide.bak", std::string(kGuide)}}));
}

TEST_F(BackupsTest, AreNamedByThePartBeforeTheFirstFullStop) {
  Folder.Write("my.notes.dat", "notes");
  Folder.Write("my.dat", "mine");
  BackUp("my.notes.dat");
  EXPECT_EQ(Folder.Files(), (FileMap{{"my.notes.dat", "notes"}, {"my.dat", "mine"}, {"my.bak", "mine"}}));

  Folder.Write("my.notes.bak", "older notes");
  Folder.Write("my.bak", "older");
  Restore("my.notes.bak");
  EXPECT_EQ(Folder.Files(), (FileMap{{"my.notes.dat", "notes"},
                                     {"my.dat", "older"},
                                     {"my.notes.bak", "older notes"},
                                     {"my.bak", "older"}}));
}

TEST_F(BackupsTest, FailIfThePartBeforeTheFirstFullStopIsNoDocument) {
  Folder.Write("my.notes.dat", "notes");
  Folder.Write("my.notes.bak", "older notes");
  ExpectFileError("my.dat", [&] { BackUp("my.notes.dat"); });
  ExpectFileError("my.bak", [&] { Restore("my.notes.bak"); });
  EXPECT_EQ(Folder.Files(), (FileMap{{"my.notes.dat", "notes"}, {"my.notes.bak", "older notes"}}));
}

TEST_F(BackupsTest, AreMadeOfAllDocuments) {
  for (const char* name : {"a", "b", "c"}) Folder.Write(std::string(name) + ".dat", name);
  Folder.Write("b.bak", "old");
  for (const FolderFile& file : ListFiles(Folder.Path(), ".dat", System.SystemCodePage())) BackUp(file.Name);
  EXPECT_EQ(
      Folder.Files(),
      (FileMap{
          {"a.dat", "a"}, {"b.dat", "b"}, {"c.dat", "c"}, {"a.bak", "a"}, {"b.bak", "b"}, {"c.bak", "c"}}));
}

TEST_F(BackupsTest, AreAllCopiedBack) {
  Folder.Write("a.bak", "a");
  Folder.Write("b.bak", "b");
  Folder.Write("a.dat", "other");
  for (const FolderFile& file : ListFiles(Folder.Path(), ".bak", System.SystemCodePage())) Restore(file.Name);
  EXPECT_EQ(Folder.Files(), (FileMap{{"a.dat", "a"}, {"b.dat", "b"}, {"a.bak", "a"}, {"b.bak", "b"}}));
}

TEST_F(BackupsTest, TakeANameOf24Letters) {
  Folder.Write(kLetters24 + ".dat", "x");
  BackUp(kLetters24 + ".dat");
  EXPECT_EQ(Folder.Files(), (FileMap{{kLetters24 + ".dat", "x"}, {kLetters24 + ".bak", "x"}}));
  Folder.Write(kLetters24 + ".bak", "older");
  Restore(kLetters24 + ".bak");
  EXPECT_EQ(Folder.Read(kLetters24 + ".dat"), "older");
}

TEST_F(BackupsTest, FailForANameOf25LettersOrMore) {
  for (const std::string& name : {kLetters25, kLetters25 + "z", std::string(100, 'n')}) {
    Folder.Write(name + ".dat", "x");
    Folder.Write(name + ".bak", "y");
    ExpectFileError("dat", [&] { BackUp(name + ".dat"); });
    ExpectFileError("bak", [&] { Restore(name + ".bak"); });
    EXPECT_EQ(Folder.Read(name + ".dat"), "x");
    EXPECT_EQ(Folder.Read(name + ".bak"), "y");
  }
  EXPECT_FALSE(Folder.Has("dat") || Folder.Has("bak"));
}

TEST_F(BackupsTest, CopyTheFileDatForANameOf25LettersOrMore) {
  Folder.Write(kLetters25 + ".dat", "x");
  Folder.Write("dat", "bare");
  BackUp(kLetters25 + ".dat");
  EXPECT_EQ(Folder.Files(), (FileMap{{kLetters25 + ".dat", "x"}, {"dat", "bare"}, {"bak", "bare"}}));
  Folder.Write("bak", "other");
  Restore(kLetters25 + ".bak");
  EXPECT_EQ(Folder.Files(), (FileMap{{kLetters25 + ".dat", "x"}, {"dat", "other"}, {"bak", "other"}}));
}

TEST_F(BackupsTest, OfNamesThatAgreeUpToTheFirstFullStopAreTheSame) {
  Folder.Write(kLetters24 + ".1.dat", "one");
  Folder.Write(kLetters24 + ".2.dat", "two");
  Folder.Write(kLetters24 + ".dat", "plain");
  BackUp(kLetters24 + ".2.dat");
  EXPECT_EQ(Folder.Files(), (FileMap{{kLetters24 + ".1.dat", "one"},
                                     {kLetters24 + ".2.dat", "two"},
                                     {kLetters24 + ".dat", "plain"},
                                     {kLetters24 + ".bak", "plain"}}));
}

TEST_F(BackupsTest, TakeNamesThatTheCodePageDoesNotHold) {
  for (const fs::path& document : {fs::path(U"\u4E2D\u6587\u00E9.dat"), fs::path(U"\U0001F600 x.dat")}) {
    const fs::path backup = fs::path(document).replace_extension(".bak");
    Folder.Write(document, "x");
    BackUp(document);
    EXPECT_EQ(Folder.Read(backup), "x");
    Folder.Write(backup, "y");
    Restore(backup);
    EXPECT_EQ(Folder.Read(document), "y");
  }
}

TEST_F(BackupsTest, CountTheCharactersOfANameAndNotItsBytes) {
  const fs::path fits(std::u32string(24, U'\u4E2D') + U".dat");
  Folder.Write(fits, "x");
  BackUp(fits);
  EXPECT_EQ(Folder.Read(fs::path(std::u32string(24, U'\u4E2D') + U".bak")), "x");

  const fs::path too_long(std::u32string(25, U'\u4E2D') + U".dat");
  Folder.Write(too_long, "x");
  ExpectFileError("dat", [&] { BackUp(too_long); });
}

#ifndef _WIN32
TEST_F(BackupsTest, TakeNamesThatAreNotText) {
  Folder.Write("caf\xE9.dat", "x");
  BackUp("caf\xE9.dat");
  EXPECT_EQ(Folder.Files(), (FileMap{{"caf\xE9.dat", "x"}, {"caf\xE9.bak", "x"}}));
}
#endif

TEST_F(BackupsTest, TakeANameThatIsAllExtension) {
  Folder.Write(".dat", "x");
  BackUp(".dat");
  EXPECT_EQ(Folder.Files(), (FileMap{{".dat", "x"}, {".bak", "x"}}));
}

TEST_F(BackupsTest, FailForADocumentThatIsGone) {
  Folder.Write("Guide.bak", "old");
  ExpectFileError("Guide.dat", [&] { BackUp("Guide.dat"); });
  EXPECT_EQ(Folder.Files(), (FileMap{{"Guide.bak", "old"}}));
  Folder.Write("Trio.dat", "mine");
  ExpectFileError("Trio.bak", [&] { Restore("Trio.bak"); });
  EXPECT_EQ(Folder.Files(), (FileMap{{"Guide.bak", "old"}, {"Trio.dat", "mine"}}));
}

TEST_F(BackupsTest, NeverReplaceAFolder) {
  Folder.Write("Guide.dat", kGuide);
  Folder.Write("Guide.bak/inside", "x");
  ExpectFileError("Guide.bak", [&] { BackUp("Guide.dat"); });
  EXPECT_EQ(Folder.Files(), (FileMap{{"Guide.dat", std::string(kGuide)}, {"Guide.bak/inside", "x"}}));
}

TEST_F(BackupsTest, AreNotMadeOfAFolder) {
  Folder.Write("Guide.dat/inside", "x");
  Folder.Write("Guide.bak", "old");
  ExpectFileError("Guide.dat", [&] { BackUp("Guide.dat"); });
  EXPECT_EQ(Folder.Files(), (FileMap{{"Guide.dat/inside", "x"}, {"Guide.bak", "old"}}));
}

TEST_F(BackupsTest, NeverReplaceAReadOnlyFile) {
  Folder.Write("Guide.dat", kGuide);
  Folder.Write("Guide.bak", "old");
  const fs::path backup = Folder.Path() / "Guide.bak";
  fs::permissions(backup, fs::perms::owner_read, fs::perm_options::replace);
  ExpectFileError("Guide.bak", [&] { BackUp("Guide.dat"); });
  fs::permissions(backup, fs::perms::owner_all, fs::perm_options::replace);
  EXPECT_EQ(Folder.Files(), (FileMap{{"Guide.dat", std::string(kGuide)}, {"Guide.bak", "old"}}));
}

TEST_F(BackupsTest, FindAFileWhoseExtensionIsWrittenInCapitals) {
  Folder.Write("Guide.DAT", kGuide);
  BackUp("Guide.DAT");
  EXPECT_EQ(Folder.Files(),
            (FileMap{{"Guide.DAT", std::string(kGuide)}, {"Guide.bak", std::string(kGuide)}}));
  Folder.Write("Trio.BAK", kTrio);
  Restore("Trio.BAK");
  EXPECT_EQ(Folder.Read("Trio.dat"), kTrio);
}

TEST_F(BackupsTest, LeaveTheOldFileIfTheDiskIsFull) {
  Folder.Write("Guide.dat", kGuide);
  Folder.Write("Guide.bak", "old");
  const FileMap before = Folder.Files();
  for (const Operation step :
       {Operation::CreateNew, Operation::Write, Operation::Flush, Operation::Close, Operation::Replace}) {
    System.Files.FailAt(step, 1, std::errc::no_space_on_device);
    ExpectFileError("Guide.bak", [&] { BackUp("Guide.dat"); });
    EXPECT_EQ(Folder.Files(), before);
    System.Files.FailAt(step, 1, std::errc::no_space_on_device);
    ExpectFileError("Guide.dat", [&] { Restore("Guide.bak"); });
    EXPECT_EQ(Folder.Files(), before);
  }
}

TEST_F(BackupsTest, LeaveTheOldFileIfTheDiskBecomesFullHalfway) {
  Folder.Write("Guide.dat", kGuide);
  Folder.Write("Guide.bak", "old");
  System.Files.CutWritesAt(50);
  System.Files.FailAt(Operation::Write, 3, std::errc::no_space_on_device);
  ExpectFileError("Guide.bak", [&] { BackUp("Guide.dat"); });
  EXPECT_EQ(Folder.Files(), (FileMap{{"Guide.dat", std::string(kGuide)}, {"Guide.bak", "old"}}));
}

TEST_F(BackupsTest, LeaveNothingIfTheFirstOneCannotBeMade) {
  Folder.Write("Guide.dat", kGuide);
  System.Files.FailAt(Operation::Flush, 1, std::errc::no_space_on_device);
  ExpectFileError("Guide.bak", [&] { BackUp("Guide.dat"); });
  EXPECT_EQ(Folder.Files(), (FileMap{{"Guide.dat", std::string(kGuide)}}));
}

}  // namespace
}  // namespace tavrel::test
