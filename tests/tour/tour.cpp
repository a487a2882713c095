#include "tour/tour.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QListWidget>
#include <QMessageBox>
#include <QPixmap>
#include <QTabWidget>
#include <QTest>

#include <iostream>
#include <stdexcept>

#include "core/shell/program_folder.h"
#include "core/text/file_names.h"
#include "core/text/text_files.h"
#include "support/user.h"
#include "ui/controls/grid.h"
#include "ui/controls/text_conversion.h"
#include "ui/shell/first_start.h"
#include "ui/shell/program_place.h"
#include "ui/shell/recovery_keeper.h"
#include "ui/shell/recovery_notice.h"

namespace tavrel::test {

namespace fs = std::filesystem;

namespace {

/// A folder's row in a list of folders, where rows are indented.
QString FolderRow(const QListWidget& folders, const QString& name) {
  for (int row = 0; row < folders.count(); ++row) {
    if (folders.item(row)->text().trimmed() == name) return folders.item(row)->text();
  }
  throw std::runtime_error("no folder " + name.toStdString());
}

}  // namespace

Tour::Tour(const fs::path& output)
    : output_(fs::absolute(output)), app_{state_, platform_, messages_, program_} {
  fs::remove_all(output_ / "pictures");
  fs::remove_all(output_ / "Tavrel Writer");
  fs::create_directories(output_ / "pictures");
  state_.ProgramFolder = output_ / "Tavrel Writer";
  fs::remove_all(output_ / "iPod");
  fs::create_directories(output_ / "iPod" / "Notes");
  platform_.FakeVolumes = {{"/", "/"}, {"iPod", output_ / "iPod"}};
  platform_.SystemVolume = "/";
}

bool Tour::Play() {
  StartProgram();
  MakeProject();
  WritePages();
  AddMusic();
  InsertAPage();
  ClearAndUndo();
  FindAndReplace();
  LookThroughThePanels();
  MoveBlocks();
  FillThePlanner();
  SaveAndLoadThePlan();
  InsertThePlan();
  SaveProject();
  BackUpAndRestore();
  PublishProject();
  CopyToTheIpod();
  SaveUnderAnotherName();
  ReadTheSample();
  ImportBack();
  LookAtTheOtherDialogs();
  ComeBackAfterACrash();

  for (const QString& fault : robot_.Faults()) std::cout << "fault: " << fault.toStdString() << '\n';
  for (const std::string& failure : program_.Failures) std::cout << "run-time error: " << failure << '\n';
  if (robot_.StepsLeft() > 0) std::cout << "fault: a window that was expected did not come\n";
  const bool played = robot_.Faults().empty() && program_.Failures.empty() && robot_.StepsLeft() == 0;
  if (played) PrintNotes();
  return played;
}

void Tour::StartProgram() {
  EnterProgramFolder(state_.ProgramFolder, platform_);
  InstallFirstFiles(state_.ProgramFolder, platform_);
  window_ = std::make_unique<Main>(app_);
  program_.Run([this] { window_->Form_Load(); });
  window_->show();
  ActivateWindow(*window_);
  TakePicture(*window_, "start");
}

void Tour::MakeProject() {
  robot_.Expect("NewDoc", [this](QWidget& dialog) {
    TypeInto(dialog, "Text1", "City walk");
    Click(dialog, "Check1");
    Click(dialog, "Check2");
    TakePicture(dialog, "new-project");
    Click(dialog, "Command1");
  });
  Choose("FileNew");
}

void Tour::WritePages() {
  WritePage(1, "City walk", "Where the walk begins",
            "An hour through the old town.\n\nStart at <the fountain>, or see <all stops>.\n");
  WriteLink(1, "The fountain", "3");
  WriteLink(2, "All stops", "2");
  WritePage(2, "All stops", "Contents", "From the fountain to the caf\u00E9 by the river.");
  WriteLink(1, "The fountain", "3");
  WriteLink(2, "The caf\u00E9", "4");
  WriteLink(3, "Back to the start", "1");
  WritePage(
      3, "The fountain", "First stop",
      "Five stone fish have spat water here since 1712. The sixth was stolen by students.\n\nGo on down Mill "
      "Lane to <the caf\u00E9>.");
  WriteLink(1, "The caf\u00E9", "4");
  WriteLink(2, "All stops", "2");
  WritePage(4, "The caf\u00E9", "Last stop", "Sit by the window: the swans come at four.");
  WriteLink(1, "All stops", "2");
  ShowPage(1);
  TakePicture(*window_, "page");
}

void Tour::SaveProject() {
  AnswerMessage("saved", "OK");
  Choose("FileSave");
}

void Tour::PublishProject() {
  robot_.Expect("Publish", [this](QWidget& dialog) {
    Click(dialog, "Check1");
    TakePicture(dialog, "publish");
    Click(dialog, "Command2");
  });
  AnswerMessage("published", "OK");
  Choose("ToolsPublish");
}

void Tour::CopyToTheIpod() {
  robot_.Expect("Manage", [this](QWidget& dialog) {
    ClickListRow(Find<QListWidget>(dialog, "List1"), "City walk");
    Click(dialog, "Command2");
    TakePicture(dialog, "manager");
    Find<QTabWidget>(dialog, "SSTab1").setCurrentIndex(1);
    TakePicture(dialog, "browser");
    Click(dialog, "Command4");
  });
  Choose("ToolsManage");
}

void Tour::SaveUnderAnotherName() {
  robot_.Expect("SaveAs", [this](QWidget& dialog) {
    TypeInto(dialog, "Text1", "City walk by night");
    TakePicture(dialog, "save-as");
    Click(dialog, "Command1");
  });
  Choose("FileSaveAs");
}

void Tour::ReadTheSample() {
  AnswerMessage("open-question", "OK");
  robot_.Expect("OpenDoc", [this](QWidget& dialog) {
    ClickListRow(Find<QListWidget>(dialog, "List1"), "Writing for the iPod");
    TakePicture(dialog, "open-project");
    Click(dialog, "Command1");
  });
  Choose("FileOpen");
  ShowPage(8);
  TakePicture(*window_, "sample");
}

void Tour::ImportBack() {
  AnswerMessage("import-question", "OK");
  robot_.Expect("Import", [this](QWidget& dialog) {
    auto& drives = Find<QComboBox>(dialog, "Drive1");
    ActivateWindow(dialog);
    drives.setFocus();
    PressKey(drives, Qt::Key_Down);
    for (const char* folder : {"Notes", "City walk"}) {
      auto& folders = Find<QListWidget>(dialog, "Dir1");
      DoubleClickListRow(folders, FolderRow(folders, folder));
    }
    TakePicture(dialog, "import");
    Click(dialog, "Command2");
  });
  AnswerMessage("imported", "OK");
  Choose("ToolsImport");
  ShowPage(1);
  TakePicture(*window_, "imported-page");
}

void Tour::LookAtTheOtherDialogs() {
  robot_.Expect("DeleteDoc", [this](QWidget& dialog) {
    ClickListRow(Find<QListWidget>(dialog, "List1"), "City walk by night");
    TakePicture(dialog, "delete-project");
    Click(dialog, "Command1");
  });
  Choose("FileDelete");
  robot_.Expect("Skins", [this](QWidget& dialog) {
    TakePicture(dialog, "customise");
    Click(dialog, "Command1");
  });
  Choose("HelpCustomise");
  robot_.Expect("About", [this](QWidget& dialog) {
    TakePicture(dialog, "about");
    AnswerMessage("no-system-info", "OK");
    Click(dialog, "cmdSysInfo");
    Click(dialog, "cmdOK");
  });
  Choose("HelpAbout");
  AnswerMessage("close-question", "OK");
  Choose("FileClose");
}

void Tour::ComeBackAfterACrash() {
  robot_.Expect("OpenDoc", [](QWidget& dialog) {
    ClickListRow(Find<QListWidget>(dialog, "List1"), "City walk");
    Click(dialog, "Command1");
  });
  Choose("FileOpen");
  TypeInto(*window_, "Text4", "Typed a moment before the crash");
  ProgramPlace place;
  place.Enter(state_.ProgramFolder, platform_);
  RecoveryKeeper(app_, place.RecoveryFile(), [this] { return window_->TypedPage(); }).KeepLast();
  place.Leave();

  window_ = std::make_unique<Main>(app_);
  program_.Run([this] { window_->Form_Load(); });
  window_->TellRecovered(RecoveryNotice(place.Enter(state_.ProgramFolder, platform_)));
  window_->show();
  ActivateWindow(*window_);
  TakePicture(*window_, "after-a-crash");
}

void Tour::Choose(const QString& menu_item) {
  ChooseMenu(*window_, menu_item);
  ActivateWindow(*window_);
}

void Tour::ShowPage(int number) {
  constexpr int kOneTickOfTheLengthBar = 1100;
  ClickRow(Find<Grid>(*window_, "MSFlexGrid2"), number);
  QTest::qWait(kOneTickOfTheLengthBar);
}

void Tour::WritePage(int number, const QString& title, const QString& note, const QString& text) {
  ClickRow(Find<Grid>(*window_, "MSFlexGrid2"), number);
  TypeInto(*window_, "Text3", title);
  TypeInto(*window_, "Text4", note);
  TypeInto(*window_, "Text1", text);
}

void Tour::WriteLink(int row, const QString& text, const QString& target) {
  ClickRow(Find<Grid>(*window_, "MSFlexGrid1"), row);
  TypeInto(*window_, "Text5", text);
  TypeInto(*window_, "Combo1", target + "\n");
}

void Tour::AnswerMessage(const QString& picture, const QString& button) {
  robot_.Expect("MessageBox", [this, picture, button](QWidget& box) {
    TakePicture(box, picture);
    for (QAbstractButton* candidate : box.findChildren<QAbstractButton*>()) {
      if (candidate->text().remove('&') == button) return Click(*candidate);
    }
    throw std::runtime_error("the message has no button " + button.toStdString());
  });
}

void Tour::TakePicture(QWidget& window, const QString& name) {
  Settle();
  const QString file = QString("%1-%2.png").arg(++pictures_, 2, 10, QChar('0')).arg(name);
  const fs::path path = output_ / "pictures" / ToPath(file);
  if (!window.grab().save(ToText(path))) throw std::runtime_error("cannot write " + path.string());
  std::cout << "picture: " << path.string() << std::endl;
}

void Tour::PrintNotes() const {
  const fs::path folder = state_.ProgramFolder / "City walk";
  std::cout << "project: " << (state_.ProgramFolder / "City walk.dat").string() << '\n';
  for (const FolderFile& note : ListFiles(folder, ".txt", platform_.SystemCodePage())) {
    std::cout << "note: " << (folder / note.Name).string() << '\n';
  }
  std::cout << "\nThe first note reads:\n" << ReadWholeFile(folder / "z001.txt");
}

}  // namespace tavrel::test
