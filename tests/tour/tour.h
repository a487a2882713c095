#pragma once

#include <QString>

#include <filesystem>
#include <memory>

#include "core/document/global.h"
#include "support/fake_platform.h"
#include "support/recording.h"
#include "support/robot.h"
#include "ui/app.h"
#include "ui/controls/message_box.h"
#include "ui/main/main_window.h"

namespace tavrel::test {

/// A whole job in the real windows: a project is made, written, changed, planned, saved, backed up,
/// published, copied to a pretend iPod, imported back, and found again after a crash.
class Tour {
 public:
  /// Pictures and the tour's own program folder go into `output`, which is emptied first.
  explicit Tour(const std::filesystem::path& output);

  /// Plays all of it. Throws, or returns false after saying why, if a window did not behave.
  bool Play();

 private:
  void StartProgram();
  void MakeProject();
  void WritePages();
  void AddMusic();
  void InsertAPage();
  void ClearAndUndo();
  void FindAndReplace();
  void LookThroughThePanels();
  void MoveBlocks();
  void FillThePlanner();
  void SaveAndLoadThePlan();
  void InsertThePlan();
  void SaveProject();
  void BackUpAndRestore();
  void PublishProject();
  void CopyToTheIpod();
  void SaveUnderAnotherName();
  void ReadTheSample();
  void ImportBack();
  void LookAtTheOtherDialogs();
  void ComeBackAfterACrash();

  void Choose(const QString& menu_item);
  void ShowPage(int number);
  void WritePage(int number, const QString& title, const QString& note, const QString& text);
  void WriteLink(int row, const QString& text, const QString& target);
  void FillIn(const QString& dialog, const QString& menu_item, const QStringList& numbers,
              const QString& picture);
  void AnswerMessage(const QString& picture, const QString& button);
  void TakePicture(QWidget& window, const QString& name);
  void PrintNotes() const;

  std::filesystem::path output_;
  FakePlatform platform_;
  Global state_;
  MessageBoxes messages_;
  RecordedProgram program_;
  App app_;
  Robot robot_;
  std::unique_ptr<Main> window_;
  int pictures_ = 0;
};

}  // namespace tavrel::test
