#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "monkey/dice.h"
#include "monkey/model.h"
#include "monkey/player.h"
#include "monkey/screen.h"
#include "monkey/stage.h"

class QDockWidget;
class QWidget;

namespace tavrel::test {

struct Counts {
  int Actions = 0;
  int Commands = 0;        ///< commands that the model followed
  int Typings = 0;         ///< texts typed over a field that the model foretold
  int Keys = 0;            ///< single keys, of which the model took over what the field made of them
  int Resynchronised = 0;  ///< commands after which the model was set to what the program had come to
  int Starts = 0;
  int Failures = 0;  ///< run-time errors, all of them earned
  int Published = 0;
  int Kills = 0;
  int Undone = 0;     ///< steps taken back
  int Redone = 0;     ///< steps made again
  int Replays = 0;    ///< histories gone through from end to end
  int Led = 0;        ///< to pages, by the panels of the View menu
  int Recovered = 0;  ///< documents that were brought back after a kill
};

/// A person who does anything at all with the program, and the rules by which the outcome is judged.
class Monkey {
 public:
  /// With `hostile`, files and disks fail and are damaged between the actions, and the program ends or is
  /// killed now and then.
  Monkey(unsigned seed, bool hostile);
  ~Monkey();

  /// One action and what has to hold after it.
  void Act();

  /// Closes the open document.
  void CloseDocument();
  /// Closes the panels of the View menu at their places.
  void ClosePanels();

  /// How it came to what has just happened.
  void TellHistory() const;
  /// Starts the program anew.
  void Restart(Ending ending = Ending::Exit);

  const Counts& Done() const { return counts_; }
  int Messages() const { return stage_->Messages.Count; }
  int Dialogs() const { return player_.Dialogs; }
  /// Differs from walk to walk, and is the same for the same seed.
  std::uint32_t Trail() const { return trail_; }
  Stage& Theatre() { return *stage_; }

 private:
  /// How the person acted, as far as it matters to the focus.
  enum class By { Menu, Click, Keys, Typing, Other };

  void Note(const std::string& act);
  void Remember(const std::string& note);
  void ActInEditor();
  void ActOnCover();
  void ActInPlanner();
  void ActOnComputer();
  void Tamper();

  void TypeIntoField();
  void PressKeys();
  void ClickPagesGrid();
  void ClickLinksGrid();
  void ClickButton();
  void ChooseItem(const std::vector<QString>& items);
  void ChooseByMouse(QAction& item);
  void OpenContextMenu();
  void Fidget();
  void StepsThroughHistory(bool back);
  void StepThroughHistory(bool back);
  void Replay();

  void ActInPanels();
  void LetPanelsLook();
  void LetSearchEnd();
  void LeaveForPanel(const LiteralPlace& place);
  void OpenOrClosePanel();
  bool ComeToPanel(QDockWidget& dock);
  void MovePanel(QDockWidget& dock);
  void UsePreview();
  void UseFindAll();
  void UndoInFindWhat(LineField& field);
  void UseList(const QString& name);
  void PressKeysIn(QWidget& control, const std::vector<Qt::Key>& keys);
  void LeaveAgain(LiteralPlace place);
  void FollowPanels();

  void NoteCaretField();
  void BeginAct();
  void EndAct();
  void Follow();
  void FollowPlanner();
  void FollowRedo();
  bool HasRedo() const;
  void FollowHistory(bool back);
  void CheckTold(bool back, const std::string& step) const;
  void CheckPlace(const LiteralPlace& place) const;
  void CheckCaptions() const;
  void FollowText(const std::string& command);
  void CheckEnd();
  bool IsEarned(const Event& failure) const;
  void Check();
  void CheckFiles();
  void Kill();
  void CheckPublished(const Event& closed);
  QWidget* OpenPlanner() const;

  Dice dice_;
  unsigned seed_;
  bool hostile_;
  std::unique_ptr<Stage> stage_;
  Player player_;
  std::unique_ptr<Screen> screen_;
  std::unique_ptr<Model> model_;
  Counts counts_;
  std::deque<std::string> history_;
  std::uint32_t trail_ = 2166136261U;
  std::set<std::size_t> foreign_;   ///< hashes of the files that the program has not written
  std::set<std::string> tampered_;  ///< names of files that were damaged, removed or replaced

  By by_ = By::Other;
  std::string focus_;         ///< before the action
  bool moves_focus_ = false;  ///< whether a click takes the focus away before a command begins
  bool enter_ = false;
  std::string caret_field_;    ///< the one that had the focus last since the page was shown
  int showing_ = 0;            ///< of the page
  LiteralPlace place_left_;    ///< of the caret before the action, if its field is left by a click
  std::string field_to_undo_;  ///< whose own undo would have been next before the action
  std::string field_to_redo_;
  std::map<std::string, std::string> texts_;  ///< of all fields, before the action
  bool has_unheld_words_ = false;
  std::map<std::string, std::string> with_redo_;  ///< what fields would hold if their redo made all again
  bool by_step_key_ = false;                      ///< the key was one for Undo or Redo
  bool has_destroyed_ = false;  ///< the action before was one of those for which Undo is there
  bool has_stored_ =
      false;             ///< it has stored the page and left it in the fields, whose undo goes behind that
  int popups_ = 0;       ///< that there have been before the action
  bool faulty_ = false;  ///< a file operation was set to fail
  QString body_;         ///< the body before the action, with its selection
  int selection_start_ = 0;
  int selection_end_ = 0;
  QString clipboard_;
  bool is_fresh_ = false;           ///< the panels have looked right before the action
  bool is_left_for_panel_ = false;  ///< the field that had the focus before the action
};

}  // namespace tavrel::test
