#pragma once

#include <memory>

#include "core/ipod/note_writer.h"
#include "core/text/run_time_error.h"
#include "ui/controls/dialog.h"
#include "ui/ipod/folder_side.h"

namespace Ui {
class Publish;
}

namespace tavrel {

/// Publishes the document as a folder of note files.
class Publish : public Dialog {
  Q_OBJECT

 public:
  Publish(App& app, QWidget* parent);
  ~Publish() override;

 public slots:
  void Form_Load();
  void Command1_Click();
  void Command2_Click();
  void Drive1_Change();
  void Dir1_Change();

 private:
  PublishOptions Options() const;
  /// Says in a line what will not come out well.
  void ShowCheck();
  void ShowError(const FileError& error);

  std::unique_ptr<Ui::Publish> ui_;
  std::unique_ptr<FolderSide> side_;
};

}  // namespace tavrel
