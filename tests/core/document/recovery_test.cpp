#include "core/document/recovery.h"

#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>

#include "core/text/run_time_error.h"
#include "support/fake_platform.h"
#include "support/fixtures.h"
#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;

const std::string kPages = "\r\n 1 ,<title>A</title>\r\n 2 ,<title>B</title>\r\n";  // 46 bytes

class RecoveryTest : public testing::Test {
 protected:
  RecoveryTest() { System.RefusedNames = {"NUL.dat"}; }

  void Keep(const fs::path& document, const std::string& text) { KeepDraft({document, text}, File, System); }

  Recovered Recover() { return RecoverDraft(File, System); }

  bool IsKept() const { return Folder.Has("left.recovery"); }

  TemporaryFolder Folder;
  FakePlatform System;
  const fs::path File = Folder.Path() / "left.recovery";
};

TEST_F(RecoveryTest, ARecoveryFileIsTheDocumentAfterItsLengthAndName) {
  ASSERT_EQ(kPages.size(), 46U);
  Keep("Guide.dat", kPages);
  EXPECT_EQ(Folder.Read("left.recovery"), "recovery,46,Guide.dat\r\n" + kPages);
}

TEST_F(RecoveryTest, ADraftBecomesADocumentOfItsOwn) {
  Folder.Write("Guide.dat", kTrio);
  Keep("Guide.dat", kPages);
  const Recovered recovered = Recover();
  EXPECT_EQ(recovered.Document, Folder.Path() / "Guide (recovered).dat");
  EXPECT_TRUE(recovered.Damaged.empty());
  EXPECT_EQ(Folder.Read("Guide (recovered).dat"), kPages);
  EXPECT_EQ(Folder.Read("Guide.dat"), kTrio);
  EXPECT_FALSE(IsKept());
}

TEST_F(RecoveryTest, ADocumentWithoutAFileIsBroughtBackToo) {
  Keep("Never saved.dat", kPages);
  EXPECT_EQ(Recover().Document.filename(), "Never saved (recovered).dat");
}

TEST_F(RecoveryTest, NothingIsOverwritten) {
  Folder.Write("Guide (recovered).dat", "an earlier one");
  Keep("Guide.dat", kPages);
  EXPECT_EQ(Recover().Document.filename(), "Guide 2 (recovered).dat");
  EXPECT_EQ(Folder.Read("Guide (recovered).dat"), "an earlier one");
}

TEST_F(RecoveryTest, WhatWasRecoveredBeforeKeepsItsFirstName) {
  Folder.Write("Guide (recovered).dat", kTrio);
  Keep("Guide (recovered).dat", kPages);
  EXPECT_EQ(Recover().Document.filename(), "Guide 2 (recovered).dat");
}

TEST_F(RecoveryTest, NamesBeyondAsciiAreKept) {
  const fs::path name(u8"K\u00FCche \u0416.dat");
  Keep(name, kPages);
  EXPECT_EQ(Recover().Document.filename(), fs::path(u8"K\u00FCche \u0416 (recovered).dat"));
}

TEST_F(RecoveryTest, ADraftThatWasSavedIsOnlyRemoved) {
  Folder.Write("Guide.dat", kPages);
  Keep("Guide.dat", kPages);
  EXPECT_TRUE(Recover().Document.empty());
  EXPECT_EQ(Folder.Files().size(), 1U);
}

TEST_F(RecoveryTest, ADraftIsSavedWhateverTheLinesOfItsFileEndWith) {
  Folder.Write("Guide.dat", "\n1,<title>A</title>\n2,<title>B</title>");
  EXPECT_TRUE(IsSaved({"Guide.dat", kPages}, Folder.Path()));
  EXPECT_FALSE(IsSaved({"Guide.dat", "\r\n 1 ,<title>A</title>\r\n"}, Folder.Path()));
  EXPECT_FALSE(IsSaved({"Gone.dat", kPages}, Folder.Path()));
}

TEST_F(RecoveryTest, ADraftIsNotSavedInADamagedFile) {
  Folder.Write("Guide.dat", "\r\n 1001 ,<title>x</title>\r\n");
  EXPECT_FALSE(IsSaved({"Guide.dat", kPages}, Folder.Path()));
}

TEST_F(RecoveryTest, AnEmptyFileIsOnlyRemoved) {
  for (const char* nothing : {"", "recovery,46,Guide.dat\r\n"}) {
    Folder.Write("left.recovery", nothing);
    const Recovered recovered = Recover();
    EXPECT_TRUE(recovered.Document.empty());
    EXPECT_TRUE(recovered.Damaged.empty());
    EXPECT_TRUE(Folder.Files().empty());
  }
}

TEST_F(RecoveryTest, OfATruncatedFileAllThatIsThereIsBroughtBackAndTheFileKept) {
  const std::string cut = "recovery,46,Guide.dat\r\n\r\n 1 ,<title>A</title>\r\n 2 ,<title>B";
  Folder.Write("left.recovery", cut);
  const Recovered recovered = Recover();
  EXPECT_EQ(Folder.Read("Guide (recovered).dat"), "\r\n 1 ,<title>A</title>\r\n 2 ,<title>B\r\n");
  EXPECT_EQ(recovered.Document.filename(), "Guide (recovered).dat");
  EXPECT_EQ(recovered.Damaged.filename(), "Guide (damaged).recovery");
  EXPECT_EQ(Folder.Read("Guide (damaged).recovery"), cut);
  EXPECT_FALSE(IsKept());
}

TEST_F(RecoveryTest, OfAGarbledFileTheGoodLinesAreBroughtBack) {
  const std::string text =
      " 1 ,<song>S</song>\r\n 101 ,x\r\n\r\n 1 ,<title>A</title>\r\n\xFF\xFE,??\r\n 1001 ,x\r\n 3 "
      ",<title>C</title>\r\n";
  Folder.Write("left.recovery", "recovery," + std::to_string(text.size()) + ",Guide.dat\r\n" + text);
  const Recovered recovered = Recover();
  EXPECT_EQ(Folder.Read("Guide (recovered).dat"),
            " 1 ,<song>S</song>\r\n\r\n 1 ,<title>A</title>\r\n 3 ,<title>C</title>\r\n");
  EXPECT_TRUE(Folder.Has("Guide (damaged).recovery"));
  EXPECT_FALSE(recovered.Damaged.empty());
}

TEST_F(RecoveryTest, AFileWithoutSenseIsPutAsideAsItIs) {
  for (const std::string sense :
       {"\x7F\x45LF\r\n\x01\x02", "recovery", "recovery,\r\nno", "recovery,5", "x"}) {
    const TemporaryFolder folder;
    folder.Write("left.recovery", sense);
    const Recovered recovered = RecoverDraft(folder.Path() / "left.recovery", System);
    EXPECT_TRUE(recovered.Document.empty()) << sense;
    EXPECT_EQ(folder.Files().size(), 1U) << sense;
    EXPECT_EQ(folder.Read("Project (damaged).recovery"), sense);
  }
}

TEST_F(RecoveryTest, NoNameLeadsOutOfTheFolder) {
  const TemporaryFolder outer;
  fs::create_directory(outer.Path() / "inner");
  const std::string far = (outer.Path() / "far.dat").generic_string();
  for (const std::string& name :
       {std::string("../evil.dat"), far, std::string("a/b.dat"), std::string(".."), std::string("."),
        std::string(), std::string(".dat"), std::string("NUL.dat"), std::string("a\tb.dat"),
        std::string("a\0b.dat", 7)}) {
    const fs::path file = outer.Path() / "inner" / "left.recovery";
    outer.Write(file, "recovery,46," + name + "\r\n" + kPages);
    EXPECT_EQ(RecoverDraft(file, System).Document, outer.Path() / "inner" / "Project (recovered).dat")
        << name;
    EXPECT_EQ(outer.Files().size(), 1U) << name;
    fs::remove(outer.Path() / "inner" / "Project (recovered).dat");
  }
}

TEST_F(RecoveryTest, AnUnreadableFileStaysWhereItIs) {
  fs::create_directory(File);
  EXPECT_THROW(Recover(), FileError);
  EXPECT_TRUE(fs::is_directory(File));
}

TEST_F(RecoveryTest, AFileThatCannotBeRemovedIsBroughtBackOnce) {
  Keep("Guide.dat", kPages);
  const std::string kept = Folder.Read("left.recovery");
  Recover();
  Folder.Write("left.recovery", kept);
  EXPECT_EQ(Recover().Document.filename(), "Guide (recovered).dat");
  EXPECT_EQ(Folder.Files().size(), 1U);
}

TEST_F(RecoveryTest, ADamagedFileOfALongNameIsPutAsideToo) {
  Folder.Write("left.recovery", "recovery,9," + std::string(240, 'n') + ".dat\r\n\r\n 1 ,a");
  const Recovered recovered = Recover();
  EXPECT_EQ(recovered.Damaged.filename(), "Project (damaged).recovery");
  EXPECT_TRUE(recovered.Trouble.empty());
  EXPECT_FALSE(IsKept());
}

TEST_F(RecoveryTest, ANameOfSeveralLinesDoesNotSpoilTheDraft) {
  Keep("a\r\nb.dat", kPages);
  const Recovered recovered = Recover();
  EXPECT_EQ(recovered.Document.filename(), "Project (recovered).dat");
  EXPECT_TRUE(recovered.Damaged.empty());
}

TEST_F(RecoveryTest, AnEnormousFileIsNotRead) {
  Folder.Write("left.recovery", "");
  fs::resize_file(File, (256U << 20U) + 1);
  EXPECT_THROW(Recover(), FileError);
  EXPECT_TRUE(IsKept());
}

#ifndef _WIN32
TEST_F(RecoveryTest, APipeIsNotWaitedFor) {
  ASSERT_EQ(mkfifo(File.c_str(), 0666), 0);
  EXPECT_THROW(Recover(), FileError);
}
#endif

TEST_F(RecoveryTest, APlainNameIsTakenWhereTheDocumentsOwnIsRefused) {
  Keep(std::string(240, 'n') + ".dat", kPages);
  EXPECT_EQ(Recover().Document.filename(), "Project (recovered).dat");
}

TEST_F(RecoveryTest, AFileThatCannotBeBroughtBackStaysWhereItIs) {
  Keep("Guide.dat", kPages);
  System.Files.CutWritesAt(0);
  EXPECT_THROW(Recover(), FileError);
  EXPECT_EQ(Folder.Files().size(), 1U);
  EXPECT_EQ(Folder.Read("left.recovery"), "recovery,46,Guide.dat\r\n" + kPages);
}

}  // namespace
}  // namespace tavrel::test
