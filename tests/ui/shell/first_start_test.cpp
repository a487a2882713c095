#include "ui/shell/first_start.h"

#include <QFile>
#include <QImage>
#include <QListWidget>

#include "core/text/run_time_error.h"
#include "ui/shell/look.h"
#include "ui/shell/shell_test.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* kSample = "Writing for the iPod.dat";

std::vector<std::string> Names(const TemporaryFolder& folder) {
  std::vector<std::string> names;
  for (const auto& file : folder.Files()) names.push_back(file.first);
  return names;
}

std::string Carried(const std::string& name) {
  InitResources();
  QFile file(":/first/" + QString::fromStdString(name));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
  return file.readAll().toStdString();
}

const Texts kFirstFiles = {"Skin1.jpg", "Skin2.jpg", "SkinBackup.jpg", kSample};

TEST(InstallFirstFilesTest, PutsThePicturesAndTheSampleIntoTheFolder) {
  const TemporaryFolder folder;
  FakePlatform system;
  InstallFirstFiles(folder.Path(), system);
  EXPECT_EQ(Names(folder), kFirstFiles);
  for (const std::string& name : kFirstFiles) EXPECT_EQ(folder.Read(name), Carried(name)) << name;
}

TEST(InstallFirstFilesTest, LeavesFilesThatAreThere) {
  for (const std::string& mine : kFirstFiles) {
    const TemporaryFolder folder;
    FakePlatform system;
    folder.Write(mine, "mine");
    InstallFirstFiles(folder.Path(), system);
    EXPECT_EQ(Names(folder), kFirstFiles);
    for (const std::string& name : kFirstFiles) {
      EXPECT_EQ(folder.Read(name), name == mine ? "mine" : Carried(name)) << name;
    }
  }
}

TEST(InstallFirstFilesTest, LeavesNothingHalfWritten) {
  const TemporaryFolder folder;
  FakePlatform system;
  system.Files.FailAt(FailingFiles::Operation::Write, 2, std::errc::no_space_on_device);
  EXPECT_THROW(InstallFirstFiles(folder.Path(), system), FileError);
  ASSERT_EQ(folder.Files().size(), 1U);
  const auto [name, bytes] = *folder.Files().begin();
  EXPECT_EQ(bytes, Carried(name));
}

TEST(InstallFirstFilesTest, ThePicturesAreLargeEnoughForAWindow) {
  for (const char* name : {"Skin1.jpg", "Skin2.jpg", "SkinBackup.jpg"}) {
    const std::string bytes = Carried(name);
    const QImage picture = QImage::fromData(QByteArray::fromStdString(bytes), "JPEG");
    EXPECT_GE(picture.width(), 800) << name;
    EXPECT_GE(picture.height(), 400) << name;
    EXPECT_LT(bytes.size(), 500'000U) << name;
  }
}

using FirstStartTest = ShellTest;

TEST_F(FirstStartTest, TheWindowWearsThePictures) {
  InstallFirstFiles(Folder.Path(), System);
  Start();
  EXPECT_FALSE(Cover().Picture().isNull());
  EXPECT_FALSE(Background().Picture().isNull());
  EXPECT_TRUE(Messages.Shown.empty());
  EXPECT_TRUE(Program.Failures.empty());
}

TEST_F(FirstStartTest, TheSampleCanBeOpened) {
  InstallFirstFiles(Folder.Path(), System);
  Player.Expect("OpenDoc", [](QWidget& dialog) {
    ClickListRow(Find<QListWidget>(dialog, "List1"), "Writing for the iPod");
    Click(dialog, "Command1");
  });
  Choose("FileOpen");
  EXPECT_NE(Title().Bytes(), "");
  EXPECT_NE(Body().toPlainText(), "");
  EXPECT_TRUE(Program.Failures.empty());
  EXPECT_EQ(Save(), Carried(kSample));
}

}  // namespace
}  // namespace tavrel::test
