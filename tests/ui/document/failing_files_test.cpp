#include <gmock/gmock.h>

#include "ui/document/document_test.h"

namespace tavrel::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using Operation = FailingFiles::Operation;

/// Writing fails at one operation: the program ends and the old file stays.
class FailingSaveTest : public DocumentTest, public testing::WithParamInterface<Operation> {
 protected:
  void FailNextWrite() { System.Files.FailAt(GetParam(), 1, std::errc::no_space_on_device); }
};

TEST_P(FailingSaveTest, SaveEndsTheProgramAndLeavesTheOldFile) {
  OpenDocument("Guide.dat", kGuide);
  const auto files = Folder.Files();
  TypeInto(Title(), "X");
  FailNextWrite();
  Choose("FileSave");
  EXPECT_THAT(Program.Failures, ElementsAre(HasSubstr("Guide.dat")));
  EXPECT_EQ(Folder.Files(), files);
  EXPECT_TRUE(Messages.Shown.empty()) << "nothing says that the project was saved";
}

TEST_P(FailingSaveTest, SaveAsEndsTheProgramAndLeavesTheOldFile) {
  Folder.Write("Trio.dat", kTrio);
  OpenDocument("Guide.dat", kGuide);
  const auto files = Folder.Files();
  FailNextWrite();
  Play("FileSaveAs", "SaveAs", [](QWidget& dialog) {
    TypeInto(dialog, "Text1", "Trio");
    Click(dialog, "Command1");
    dialog.close();
  });
  EXPECT_THAT(Program.Failures, ElementsAre(HasSubstr("Trio.dat")));
  EXPECT_EQ(Folder.Files(), files);
}

TEST_P(FailingSaveTest, NewEndsTheProgramAndLeavesTheOldFile) {
  Folder.Write("Guide.dat", kGuide);
  Start();
  const auto files = Folder.Files();
  FailNextWrite();
  Play("FileNew", "NewDoc", [](QWidget& dialog) {
    TypeInto(dialog, "Text1", "Guide");
    Click(dialog, "Command1");
    dialog.close();
  });
  EXPECT_THAT(Program.Failures, ElementsAre(HasSubstr("Guide.dat")));
  EXPECT_EQ(Folder.Files(), files);
}

INSTANTIATE_TEST_SUITE_P(Operations, FailingSaveTest,
                         testing::Values(Operation::CreateNew, Operation::Write, Operation::Flush,
                                         Operation::Close, Operation::Replace));

using VanishedFolderTest = DocumentTest;

TEST_F(VanishedFolderTest, SavingIntoAFolderThatIsGoneEndsTheProgram) {
  State.ProgramFolder = Folder.Path() / "program";
  std::filesystem::create_directory(State.ProgramFolder);
  Folder.Write("program/Guide.dat", kGuide);
  OpenExisting("Guide.dat");
  // Not every system lets the current folder go.
  std::filesystem::current_path(Folder.Path());
  std::filesystem::remove_all(State.ProgramFolder);
  Choose("FileSave");
  EXPECT_THAT(Program.Failures, ElementsAre(HasSubstr(State.ProgramFolder.string())));
  EXPECT_TRUE(Messages.Shown.empty());
  EXPECT_FALSE(Folder.Has("program"));
}

TEST_F(VanishedFolderTest, OpeningAFileThatIsGoneEndsTheProgram) {
  Folder.Write("Guide.dat", kGuide);
  Play("FileOpen", "OpenDoc", [this](QWidget& dialog) {
    std::filesystem::remove(Folder.Path() / "Guide.dat");
    DoubleClickListRow(Find<QListWidget>(dialog, "List1"), "Guide");
  });
  EXPECT_THAT(Program.Failures, ElementsAre(HasSubstr("Guide.dat")));
}

class DamagedDocumentTest : public DocumentTest, public testing::WithParamInterface<const char*> {};

TEST_P(DamagedDocumentTest, OpeningEndsTheProgramWithNothingHalfLoadedAndNothingWritten) {
  OpenDocument("Guide.dat", kGuide);
  TypeInto(Title(), "typed");
  Folder.Write("Damaged.dat", GetParam());
  const auto files = Folder.Files();
  OpenExisting("Damaged.dat");
  EXPECT_THAT(Program.Failures, ElementsAre(HasSubstr("Damaged.dat")));
  EXPECT_EQ(Folder.Files(), files);
  EXPECT_TRUE(IsMemoryEmpty());
  EXPECT_FALSE(State.IsDocumentShown) << "there is nothing that could be rescued into the damaged document";
}

INSTANTIATE_TEST_SUITE_P(Files, DamagedDocumentTest,
                         testing::Values(" 101 ,<song>x</song>\r\n\r\n",
                                         " 1 ,<song>x</song>\r\n -1 ,<song>x</song>\r\n\r\n",
                                         "\r\n 1001 ,<title>x</title>\r\n",
                                         "\r\n 1 ,<title>good</title>\r\n -2 ,<title>x</title>\r\n",
                                         " 1 ,<song>ends before the pages</song>\r\n", ""));

}  // namespace
}  // namespace tavrel::test
