#include <QApplication>

#include <fstream>

#include "core/text/run_time_error.h"
#include "monkey/monkey.h"
#include "support/fixtures.h"

// What goes on beside the main window: the planner and a computer where things break.

namespace tavrel::test {

namespace fs = std::filesystem;
using namespace std::string_literals;

void Monkey::ActInPlanner() {
  QWidget* planner = OpenPlanner();
  Note("act in the planner");
  const bool is_left = stage_->Window().isActiveWindow();
  if (!planner->isActiveWindow()) Activate(*planner);
  if (is_left) model_->LeaveField(focus_);
  for (int left = dice_.Between(1, 4); left > 0 && planner->isVisible() && !stage_->Seen.IsOver; --left) {
    player_.Poke(*planner);
    if (stage_->Seen.Last(Event::Kind::Pressed, "Planner") != nullptr) break;
  }
}

void Monkey::ActOnComputer() {
  using Operation = FailingFiles::Operation;
  FakePlatform& system = stage_->System;
  const int kind = dice_.Below(6);
  if (kind <= 2) {
    static const std::vector<Operation> operations = {
        Operation::CreateNew,   Operation::CreateOrEmpty, Operation::Open,  Operation::Read,
        Operation::Write,       Operation::Flush,         Operation::Close, Operation::Replace,
        Operation::FlushFolder, Operation::FlushVolume};
    static const std::vector<std::errc> errors = {std::errc::io_error, std::errc::no_space_on_device,
                                                  std::errc::permission_denied,
                                                  std::errc::read_only_file_system};
    const Operation operation = dice_.AnyOf(operations);
    // Folders are copied in the order of the disk: only the first call is the same in every walk.
    Note("a file operation will fail: " + std::to_string(static_cast<int>(operation)));
    faulty_ = true;
    system.Files.FailAt(operation, 1, dice_.AnyOf(errors));
    return;
  }
  if (kind == 3) {
    const std::vector<Volume> all = {{"c:", stage_->ProgramFolder},
                                     {"p:", stage_->Sandbox.Path() / "pod"},
                                     {"s:", stage_->Sandbox.Path() / "stick"},
                                     {"x:", stage_->Sandbox.Path() / "gone"}};
    Note("disks come and go");
    system.FakeVolumes.clear();
    system.NotReady.clear();
    for (const Volume& volume : all) {
      if (!dice_.OneIn(3)) system.FakeVolumes.push_back(volume);
      if (dice_.OneIn(6)) system.NotReady.insert(volume.Name);
    }
    return;
  }
  Tamper();
}

void Monkey::Tamper() {
  static const std::vector<std::string> names = {
      "alpha.dat", "Beta.dat", "Guide.dat",  "Songs.dat", "Fruit.dat", "alpha.bak", "Guide.bak",
      "alpha.pln", "Beta.pln", "tavrel.ini", "Skin1.jpg", "odd.dat",   "notes.txt"};
  static const std::vector<std::string> contents = {"",
                                                    "\r\n",
                                                    "rubbish",
                                                    "\r\n 1 ,<title>T</title><text>a<p>b</text>\r\n",
                                                    "\r\n 1001 ,x\r\n",
                                                    " 1 ,<song>s</song>\r\n",
                                                    "\r\n 1000 ,<text>cat</text>\r\n",
                                                    "\r\n 5 <text>no comma\r\n\r\n",
                                                    "\r\n 1 ,<text>\0\x1a\xff</text>"s,
                                                    "\r\n 2.5 ,<text>x</text>\r\n-0 ,<title>zero</title>\r\n",
                                                    "\n 3 ,<text>x</text>\n 1 ,\n",
                                                    "\r\n 1 ,<text>open<link><linkto>",
                                                    std::string(kGuide),
                                                    std::string(kSongs),
                                                    std::string(kFruit)};
  const std::string& name = dice_.AnyOf(names);
  const fs::path file = stage_->ProgramFolder / name;
  const int kind = dice_.Below(8);
  Note("tamper with " + name + " " + std::to_string(kind));
  tampered_.insert(name);
  std::error_code error;
  fs::remove_all(file, error);
  if (kind == 0) return;
  if (kind == 1) {
    fs::create_directory(file, error);
    return;
  }
  std::string bytes = dice_.AnyOf(contents);
  if (dice_.OneIn(3) && !bytes.empty())
    bytes.resize(static_cast<std::size_t>(dice_.Below(static_cast<int>(bytes.size()))));
  if (dice_.OneIn(3) && !bytes.empty())
    bytes[static_cast<std::size_t>(dice_.Below(static_cast<int>(bytes.size())))] =
        static_cast<char>(dice_.Below(256));
  foreign_.insert(std::hash<std::string>()(bytes));
  std::ofstream(file, std::ios::binary) << bytes;
  if (kind == 2) fs::permissions(file, fs::perms::owner_read, error);
}

}  // namespace tavrel::test
