#include "support/window_test.h"

#include <QListWidget>
#include <QTest>

#include <utility>

namespace tavrel::test {

WindowTest::WindowTest(std::unique_ptr<Platform> platform) : platform_(std::move(platform)) {
  State.ProgramFolder = Folder.Path();
  std::filesystem::current_path(Folder.Path());
  System.FakeVolumes = {{"c:", Folder.Path()}};
}

WindowTest::~WindowTest() {
  EXPECT_EQ(Player.StepsLeft(), 0) << "a dialog that was expected did not come";
  for (const QString& fault : Player.Faults()) ADD_FAILURE() << fault.toStdString();
}

void WindowTest::Start() {
  window_ = std::make_unique<Main>(Application);
  Program.Run([this] { window_->Form_Load(); });
  window_->show();
  window_->activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(window_.get()));
}

Main& WindowTest::Window() {
  if (!window_) Start();
  return *window_;
}

void WindowTest::OpenDocument(const std::string& name, std::string_view bytes) {
  Folder.Write(name, bytes);
  OpenExisting(name);
}

void WindowTest::OpenExisting(const std::string& name) {
  Player.Expect("OpenDoc", [name](QWidget& dialog) {
    ClickListRow(Find<QListWidget>(dialog, "List1"), QString::fromStdString(name.substr(0, name.size() - 4)));
    Click(dialog, "Command1");
  });
  Choose("FileOpen");
}

std::string WindowTest::Save() {
  Choose("FileSave");
  EXPECT_EQ(LastMessage().Text, "Project saved...    ");
  return Folder.Read(State.DocPath);
}

}  // namespace tavrel::test
