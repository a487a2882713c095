#pragma once

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <string_view>

#include "support/fake_platform.h"
#include "support/fixtures.h"
#include "support/recording.h"
#include "support/robot.h"
#include "support/temporary_folder.h"
#include "support/user.h"
#include "ui/app.h"
#include "ui/controls/body_field.h"
#include "ui/controls/grid.h"
#include "ui/controls/line_field.h"
#include "ui/controls/target_list.h"
#include "ui/main/main_window.h"

namespace tavrel::test {

/// A main window over a fresh program folder, driven as a person drives it.
class WindowTest : public testing::Test {
 protected:
  /// The program runs on `System`, or on another platform.
  explicit WindowTest(std::unique_ptr<Platform> platform = nullptr);
  ~WindowTest() override;

  /// Starts the main window. Called by the first use of Window(); call it after preparing the folder.
  void Start();
  Main& Window();

  void Choose(const QString& menu_item) { ChooseMenu(Window(), menu_item); }

  /// Writes a document file and opens it with File > Open project.
  void OpenDocument(const std::string& name, std::string_view bytes);
  /// Opens a document file that lies in the program's folder.
  void OpenExisting(const std::string& name);
  /// File > Save project, then the bytes of the document's file.
  std::string Save();

  /// The text of the last message, and how many there were.
  const Message& LastMessage() const { return Messages.Shown.back(); }

  LineField& Title() { return Find<LineField>(Window(), "Text3"); }
  LineField& Note() { return Find<LineField>(Window(), "Text4"); }
  BodyField& Body() { return Find<BodyField>(Window(), "Text1"); }
  LineField& LinkText() { return Find<LineField>(Window(), "Text5"); }
  TargetList& LinkTarget() { return Find<TargetList>(Window(), "Combo1"); }
  LineField& MusicText() { return Find<LineField>(Window(), "Text6"); }
  TargetList& MusicLink() { return Find<TargetList>(Window(), "Combo2"); }
  Grid& LinksGrid() { return Find<Grid>(Window(), "MSFlexGrid1"); }
  Grid& PagesGrid() { return Find<Grid>(Window(), "MSFlexGrid2"); }

  TemporaryFolder Folder;
  Global State;
  FakePlatform System;
  RecordingMessages Messages;
  RecordedProgram Program;

 private:
  std::unique_ptr<Platform> platform_;

 protected:
  App Application{State, platform_ ? *platform_ : System, Messages, Program};
  Robot Player;

 private:
  std::unique_ptr<Main> window_;
};

}  // namespace tavrel::test
