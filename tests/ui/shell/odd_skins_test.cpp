#include <QImage>

#include <chrono>
#include <sys/stat.h>

#include "ui/shell/shell_test.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;

/// Files with a skin's name that are missing, damaged, enormous or replaced.
class OddSkinsTest : public ShellTest {
 protected:
  QString PathOf(const std::string& name) const {
    return QString::fromStdString((Folder.Path() / name).string());
  }

  void WriteWide(const std::string& name, const char* format, const QSize& size, const QColor& colour) {
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(colour);
    ASSERT_TRUE(picture.save(PathOf(name), format, 90));
  }

  void ExpectAFittingPicture(PictureArea& area, const std::string& colour) {
    EXPECT_EQ(Shown(area), colour);
    EXPECT_LE(area.Picture().width(), 4096);
    EXPECT_LE(area.Picture().height(), 4096);
    EXPECT_GT(area.Picture().width(), 1000);
    EXPECT_TRUE(Messages.Shown.empty());
    EXPECT_TRUE(Program.Failures.empty());
  }
};

TEST_F(OddSkinsTest, FilesThatAreNoPicturesAreTakenForEmptyOnes) {
  const std::vector<std::string> contents = {
      "",   "x",     "not a picture", std::string(100'000, '\0'), "\xFF\xD8\xFF\xE0", "\x89PNG\r\n\x1A\n",
      "BM", "GIF89a"};
  for (const std::string& bytes : contents) {
    Folder.Write("Skin1.jpg", bytes);
    Folder.Write("Skin2.jpg", bytes);
    Start();
    EXPECT_EQ(Shown(Cover()), "empty");
    EXPECT_EQ(Shown(Background()), "empty");
    CustomiseWith(true);
    EXPECT_EQ(Shown(Cover()), "empty");
    EXPECT_EQ(Shown(Background()), "empty");
  }
  EXPECT_TRUE(Messages.Shown.empty());
  EXPECT_TRUE(Program.Failures.empty());
}

TEST_F(OddSkinsTest, APictureThatIsCutOffDoesNoHarm) {
  WritePicture("whole.jpg", Qt::red);
  const std::string whole = Folder.Read("whole.jpg");
  for (std::size_t size = 0; size < whole.size(); size += 50) {
    Folder.Write("Skin1.jpg", whole.substr(0, size));
    CustomiseWith(true);
  }
  EXPECT_TRUE(Messages.Shown.empty());
  EXPECT_TRUE(Program.Failures.empty());
}

TEST_F(OddSkinsTest, AFolderOfASkinsNameDoesNoHarm) {
  fs::create_directory(Folder.Path() / "Skin1.jpg");
  Start();
  EXPECT_EQ(Shown(Cover()), "empty");
  CustomiseWith(true);
  EXPECT_EQ(Shown(Cover()), "empty");
  EXPECT_TRUE(Program.Failures.empty());
}

#ifndef _WIN32
TEST_F(OddSkinsTest, APipeOfASkinsNameIsNotWaitedFor) {
  ASSERT_EQ(mkfifo((Folder.Path() / "Skin1.jpg").c_str(), 0666), 0);
  Start();
  CustomiseWith(true);
  EXPECT_EQ(Shown(Cover()), "empty");
}
#endif

TEST_F(OddSkinsTest, AVeryWidePictureIsMadeSmaller) {
  WriteWide("Skin1.jpg", "JPEG", {20'000, 600}, Qt::red);
  WriteWide("Skin2.jpg", "PNG", {20'000, 600}, Qt::blue);
  Start();
  ExpectAFittingPicture(Cover(), "red");
  ExpectAFittingPicture(Background(), "blue");
}

TEST_F(OddSkinsTest, AVeryWidePictureIsMadeSmallerInCustomiseToo) {
  Start();
  WriteWide("Skin1.jpg", "PNG", {20'000, 30}, Qt::green);
  WriteWide("Skin2.jpg", "JPEG", {20'000, 30}, Qt::red);
  CustomiseWith(true);
  ExpectAFittingPicture(Cover(), "green");
  ExpectAFittingPicture(Background(), "red");
}

TEST_F(OddSkinsTest, AnEnormousPhotographIsShownToo) {
  QImage picture(20'000, 12'000, QImage::Format_Grayscale8);
  picture.fill(255);
  ASSERT_TRUE(picture.save(PathOf("Skin1.jpg"), "JPEG", 50));
  Start();
  ASSERT_FALSE(Cover().Picture().isNull());
  EXPECT_EQ(Cover().Picture().width(), 4096);
  EXPECT_NEAR(Cover().Picture().height(), 12'000.0 * 4096 / 20'000, 1);
  EXPECT_EQ(Cover().Picture().toImage().pixelColor(2000, 1000), QColor(Qt::white));
}

TEST_F(OddSkinsTest, AVeryNarrowPictureKeepsAWidth) {
  WriteWide("Skin1.jpg", "PNG", {1, 20'000}, Qt::red);
  Start();
  EXPECT_EQ(Cover().Picture().size(), QSize(1, 4096));
  EXPECT_EQ(Shown(Cover()), "red");
}

TEST_F(OddSkinsTest, AReplacedFileIsReadAnewEvenIfOfTheSameDateAndSize) {
  const fs::path file = Folder.Path() / "Skin1.jpg";
  const auto write = [&](const QColor& colour) {
    QImage picture(40, 30, QImage::Format_RGB32);
    picture.fill(colour);
    ASSERT_TRUE(picture.save(PathOf("Skin1.jpg"), "BMP"));
    fs::last_write_time(file, fs::file_time_type(std::chrono::hours(24)));
  };
  write(Qt::red);
  Start();
  EXPECT_EQ(Shown(Cover()), "red");
  const auto size = fs::file_size(file);
  write(Qt::green);
  ASSERT_EQ(fs::file_size(file), size);
  CustomiseWith(true);
  EXPECT_EQ(Shown(Cover()), "green");
}

TEST_F(OddSkinsTest, AFileThatTurnsIntoNoPictureWhileTheProgramRunsDoesNoHarm) {
  WritePicture("Skin2.jpg", Qt::blue);
  Start();
  Folder.Write("Skin2.jpg", "not a picture");
  CustomiseWith(true);
  EXPECT_EQ(Shown(Background()), "empty");
  WritePicture("Skin2.jpg", Qt::green);
  CustomiseWith(true);
  EXPECT_EQ(Shown(Background()), "green");
  EXPECT_TRUE(Program.Failures.empty());
}

}  // namespace
}  // namespace tavrel::test
