#include <QPixmap>

#include "ui/shell/shell_test.h"

namespace tavrel::test {
namespace {

class SkinsTest : public ShellTest {
 protected:
  void WriteBoth() {
    WritePicture("Skin1.jpg", Qt::red);
    WritePicture("Skin2.jpg", Qt::blue);
  }

  /// What stands in the lower left corner of an area, where no control lies.
  static std::string CornerOnScreen(QWidget& area) {
    const QImage screen = area.grab().toImage();
    return ColourName(screen.pixelColor(2, screen.height() - 3));
  }
};

TEST_F(SkinsTest, StartingShowsBothPictures) {
  WriteBoth();
  Start();
  EXPECT_EQ(Shown(Cover()), "red");
  EXPECT_EQ(Shown(Background()), "blue");
}

TEST_F(SkinsTest, ThePicturesFillTheWindowAndFollowItsSize) {
  WriteBoth();
  Start();
  EXPECT_EQ(CornerOnScreen(Cover()), "red");
  Window().resize(1300, 500);
  Settle();
  EXPECT_EQ(CornerOnScreen(Cover()), "red");
  OpenDocument("Trio.dat", kTrio);
  Settle();
  EXPECT_EQ(CornerOnScreen(Background()), "blue");
}

TEST_F(SkinsTest, MissingFilesGiveEmptyPicturesWithoutAMessage) {
  Start();
  EXPECT_EQ(Shown(Cover()), "empty");
  EXPECT_EQ(Shown(Background()), "empty");
  EXPECT_TRUE(Messages.Shown.empty());
  EXPECT_TRUE(Program.Failures.empty());
}

TEST_F(SkinsTest, OneFileAloneGivesOnePicture) {
  WritePicture("Skin2.jpg", Qt::green);
  Start();
  EXPECT_EQ(Shown(Cover()), "empty");
  EXPECT_EQ(Shown(Background()), "green");
}

TEST_F(SkinsTest, ADamagedFileGivesAnEmptyPicture) {
  Folder.Write("Skin1.jpg", "not a picture");
  Start();
  EXPECT_EQ(Shown(Cover()), "empty");
  EXPECT_TRUE(Program.Failures.empty());
}

TEST_F(SkinsTest, SwitchedOffAtStartNothingIsLoaded) {
  WriteSettings("0");
  WriteBoth();
  Start();
  EXPECT_EQ(Shown(Cover()), "empty");
  EXPECT_EQ(Shown(Background()), "empty");
}

TEST_F(SkinsTest, SwitchingOffClearsBothAtOnce) {
  WriteBoth();
  CustomiseWith(false);
  EXPECT_EQ(Shown(Cover()), "empty");
  EXPECT_EQ(Shown(Background()), "empty");
  Settle();
  EXPECT_NE(CornerOnScreen(Cover()), "red");
}

TEST_F(SkinsTest, SwitchingOnLoadsWhicheverExists) {
  WriteSettings("0");
  WritePicture("Skin1.jpg", Qt::green);
  CustomiseWith(true);
  EXPECT_EQ(Shown(Cover()), "green");
  EXPECT_EQ(Shown(Background()), "empty");
  WritePicture("Skin2.jpg", Qt::blue);
  CustomiseWith(true);
  EXPECT_EQ(Shown(Cover()), "green");
  EXPECT_EQ(Shown(Background()), "blue");
}

TEST_F(SkinsTest, AFileThatIsGoneWhileTheProgramRunsKeepsItsPicture) {
  WriteBoth();
  Start();
  std::filesystem::remove(Folder.Path() / "Skin2.jpg");
  WritePicture("Skin1.jpg", Qt::green);
  CustomiseWith(true);
  EXPECT_EQ(Shown(Cover()), "green");
  EXPECT_EQ(Shown(Background()), "blue");
}

TEST_F(SkinsTest, WithoutFilesCustomiseChangesNothing) {
  Start();
  CustomiseWith(true);
  EXPECT_EQ(Shown(Cover()), "empty");
  EXPECT_EQ(Shown(Background()), "empty");
  EXPECT_TRUE(Messages.Shown.empty());
}

TEST_F(SkinsTest, SwitchingOnLoadsWhatIsThereAfterSwitchingOff) {
  WriteBoth();
  CustomiseWith(false);
  std::filesystem::remove(Folder.Path() / "Skin1.jpg");
  CustomiseWith(true);
  EXPECT_EQ(Shown(Cover()), "empty");
  EXPECT_EQ(Shown(Background()), "blue");
}

TEST_F(SkinsTest, AnOpenDocumentIsNotTouchedByCustomise) {
  WriteBoth();
  OpenDocument("Guide.dat", kGuide);
  TypeInto(Title(), "typed");
  CustomiseWith(false);
  EXPECT_EQ(Shown(Background()), "empty");
  EXPECT_EQ(Title().Bytes(), "typed");
  EXPECT_FALSE(Cover().isVisible());
  EXPECT_EQ(Folder.Read("Guide.dat"), kGuide);
}

TEST_F(SkinsTest, ClosingCustomiseByItsFrameAppliesTheSettingThatStands) {
  WriteSettings("1");
  Start();
  WritePicture("Skin1.jpg", Qt::red);
  Customise([](QWidget& dialog) { dialog.close(); });
  EXPECT_EQ(Shown(Cover()), "red");
}

TEST_F(SkinsTest, CustomiseReturnsToTheProgramsFolder) {
  Start();
  Customise([](QWidget& dialog) {
    std::filesystem::current_path("/");
    dialog.close();
  });
  EXPECT_EQ(std::filesystem::current_path(), Folder.Path());
}

TEST_F(SkinsTest, TheWordsOnTheCoverStayOverAPicture) {
  auto& words = Find<QWidget>(Window(), "CoverText");
  EXPECT_TRUE(words.isVisible());
  WritePicture("Skin1.jpg", Qt::red);
  CustomiseWith(true);
  EXPECT_TRUE(words.isVisible());
  CustomiseWith(false);
  EXPECT_TRUE(words.isVisible());
}

TEST_F(SkinsTest, WithoutFilesNothingVisibleChanges) {
  WriteSettings("1");
  Start();
  Settle();
  const QImage before = Window().grab().toImage();
  CustomiseWith(true);
  Settle();
  EXPECT_EQ(Window().grab().toImage(), before);
}

TEST_F(SkinsTest, OneFileAloneGoesAndComesBack) {
  WriteSettings("1");
  WritePicture("Skin1.jpg", Qt::red);
  Start();
  EXPECT_EQ(Shown(Cover()), "red");
  CustomiseWith(false);
  EXPECT_EQ(Shown(Cover()), "empty");
  EXPECT_EQ(Shown(Background()), "empty");
  CustomiseWith(true);
  EXPECT_EQ(Shown(Cover()), "red");
  EXPECT_EQ(Shown(Background()), "empty");
}

}  // namespace
}  // namespace tavrel::test
