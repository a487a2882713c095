#include <QLabel>

#include "ui/document/document_test.h"

namespace tavrel::test {
namespace {

struct DialogCase {
  const char* MenuItem;
  const char* Dialog;
  const char* Caption;
  const char* ListLabel;
};

/// What the four document dialogs have in common.
class DocumentDialogsTest : public DocumentTest, public testing::WithParamInterface<DialogCase> {
 protected:
  void PlayWithAnOpenDocument(const Robot::Step& step) {
    OpenDocument("Trio.dat", kTrio);
    PlayDialog(step);
  }

  void PlayDialog(const Robot::Step& step) {
    Play(GetParam().MenuItem, GetParam().Dialog, [&](QWidget& dialog) {
      step(dialog);
      Click(dialog, "Command2");
    });
  }
};

TEST_P(DocumentDialogsTest, HasItsCaptionAndAList) {
  PlayWithAnOpenDocument([](QWidget& dialog) {
    EXPECT_EQ(dialog.windowTitle(), GetParam().Caption);
    EXPECT_EQ(Find<QLabel>(dialog, GetParam().ListLabel).text(), "Tavrel projects:");
    EXPECT_EQ(Find<QListWidget>(dialog, "List1").font().family(), "Courier New");
  });
}

TEST_P(DocumentDialogsTest, ListsNamesPaddedOrCutWithTheirDates) {
  const auto cafe = std::filesystem::path(u8"Caf\u00e9.dat");
  const std::filesystem::path longer = "Abcdefghijklmnopqrstuvwxyz.dat";
  for (const std::filesystem::path& name : {std::filesystem::path("Guide.dat"), cafe, longer}) {
    Folder.Write(name, "\r\n");
    DateFile(name);
  }
  PlayWithAnOpenDocument([](QWidget& dialog) {
    const QStringList rows = Rows(Find<QListWidget>(dialog, "List1"));
    ASSERT_EQ(rows.size(), 4);
    EXPECT_EQ(rows[0], "Abcdefghijklmnopqrstuvwxy03-03-06");
    EXPECT_EQ(rows[1], QString::fromUtf8("Caf\u00e9") + QString(21, ' ') + "03-03-06");
    EXPECT_EQ(rows[2], "Guide" + QString(20, ' ') + "03-03-06");
    EXPECT_EQ(rows[3].left(25), "Trio" + QString(21, ' '));
  });
}

TEST_P(DocumentDialogsTest, ListsOnlyDocumentFilesInAlphabeticalOrder) {
  for (const char* name :
       {"zebra.dat", "Yak.dat", "apple.DAT", "notes.txt", "Trio.bak", "data", "in/side.dat"}) {
    Folder.Write(name, "\r\n");
  }
  std::filesystem::create_directory(Folder.Path() / "folder.dat");
  PlayWithAnOpenDocument([](QWidget& dialog) {
    QStringList names;
    for (const QString& row : Rows(Find<QListWidget>(dialog, "List1"))) names << row.left(25).trimmed();
    EXPECT_EQ(names, (QStringList{"apple", "Trio", "Yak", "zebra"}));
  });
}

TEST_P(DocumentDialogsTest, ListsTheFolderAsItIsAtEachOpening) {
  PlayWithAnOpenDocument([](QWidget& dialog) { EXPECT_EQ(Find<QListWidget>(dialog, "List1").count(), 1); });
  if (!State.IsDocumentOpen()) OpenExisting("Trio.dat");
  Folder.Write("Guide.dat", kGuide);
  PlayDialog([](QWidget& dialog) {
    const auto& list = Find<QListWidget>(dialog, "List1");
    EXPECT_EQ(list.count(), 2);
    EXPECT_TRUE(list.selectedItems().isEmpty());
  });
}

TEST_P(DocumentDialogsTest, EveryControlHasANameForScreenReaders) {
  PlayWithAnOpenDocument([](QWidget& dialog) { EXPECT_EQ(NamelessControls(dialog), Texts{}); });
}

TEST_P(DocumentDialogsTest, StandsOverTheMainWindow) {
  PlayWithAnOpenDocument([this](QWidget& dialog) {
    EXPECT_EQ(dialog.parentWidget(), &Window());
    EXPECT_TRUE(dialog.isModal());
  });
}

INSTANTIATE_TEST_SUITE_P(All, DocumentDialogsTest,
                         testing::Values(DialogCase{"FileNew", "NewDoc", "New project", "Label3"},
                                         DialogCase{"FileOpen", "OpenDoc", "Open Tavrel project", "Label1"},
                                         DialogCase{"FileSaveAs", "SaveAs", "Save As", "Label2"},
                                         DialogCase{"FileDelete", "DeleteDoc", "Delete Tavrel project",
                                                    "Label1"}),
                         [](const auto& dialog) { return std::string(dialog.param.Dialog); });

}  // namespace
}  // namespace tavrel::test
