#pragma once

#include <array>
#include <ostream>

#include "support/window_test.h"
#include "ui/controls/picture_button.h"

namespace tavrel::test {

/// A button of the toolbar, the menu item that does the same, and the dialog that it opens, if any.
struct ToolBarButton {
  const char* Name;
  const char* Tip;
  const char* MenuItem;
  const char* Dialog = nullptr;
};

inline constexpr std::array<ToolBarButton, 17> kToolBar = {{
    {"Image2", "New project", "FileNew", "NewDoc"},
    {"Image3", "Open project", "FileOpen", "OpenDoc"},
    {"Image4", "Save project", "FileSave"},
    {"Image5", "Cut text", "EditCut"},
    {"Image6", "Copy text", "EditCopy"},
    {"Image7", "Paste text", "EditPaste"},
    {"Image8", "Cut page", "EditDelete"},
    {"Image9", "Copy page", "EditCopyPage"},
    {"Image10", "Paste page", "EditPastePage"},
    {"Image11", "Manage", "ToolsManage", "Manage"},
    {"Image12", "Publish project", "ToolsPublish", "Publish"},
    {"Image13", "Move page up", "EditPageUp"},
    {"Image14", "Move page down", "EditPageDown"},
    {"Image15", "Delete page", "EditDelete"},
    {"Image16", "Move link up", "EditLinkUp"},
    {"Image17", "Move link down", "EditLinkDown"},
    {"Image18", "Delete link", "EditLinkDelete"},
}};

inline std::ostream& operator<<(std::ostream& out, const ToolBarButton& button) {
  return out << button.Tip;
}

/// The main window with its picture buttons.
class ToolBarTest : public WindowTest {
 protected:
  PictureButton& Button(const QString& name) { return Find<PictureButton>(Window(), name); }
};

}  // namespace tavrel::test
