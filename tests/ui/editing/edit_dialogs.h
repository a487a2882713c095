#pragma once

#include <QStringList>

#include <string>
#include <vector>

#include "support/window_test.h"

namespace tavrel::test {

using Texts = std::vector<std::string>;

/// The ways to leave a dialog without doing what it is for.
enum class Dismissal { Cancel, Escape, Frame };
inline constexpr Dismissal kDismissals[] = {Dismissal::Cancel, Dismissal::Escape, Dismissal::Frame};

/// Works with the dialogs of the Edit menu as a person does.
class EditDialogsTest : public WindowTest {
 protected:
  /// Chooses a menu item and plays `step` on the dialog that it opens. No pointer may stay changed.
  void Play(const QString& menu_item, const QString& dialog, const Robot::Step& step);

  /// Chooses Edit > Text > Find, types a text, sets "Match case" and starts.
  void SearchFor(const QString& text, bool match_case = false);
  /// Chooses Edit > Text > Replace, types both texts, sets "Match case" and starts.
  void Replace(const QString& text, const QString& replacement, bool match_case = false);

  /// Opens a block dialog, types its numbers in their order and clicks the button that acts.
  void RunBlock(const QString& dialog, const QStringList& numbers);

  void ExpectCurrentPage(int page);
};

/// Closes a dialog; `cancel` is the name of its Cancel button.
void Dismiss(QWidget& dialog, Dismissal way, const QString& cancel);

/// Clicks a check box unless it is as wanted already.
void SetTicked(const QWidget& dialog, const QString& box, bool ticked);

/// Types into the number boxes Text1, Text2, ...
void TypeNumbers(const QWidget& dialog, const QStringList& numbers);
/// What these boxes show.
QStringList ShownNumbers(const QWidget& dialog);

/// The text of a label, button or box.
QString Caption(const QWidget& window, const QString& name);

}  // namespace tavrel::test
