#pragma once

#include <QCoreApplication>

#include "core/document/document_file.h"
#include "support/fake_platform.h"
#include "support/full_size_document.h"
#include "support/recording.h"
#include "support/temporary_folder.h"
#include "ui/app.h"
#include "ui/main/main_window.h"

namespace tavrel::bench {

/// The editor with the full-size document open.
struct OpenEditor {
  test::TemporaryFolder Folder;
  Global State;
  test::FakePlatform System;
  test::RecordingMessages Messages;
  test::RecordedProgram Program;
  App Application{State, System, Messages, Program};
  Main Window{Application};

  OpenEditor() {
    test::MakeFullSizeDocument(State);
    State.ProgramFolder = Folder.Path();
    Window.Form_Load();
    State.DocPath = "Full size.dat";
    SaveDocument(State, System);
    Window.LoadDoc();
    Window.ShowControls();
    Window.ShowDocumentName();
    Window.show();
    Window.activateWindow();
    QCoreApplication::processEvents();
  }
};

}  // namespace tavrel::bench
