#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>

#include "core/document/document_file.h"
#include "core/ipod/note_writer.h"
#include "core/text/run_time_error.h"
#include "support/fake_platform.h"
#include "support/fixtures.h"
#include "support/temporary_folder.h"
#include "support/tree_snapshot.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::ThrowsMessage;
using Operation = FailingFiles::Operation;

const std::string kFirstNote = "<title>-A</title>\r\n<meta name=\"LineWrap\" content=\"false\">\r\none\r\n";

/// Publishes three notes into "chosen/Trio", where links lead out of it.
class NotesStayInsideTest : public testing::Test {
 protected:
  NotesStayInsideTest() {
    ReadDocumentText(kTrio, State);
    Folder.Write("elsewhere/kept.txt", "kept");
    Folder.Write("elsewhere/deep/z001.txt", "deep");
    fs::create_directories(Project());
  }

  fs::path Project() const { return Folder.Path() / "chosen" / "Trio"; }
  void Publish() { PublishNotes(State, System, Project(), {}); }

  void ExpectRefused(const std::string& file) {
    EXPECT_THAT([&] { Publish(); }, ThrowsMessage<FileError>(HasSubstr(PathText(Folder.Path() / file))));
  }

  TemporaryFolder Folder;
  FakePlatform System;
  Global State;
};

TEST_F(NotesStayInsideTest, ANoteTakesThePlaceOfALinkThatLeadsOut) {
  fs::create_symlink("../../elsewhere/kept.txt", Project() / "z001.txt");
  fs::create_symlink(Folder.Path() / "elsewhere/deep/z001.txt", Project() / "z002.txt");
  const TreeSnapshot before(Folder.Path());
  Publish();
  EXPECT_THAT(before.Changes({"chosen/Trio"}), IsEmpty());
  EXPECT_FALSE(fs::is_symlink(Project() / "z001.txt"));
  EXPECT_EQ(Folder.Read("chosen/Trio/z001.txt"), kFirstNote);
  EXPECT_FALSE(fs::is_symlink(Project() / "z002.txt"));
}

TEST_F(NotesStayInsideTest, ALinkToNothingMakesNothingThere) {
  fs::create_symlink("../../elsewhere/new.txt", Project() / "z001.txt");
  const TreeSnapshot before(Folder.Path());
  Publish();
  EXPECT_THAT(before.Changes({"chosen/Trio"}), IsEmpty());
  EXPECT_EQ(Folder.Read("chosen/Trio/z001.txt"), kFirstNote);
}

TEST_F(NotesStayInsideTest, ALinkToItselfIsReplacedToo) {
  fs::create_symlink("z001.txt", Project() / "z001.txt");
  Publish();
  EXPECT_EQ(Folder.Read("chosen/Trio/z001.txt"), kFirstNote);
}

TEST_F(NotesStayInsideTest, ALinkToAnotherNoteDoesNotOverwriteIt) {
  fs::create_symlink("z001.txt", Project() / "z003.txt");
  Publish();
  EXPECT_EQ(Folder.Read("chosen/Trio/z001.txt"), kFirstNote);
  EXPECT_THAT(Folder.Read("chosen/Trio/z003.txt"), HasSubstr("three"));
}

TEST_F(NotesStayInsideTest, ANoteThatFailsTakesNothingFromWhereALinkLed) {
  for (const Operation step : {Operation::CreateOrEmpty, Operation::Write, Operation::Close}) {
    fs::remove(Project() / "z001.txt");
    fs::create_symlink("../../elsewhere/kept.txt", Project() / "z001.txt");
    const TreeSnapshot before(Folder.Path());
    System.Files.FailAt(step, 1, std::errc::no_space_on_device);
    ExpectRefused("chosen/Trio/z001.txt");
    EXPECT_THAT(before.Changes({"chosen/Trio"}), IsEmpty());
    EXPECT_FALSE(Folder.Has("chosen/Trio/z001.txt")) << "no half of a note";
  }
}

TEST_F(NotesStayInsideTest, ALinkToAFolderIsAFolderInTheNotesPlace) {
  fs::create_directory_symlink("../../elsewhere", Project() / "z001.txt");
  const TreeSnapshot before(Folder.Path());
  ExpectRefused("chosen/Trio/z001.txt");
  EXPECT_THAT(before.Changes(), IsEmpty());
}

TEST_F(NotesStayInsideTest, APipeInTheNotesPlaceIsNamedAndNotWaitedFor) {
  ASSERT_EQ(::mkfifo((Project() / "z002.txt").c_str(), 0600), 0);
  const TreeSnapshot before(Folder.Path());
  ExpectRefused("chosen/Trio/z002.txt");
  EXPECT_THAT(before.Changes({"chosen/Trio/z001.txt"}), IsEmpty());
}

TEST_F(NotesStayInsideTest, ALinkToAPipeIsReplaced) {
  ASSERT_EQ(::mkfifo((Folder.Path() / "elsewhere/pipe").c_str(), 0600), 0);
  fs::create_symlink("../../elsewhere/pipe", Project() / "z001.txt");
  const TreeSnapshot before(Folder.Path());
  Publish();
  EXPECT_THAT(before.Changes({"chosen/Trio"}), IsEmpty());
}

TEST_F(NotesStayInsideTest, AProjectThatIsALinkIsPublishedWhereItLiesAndNowhereElse) {
  fs::remove(Project());
  fs::create_directory_symlink("../elsewhere", Project());
  const TreeSnapshot before(Folder.Path());
  Publish();
  EXPECT_THAT(before.Changes({"elsewhere/z001.txt", "elsewhere/z002.txt", "elsewhere/z003.txt"}), IsEmpty());
  EXPECT_EQ(Folder.Read("elsewhere/z001.txt"), kFirstNote);
}

TEST_F(NotesStayInsideTest, AProjectThatIsALinkToNothingOrToItselfIsRefused) {
  for (const char* target : {"../elsewhere/gone", "Trio"}) {
    fs::remove(Project());
    fs::create_directory_symlink(target, Project());
    const TreeSnapshot before(Folder.Path());
    ExpectRefused("chosen/Trio");
    EXPECT_THAT(before.Changes(), IsEmpty());
  }
}

TEST_F(NotesStayInsideTest, NoTextOfAPageBecomesAPlaceToWriteTo) {
  // A target that begins with a number is put into the note's address as it is, and nowhere else.
  State.Page(1) =
      "<title>../../elsewhere/kept.txt</title><text><up></text><link><linktext>../x</linktext>"
      "<linkto>1/../../../elsewhere/kept</linkto></link><music>/etc/x</music><music>M1</music>";
  State.MusicLink(1) = "<song>../../elsewhere/kept.txt</song>";
  const TreeSnapshot before(Folder.Path());
  Publish();
  EXPECT_THAT(before.Changes({"chosen/Trio/z001.txt", "chosen/Trio/z002.txt", "chosen/Trio/z003.txt"}),
              IsEmpty());
  EXPECT_THAT(Folder.Read("chosen/Trio/z001.txt"),
              HasSubstr("<a href=\"z1/../../../elsewhere/kept.txt\">../x</a>"));
}

}  // namespace
}  // namespace tavrel::test
