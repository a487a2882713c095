#include "ui/main/command_steps.h"

#include "ui/main/editor.h"

namespace tavrel {

CommandSteps::CommandSteps(App& app, Editor& editor) : app_(app), editor_(editor) {
  app_.Control.SetWatch(this);
}

CommandSteps::~CommandSteps() {
  app_.Control.SetWatch(nullptr);
}

void CommandSteps::Begins() {
  is_recorded_ = app_.State.IsDocumentInEditor();
  if (is_recorded_) app_.Steps.Begin(app_.State, editor_.Now(), editor_.TypedWithRedo());
}

void CommandSteps::Ends() {
  if (is_recorded_)
    app_.Steps.End(app_.State, {.At = editor_.At(), .Typed = {}, .Showing = editor_.Showing()});
}

}  // namespace tavrel
