#include <QApplication>
#include <QCursor>

#include <gmock/gmock.h>

#include "ui/ipod/publish.h"
#include "ui/ipod/publish_test.h"

namespace tavrel::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using Operation = FailingFiles::Operation;

class PublishErrorsTest : public PublishTest {
 protected:
  void SetUp() override { OpenDocument("Trio.dat", kTrio); }

  /// The dialog has said in one message, which names `file`, why it could not publish, and waits.
  void ExpectRefused(const QWidget& dialog, const std::string& file) {
    ASSERT_EQ(Messages.Shown.size(), 1U);
    EXPECT_THAT(LastMessage().Text, HasSubstr(file));
    EXPECT_EQ(LastMessage().Buttons, Buttons::Ok);
    EXPECT_EQ(LastMessage().Icon, Icon::Exclamation);
    EXPECT_EQ(Messages.LastParent, &dialog);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_TRUE(Program.Failures.empty());
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    Messages.Shown.clear();
  }

  void ExpectPublished(const std::string& folder) {
    EXPECT_EQ(Seen(Messages.Shown), Texts{kFinished});
    EXPECT_EQ(FilesIn(folder).size(), 3U);
  }
};

class FailingNoteTest : public PublishErrorsTest, public testing::WithParamInterface<Operation> {};

TEST_P(FailingNoteTest, AMessageNamesTheNoteAndTheDialogGoesOn) {
  PlayPublish([this](QWidget& dialog) {
    System.Files.FailAt(GetParam(), 2, std::errc::no_space_on_device);
    Click(dialog, "Command2");
    ExpectRefused(dialog, (Folder.Path() / "Trio" / "z002.txt").string());
    EXPECT_EQ(FilesIn("Trio").size(), 1U) << "only the note before the fault";
    Click(dialog, "Command2");
    EXPECT_FALSE(dialog.isVisible());
  });
  ExpectPublished("Trio");
}

INSTANTIATE_TEST_SUITE_P(Operations, FailingNoteTest,
                         testing::Values(Operation::CreateOrEmpty, Operation::Write, Operation::Close));

TEST_F(PublishErrorsTest, AWriteProtectedPlaceIsNamed) {
  PlayPublish([this](QWidget& dialog) {
    System.Files.FailAt(Operation::CreateOrEmpty, 1, std::errc::read_only_file_system);
    Click(dialog, "Command2");
    ExpectRefused(dialog, (Folder.Path() / "Trio" / "z001.txt").string());
    Click(dialog, "Command1");
  });
  EXPECT_TRUE(FilesIn("Trio").empty());
}

TEST_F(PublishErrorsTest, AFileInPlaceOfTheFolderIsNamed) {
  Folder.Write("Trio", "a file");
  PlayPublish([this](QWidget& dialog) {
    Click(dialog, "Command2");
    ExpectRefused(dialog, (Folder.Path() / "Trio").string());
    TypeInto(dialog, "Text1", "Other");
    Click(dialog, "Command2");
    EXPECT_FALSE(dialog.isVisible());
  });
  ExpectPublished("Other");
  EXPECT_EQ(Folder.Read("Trio"), "a file");
}

TEST_F(PublishErrorsTest, AFolderInPlaceOfANoteIsNamed) {
  std::filesystem::create_directories(Folder.Path() / "Trio" / "z003.txt");
  PlayPublish([this](QWidget& dialog) {
    Click(dialog, "Command2");
    ExpectRefused(dialog, (Folder.Path() / "Trio" / "z003.txt").string());
    Click(dialog, "Command1");
  });
}

TEST_F(PublishErrorsTest, AFolderThatVanishedIsNamed) {
  std::filesystem::create_directory(Folder.Path() / "below");
  PlayPublish([this](QWidget& dialog) {
    OpenFolder(dialog, "below");
    std::filesystem::remove(Folder.Path() / "below");
    Click(dialog, "Command2");
    ExpectRefused(dialog, (Folder.Path() / "below" / "Trio").string());
    Click(dialog, "Command1");
  });
  EXPECT_FALSE(Folder.Has("below"));
}

TEST_F(PublishErrorsTest, ANameThatIsTooLongForTheSystemIsNamed) {
  PlayPublish([this](QWidget& dialog) {
    TypeInto(dialog, "Text1", QString(300, 'n'));
    Click(dialog, "Command2");
    ExpectRefused(dialog, std::string(300, 'n'));
    Click(dialog, "Command1");
  });
}

TEST_F(PublishErrorsTest, ANameThatTheSystemRefusesIsNamedAndAnotherOneTaken) {
  System.RefusedNames = {"NUL"};
  const auto files = Folder.Files();
  PlayPublish([&](QWidget& dialog) {
    TypeInto(dialog, "Text1", "NUL");
    Click(dialog, "Command2");
    ASSERT_FALSE(Messages.Shown.empty());
    EXPECT_THAT(LastMessage().Text, HasSubstr("Choose another name."));
    ExpectRefused(dialog, "NUL");
    EXPECT_EQ(Folder.Files(), files);
    TypeInto(dialog, "Text1", "Other");
    Click(dialog, "Command2");
    EXPECT_FALSE(dialog.isVisible());
  });
  ExpectPublished("Other");
}

/// A music link that cannot exist ends the program, wherever the page names it.
class ImpossibleMusicTest : public PublishTest, public testing::WithParamInterface<const char*> {};

TEST_P(ImpossibleMusicTest, EndsTheProgramInTheMiddleOfPublishing) {
  OpenDocument("Doc.dat",
               std::string("\r\n 1 ,<text>a</text>\r\n 2 ,") + GetParam() + "\r\n 3 ,<text>c</text>\r\n");
  PlayPublish([](QWidget& dialog) {
    Click(dialog, "Command2");
    dialog.close();
  });
  EXPECT_EQ(Program.Failures.size(), 1U);
  EXPECT_TRUE(Messages.Shown.empty());
  EXPECT_TRUE(Folder.Has("Doc/z001.txt"));
  EXPECT_FALSE(Folder.Has("Doc/z002.txt"));
  EXPECT_FALSE(Folder.Has("Doc/z003.txt"));
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

INSTANTIATE_TEST_SUITE_P(
    Pages, ImpossibleMusicTest,
    testing::Values("<text>t</text><link><linktext>a</linktext><linkto>M101</linkto></link>",
                    "<text>see <a></text><link><linktext></linktext><linkto>M-1</linkto></link>",
                    "<music>Hear</music><music>M101</music>"));

/// Notes the pointer's shape whenever a note is written.
class WatchingPlatform final : public Platform {
 public:
  explicit WatchingPlatform(Platform& platform) : platform_(platform) {}

  std::vector<Qt::CursorShape> Shapes;

  const CodePage& SystemCodePage() const override { return platform_.SystemCodePage(); }
  std::vector<Volume> Volumes() const override { return platform_.Volumes(); }
  bool IsReady(const Volume& volume) const override { return platform_.IsReady(volume); }
  std::error_code WhyNotReadable(const std::filesystem::path& folder) const override {
    return platform_.WhyNotReadable(folder);
  }
  void WriteWholeFile(const std::filesystem::path& file, std::string_view bytes) override {
    platform_.WriteWholeFile(file, bytes);
  }
  void WritePlainFile(const std::filesystem::path& file, std::string_view bytes) override {
    const QCursor* cursor = QApplication::overrideCursor();
    Shapes.push_back(cursor == nullptr ? Qt::ArrowCursor : cursor->shape());
    platform_.WritePlainFile(file, bytes);
  }
  std::error_code WhyNotWritable(const std::filesystem::path& folder) const override {
    return platform_.WhyNotWritable(folder);
  }
  bool IsSystemVolume(const Volume& volume) const override { return platform_.IsSystemVolume(volume); }
  bool RefusesName(const std::filesystem::path& name) const override { return platform_.RefusesName(name); }
  bool IsHidden(const std::filesystem::path& file) const override { return platform_.IsHidden(file); }
  void CopyPlainFile(const std::filesystem::path& from, const std::filesystem::path& to) override {
    platform_.CopyPlainFile(from, to);
  }
  void FlushVolumeOf(const std::filesystem::path& folder) override { platform_.FlushVolumeOf(folder); }
  bool OpenInBrowser(const std::string& target) override { return platform_.OpenInBrowser(target); }
  bool OpenMail(const std::string& address) override { return platform_.OpenMail(address); }
  void StartProgram(const std::filesystem::path& program) override { platform_.StartProgram(program); }
  std::optional<RegistryValue> ReadRegistry(RegistryRoot root, const std::string& key,
                                            const std::string& name) const override {
    return platform_.ReadRegistry(root, key, name);
  }

 private:
  Platform& platform_;
};

TEST_F(PublishErrorsTest, TheHourglassShowsWhileNotesAreWritten) {
  WatchingPlatform platform(System);
  App app{State, platform, Messages, Program};
  tavrel::Publish dialog(app, &Window());
  dialog.show();
  Click(dialog, "Command2");
  EXPECT_EQ(platform.Shapes, std::vector<Qt::CursorShape>(3, Qt::WaitCursor));
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  ExpectPublished("Trio");
}

}  // namespace
}  // namespace tavrel::test
