#include "ui/main/command_steps.h"

#include "ui/main/editor.h"

namespace tavrel {

CommandSteps::CommandSteps(App& app, const Editor& editor) : app_(app), editor_(editor) {
  app_.Control.SetWatch(this);
}

CommandSteps::~CommandSteps() {
  app_.Control.SetWatch(nullptr);
}

void CommandSteps::Begins() {
  if (app_.State.IsDocumentOpen() && app_.State.IsDocumentShown) app_.Steps.Begin(app_.State, editor_.Now());
}

void CommandSteps::Ends() {
  if (app_.State.IsDocumentOpen()) app_.Steps.End(app_.State, editor_.Now());
}

}  // namespace tavrel
