#include "ui/document/save_document.h"

#include <QCoreApplication>

#include "core/document/document_file.h"

namespace tavrel {

void SaveDoc(App& app) {
  SaveDocument(app.State, app.System);
  // Keys and clicks wait, so that no second command starts inside the one that saves.
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace tavrel
