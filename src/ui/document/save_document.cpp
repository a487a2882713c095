#include "ui/document/save_document.h"

#include "core/document/document_file.h"
#include "ui/controls/program_control.h"
#include "ui/controls/redraw.h"

namespace tavrel {

void SaveDoc(App& app) {
  SaveDocument(app.State, app.System);
  app.Steps.Saved();
  app.Control.DocumentSettled();
  LetWindowsRedraw();
}

}  // namespace tavrel
