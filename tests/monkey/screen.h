#pragma once

#include <string>

#include "core/document/page_record.h"
#include "ui/controls/body_field.h"
#include "ui/controls/grid.h"
#include "ui/controls/line_field.h"
#include "ui/controls/target_list.h"
#include "ui/main/main_window.h"

namespace tavrel::test {

/// The main window as a person sees it.
class Screen {
 public:
  explicit Screen(Main& window);

  Main& Window;
  LineField& Title;
  LineField& Note;
  BodyField& Body;
  LineField& LinkText;
  TargetList& LinkTarget;
  LineField& MusicText;
  TargetList& MusicLink;
  Grid& Links;
  Grid& Pages;

  /// Everything but the links.
  PageFields Fields() const;
  Link Entry() const;
  Link LinkAt(int row) const;
  bool IsCovered() const;

  /// The name of the control that has the focus in the main window, whichever window is active; empty if none
  /// has it.
  std::string Focus() const;
};

}  // namespace tavrel::test
