#pragma once

#include <QObject>

#include <array>
#include <functional>

#include "core/document/field_part.h"
#include "core/document/page_record.h"
#include "core/history/history.h"
#include "ui/app.h"

class QWidget;

namespace Ui {
class Main;
}

namespace tavrel {

/// The fields of the main window that hold the page in the editor.
class PageEditor : public QObject {
  Q_OBJECT

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

  /// Where the caret is: in the field that has the focus, or else in the one that had it last since the page
  /// was shown, or else in the body.
  Place CaretPlace(const QWidget* control_with_focus) const;
  /// Gives the focus to the field of a place.
  void FocusOn(const Place& place);
  /// Puts the caret of that field there.
  void ShowCaret(const Place& place);

  /// The field of a part, with the caret at its beginning.
  Place PlaceOf(const FieldPart& part) const;
  /// Where a part of what the page's record holds in a field stands in the field itself.
  FieldPart PartInField(const FieldPart& part, std::string_view content) const;
  /// Selects a part of the page that is shown.
  void Select(const FieldPart& part);

  /// Calls `look` while everything stands in the fields that their own undo has taken back.
  void WithRedo(const std::function<void()>& look);
  /// As the editor is asked for them.
  QWidget* FieldWithUnheldWords() const;
  QWidget* FieldWithRedo(QWidget* first) const;

  /// What the fields hold, links apart.
  PageFields TypedFields() const;
  /// The link in the entry fields, trimmed.
  Link TypedLink() const;

 private:
  void FollowFocus();
  std::array<QWidget*, 7> Fields() const;
  /// Null if a control is none of the fields.
  QWidget* FieldAmong(const QWidget* control) const;
  QWidget& FieldAt(const Place& place) const;
  QWidget& ControlOf(Field field) const;

  App& app_;
  Ui::Main& ui_;
  QWidget* last_field_;
};

}  // namespace tavrel
