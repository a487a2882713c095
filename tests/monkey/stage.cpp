#include "monkey/stage.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>

#include "core/text/run_time_error.h"
#include "support/fixtures.h"

namespace tavrel::test {

namespace fs = std::filesystem;
using namespace std::string_literals;

bool MonkeyMessages::Show(QWidget* parent, const Message& message) {
  // What runs on after the end is no longer the program's.
  if (record_.IsOver) return true;
  ++Count;
  bool answer = !dice_.OneIn(4);
  if (message.Text.starts_with("Are you sure you want to delete...") &&
      message.Text.find(sandbox_) == std::string::npos) {
    std::fprintf(stderr, "about to delete outside the sandbox: %s\n", message.Text.c_str());
    std::_Exit(EXIT_FAILURE);
  }
  const std::size_t place = record_.Events.size();
  record_.Events.push_back({.What = Event::Kind::Message, .Window = message.Title, .Control = message.Text});
  if (dice_.OneIn(8)) answer = boxes_.Show(parent, message);
  record_.Events[place].Number = static_cast<int>(answer);
  return answer;
}

void MonkeyProgram::Fail(const std::exception& error) {
  if (record_.IsOver) return;
  const bool is_known = dynamic_cast<const RunTimeError*>(&error) != nullptr;
  record_.Events.push_back(
      {.What = Event::Kind::Failed, .Control = error.what(), .Number = static_cast<int>(is_known)});
  record_.IsOver = true;
}

void MonkeyProgram::End() {
  if (record_.IsOver) return;
  record_.Events.push_back({.What = Event::Kind::Ended});
  record_.IsOver = true;
}

Stage::Stage(Dice& dice, bool hostile)
    : ProgramFolder(Sandbox.Path() / "program"),
      Messages(dice, Seen, Sandbox.Path().string()),
      Program(Seen) {
  for (fs::path above = Sandbox.Path();; above = above.parent_path()) {
    System.NotReadable.insert(above);
    if (above == above.parent_path()) break;
  }
  FillDisks(hostile);
}

void Stage::FillDisks(bool hostile) {
  const auto write = [this](const fs::path& name, std::string_view bytes) { Sandbox.Write(name, bytes); };
  write("program/Guide.dat", kGuide);
  write("program/Songs.dat", kSongs);
  write("program/Fruit.dat", kFruit);
  write("pod/Notes/Trip/z001.txt",
        "<title>-Trip</title>\r\n<meta name=\"LineWrap\" content=\"false\">\r\nGo <a "
        "href=\"z002.txt\">on</a>\r\n");
  write("pod/Notes/Trip/z002.txt", "Two<br>lines<p><a href=\"ipod:music?song=Blue&artist=Kim\">hear</a>\r\n");
  if (hostile) write("pod/Notes/Odd/a.txt", "<a href=\"song=X\"><a href=\"\\\"></a></a> <title>t</title>");
  if (hostile) write("pod/Notes/Bad/a.txt", "<a href=\"never closed");
  write("pod/Notes/Empty/readme.md", "");
  write("stick/Other/one.TXT", "zero\0byte\rand\nends"s);
  write("stick/Other/sub/two.txt", "2");
  System.FakeVolumes = {{"c:", ProgramFolder}, {"p:", Sandbox.Path() / "pod"}};
}

void Stage::Stop(Ending ending) {
  if (!Run) return;
  System.Files.FailAt(FailingFiles::Operation::None, 0, std::errc::io_error);
  if (ending == Ending::Killed) {
    Run->Keeper->KeepLast();
  } else {
    Run->Keeper->Forget();
    Run->Place.Leave();
  }
  Run.reset();
}

void Stage::Start() {
  fs::create_directories(ProgramFolder);
  fs::current_path(ProgramFolder);
  Run = std::make_unique<Session>(System, Messages, Program);
  Run->State.ProgramFolder = ProgramFolder;
  Run->Found = Run->Place.Enter(ProgramFolder, System);
  Run->Window = std::make_unique<Main>(Run->Application);
  Run->Keeper = std::make_unique<RecoveryKeeper>(Run->Application, Run->Place.RecoveryFile(),
                                                 [this] { return Run->Window->TypedPage(); });
  Program.Run([this] { Run->Window->Form_Load(); });
  Run->Window->show();
  Activate(*Run->Window);
}

void RunEvents() {
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QCoreApplication::processEvents();
}

void Activate(QWidget& window) {
  if (window.isActiveWindow() || !window.isVisible()) return;
  window.activateWindow();
  for (int left = 20; left > 0 && !window.isActiveWindow(); --left) QCoreApplication::processEvents();
  Expect(window.isActiveWindow(), "the window " + window.objectName().toStdString() + " can be activated");
}

}  // namespace tavrel::test
