#pragma once

#include "ui/app.h"
#include "ui/controls/program_control.h"

namespace tavrel {

class Editor;

/// Records what every command does to the document, so that it can be taken back.
class CommandSteps : public CommandWatch {
 public:
  CommandSteps(App& app, Editor& editor);
  ~CommandSteps() override;

  void Begins() override;
  void Ends() override;

 private:
  App& app_;
  Editor& editor_;
  bool is_recorded_ = false;
};

}  // namespace tavrel
