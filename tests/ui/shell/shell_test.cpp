#include "ui/shell/shell_test.h"

#include <QCheckBox>
#include <QImage>

#include <chrono>

namespace tavrel::test {

namespace fs = std::filesystem;

namespace {

fs::file_time_type LongAgo() {
  return std::chrono::file_clock::from_sys(std::chrono::system_clock::from_time_t(1'000'000'000));
}

}  // namespace

void ShellTest::WriteSettings(const std::string& skin_flag) {
  std::string bytes = kDefaultSettings;
  bytes.replace(bytes.find("1\r\n"), 1, skin_flag);
  WriteSettingsFile(bytes);
}

void ShellTest::WriteSettingsFile(const std::string& bytes) {
  Folder.Write("tavrel.ini", bytes);
  fs::last_write_time(Folder.Path() / "tavrel.ini", LongAgo());
}

bool ShellTest::SettingsWereWritten() const {
  return fs::last_write_time(Folder.Path() / "tavrel.ini") != LongAgo();
}

void ShellTest::Customise(const Robot::Step& step) {
  Player.Expect("Skins", step);
  Choose("HelpCustomise");
}

void ShellTest::CustomiseWith(bool enable) {
  Customise([enable](QWidget& dialog) {
    auto& box = Find<QCheckBox>(dialog, "Check1");
    if (box.isChecked() != enable) Click(box);
    Click(dialog, "Command1");
    EXPECT_FALSE(dialog.isVisible());
  });
}

void ShellTest::WritePicture(const std::string& name, const QColor& colour) {
  QImage picture(40, 30, QImage::Format_RGB32);
  picture.fill(colour);
  const fs::path file = Folder.Path() / name;
  ASSERT_TRUE(picture.save(QString::fromStdString(file.string()), "JPEG", 100));
  // The toolkit takes a file of the same name, size and second for the same picture.
  fs::last_write_time(file, LongAgo() + std::chrono::seconds(++pictures_written_));
}

std::string ShellTest::Shown(PictureArea& area) {
  if (area.Picture().isNull()) return "empty";
  const QImage picture = area.Picture().toImage();
  return ColourName(picture.pixelColor(picture.width() / 2, picture.height() / 2));
}

std::string ColourName(const QColor& colour) {
  constexpr int kMuch = 200;
  constexpr int kLittle = 55;
  const bool red = colour.red() > kMuch && colour.green() < kLittle && colour.blue() < kLittle;
  const bool green = colour.green() > kMuch && colour.red() < kLittle && colour.blue() < kLittle;
  const bool blue = colour.blue() > kMuch && colour.red() < kLittle && colour.green() < kLittle;
  return red ? "red" : green ? "green" : blue ? "blue" : "other";
}

}  // namespace tavrel::test
