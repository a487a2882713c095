#pragma once

#include "core/document/page_record.h"
#include "ui/app.h"

namespace Ui {
class Main;
}

namespace tavrel {

/// The fields of the main window that hold the page in the editor.
class PageEditor {
 public:
  PageEditor(App& app, Ui::Main& ui);

  /// Title, note, body and music text.
  void ShowFields(const PageFields& fields);
  void ShowMusicLink(const PageFields& fields);
  /// The entry fields of one link.
  void ShowLink(const Link& link);

  /// Refills the lists of targets: the existing pages and music links, and the music links alone.
  void FillTargets();
  /// Renews the music links in both lists; the pages in the first stay as they were listed.
  void RefreshMusicTargets();

  /// What the fields hold, links apart.
  PageFields TypedFields() const;
  /// The link in the entry fields, trimmed.
  Link TypedLink() const;

 private:
  App& app_;
  Ui::Main& ui_;
};

}  // namespace tavrel
