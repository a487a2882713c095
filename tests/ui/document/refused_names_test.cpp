#include <gmock/gmock.h>

#include "ui/document/document_test.h"

namespace tavrel::test {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;

/// Names that the system has no files for.
class RefusedNamesTest : public DocumentTest {
 protected:
  void SetUp() override {
    System.RefusedNames = {"Refused.dat"};
    OpenDocument("Guide.dat", kGuide);
  }

  /// Chooses a menu item, types the name into the dialog and presses the button that stores the document.
  void TypeRefusedName(const QString& menu_item, const QString& dialog_name) {
    Play(menu_item, dialog_name, [](QWidget& dialog) {
      TypeInto(dialog, "Text1", "Refused");
      Click(dialog, "Command1");
      dialog.close();
    });
  }

  void ExpectEnd() const {
    EXPECT_THAT(Program.Failures,
                ElementsAre(AllOf(HasSubstr("Refused.dat"), HasSubstr("Choose another name."))));
    EXPECT_EQ(Folder.Read("Guide.dat"), kGuide);
    EXPECT_FALSE(Folder.Has("Refused.dat"));
  }
};

TEST_F(RefusedNamesTest, SaveAsEndsTheProgramWithTheDocumentAsItWas) {
  const auto files = Folder.Files();
  TypeRefusedName("FileSaveAs", "SaveAs");
  ExpectEnd();
  EXPECT_EQ(Folder.Files(), files);
  EXPECT_EQ(State.DocPath, "Guide.dat");
  EXPECT_EQ(State.Page(5),
            "<title>Five</title><text>Gamma</text><link><linktext>Last</linktext><linkto>999"
            "</linkto></link>");
  EXPECT_TRUE(Messages.Shown.empty()) << "nothing asks, and nothing says that the project was saved";
}

TEST_F(RefusedNamesTest, NewEndsTheProgramAndMakesNoDocument) {
  const auto files = Folder.Files();
  TypeRefusedName("FileNew", "NewDoc");
  ExpectEnd();
  EXPECT_EQ(Folder.Files(), files);
  EXPECT_TRUE(State.DocPath.empty());
}

TEST_F(RefusedNamesTest, NothingIsAskedEvenIfThereIsSomethingOfThatName) {
  Folder.Write("Refused.dat", "not to be touched");
  TypeRefusedName("FileSaveAs", "SaveAs");
  EXPECT_TRUE(Messages.Shown.empty());
  EXPECT_EQ(Program.Failures.size(), 1U);
  EXPECT_EQ(Folder.Read("Refused.dat"), "not to be touched");
}

}  // namespace
}  // namespace tavrel::test
