#include "monkey/monkey.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QTextBlock>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <utility>

#include "monkey/panel_watch.h"
#include "support/user.h"

namespace tavrel::test {
namespace {

constexpr std::size_t kHistory = 30;
constexpr std::size_t kMostBytes = 1'500'000;

/// Less than what the program keeps of steps, so that it never has to forget one.
constexpr std::size_t kMostStepBytes = 60'000'000;

QString WholeText(const BodyField& body) {
  QString text;
  for (QTextBlock block = body.document()->begin(); block.isValid(); block = block.next()) {
    if (block.blockNumber() > 0) text += '\n';
    text += block.text();
  }
  return text;
}

}  // namespace

Monkey::Monkey(unsigned seed, bool hostile)
    : dice_(seed),
      seed_(seed),
      hostile_(hostile),
      stage_(std::make_unique<Stage>(dice_, hostile)),
      player_(dice_, stage_->Seen) {
  TellHowItCame = [this] { TellHistory(); };
  Restart();
}

Monkey::~Monkey() {
  TellHowItCame = nullptr;
  screen_.reset();
  stage_->Stop(Ending::Exit);
}

void Monkey::TellHistory() const {
  std::printf("seed %u, action %d, files in %s; the last actions:\n", seed_, counts_.Actions,
              stage_->Sandbox.Path().c_str());
  for (const std::string& act : history_) std::printf("  %s\n", act.c_str());
  for (const Event& event : stage_->Seen.Events) {
    std::printf("    event %d %s.%s = %d\n", static_cast<int>(event.What), event.Window.c_str(),
                event.Control.c_str(), event.Number);
  }
}

void Monkey::Note(const std::string& act) {
  for (const char c : act) trail_ = (trail_ ^ static_cast<unsigned char>(c)) * 16777619U;
  Remember(act);
}

void Monkey::Remember(const std::string& note) {
  history_.push_back(std::to_string(counts_.Actions) + " " + note);
  if (history_.size() > kHistory) history_.pop_front();
}

void Monkey::Restart(Ending ending) {
  screen_.reset();
  stage_->Stop(ending);
  stage_->Start();
  stage_->Window().resize(900, 600);
  player_.Watch(stage_->Window());
  Find<QTimer>(stage_->Window(), "LookTimer").stop();
  screen_ = std::make_unique<Screen>(stage_->Window());
  new PanelWatch(*screen_, stage_->Seen);
  caret_field_ = "Text1";
  model_ = std::make_unique<Model>(stage_->ProgramFolder);
  stage_->Seen.Clear();
  ++counts_.Starts;
}

void Monkey::Act() {
  ++counts_.Actions;
  BeginAct();
  std::size_t bytes = 0;
  for (const std::string& page : stage_->State().Pages) bytes += page.size();
  if (bytes > kMostBytes || model_->Steps().Bytes() > kMostStepBytes) {
    Note("start anew: the document or its history is large");
    Restart();
    return;
  }
  if (hostile_ && dice_.OneIn(250)) {
    Kill();
    return;
  }
  if (dice_.OneIn(12)) LetPanelsLook();
  QWidget* planner = OpenPlanner();
  if (planner != nullptr && dice_.OneIn(4)) {
    ActInPlanner();
  } else {
    Activate(stage_->Window());
    if (hostile_ && dice_.OneIn(25)) ActOnComputer();
    if (model_->IsShown) {
      ActInEditor();
    } else {
      ActOnCover();
    }
  }
  EndAct();
}

void Monkey::CloseDocument() {
  for (int left = 100; left > 0 && model_->IsShown; --left) {
    BeginAct();
    Activate(stage_->Window());
    by_ = By::Menu;
    Note("close the document");
    Find<QAction>(stage_->Window(), "FileClose").trigger();
    EndAct();
  }
}

void Monkey::NoteCaretField() {
  if (std::exchange(showing_, model_->Showing()) != model_->Showing()) caret_field_ = "Text1";
  const std::vector<std::string>& fields = Screen::FieldNames();
  const std::string focus = screen_->Focus();
  if (std::find(fields.begin(), fields.end(), focus) != fields.end()) caret_field_ = focus;
}

void Monkey::BeginAct() {
  // Painting takes more time than all the rest.
  stage_->Window().setUpdatesEnabled(counts_.Actions % 8 == 0);
  LetSearchEnd();
  is_fresh_ = false;
  is_left_for_panel_ = false;
  stage_->Seen.Clear();
  by_ = By::Other;
  moves_focus_ = false;
  enter_ = false;
  popups_ = player_.Popups;
  faulty_ = false;
  focus_ = screen_->Focus();
  NoteCaretField();
  place_left_ = screen_->PlaceIn(caret_field_);
  // A line that is left forgets its selection.
  if (caret_field_ != "Text1") place_left_.Anchor = place_left_.Caret;
  field_to_undo_ = screen_->FieldToUndo();
  field_to_redo_ = screen_->FieldToRedo();
  has_unheld_words_ = !screen_->FieldWithUnheldWords().empty();
  for (const std::string& field : Screen::FieldNames()) texts_[field] = model_->Typed(field);
  by_step_key_ = false;
  model_->BeginCommand(screen_->PlaceIn(caret_field_), with_redo_);
  model_->Focus = focus_;
  model_->LinkRow = screen_->Links.Row();
  body_ = WholeText(screen_->Body);
  selection_start_ = screen_->Body.textCursor().selectionStart();
  selection_end_ = screen_->Body.textCursor().selectionEnd();
  clipboard_ = QApplication::clipboard()->text();
}

void Monkey::EndAct() {
  RunEvents();
  RunEvents();
  for (int left = 5; left > 0 && QApplication::activePopupWidget() != nullptr; --left) {
    QApplication::activePopupWidget()->close();
    RunEvents();
  }
  stage_->System.Files.FailAt(FailingFiles::Operation::None, 0, std::errc::io_error);
  if (stage_->Seen.IsOver) {
    CheckEnd();
    Restart();
    return;
  }
  Follow();
  Check();
}

void Monkey::Follow() {
  const Record& seen = stage_->Seen;
  const Event* command = seen.First(Event::Kind::Command);
  const Event* click = nullptr;
  for (const Event& event : seen.Events) {
    if (event.What == Event::Kind::GridClick && event.Window == "Main") click = &event;
  }
  if (seen.First(Event::Kind::Led) != nullptr) {
    FollowPanels();
  } else if (command != nullptr || click != nullptr) {
    if (moves_focus_) {
      model_->LeaveField(focus_);
      model_->LeavePlace(place_left_);
      model_->Focus = "";
    }
    if (click != nullptr) {
      if (click->Control == "MSFlexGrid2") model_->ClickPage(click->Number);
      if (click->Control == "MSFlexGrid1") model_->ClickLink(click->Number);
    } else if (command->Control == "EditUndo" || command->Control == "EditRedo") {
      FollowHistory(command->Control == "EditUndo");
    } else if (!model_->Run(command->Control, seen)) {
      FollowText(command->Control);
    }
    if (!model_->IsShown) model_->ObserveCovered(*screen_);
    ++counts_.Commands;
    const Event* closed = seen.Last(Event::Kind::Closed, "Publish");
    if (closed != nullptr && seen.MessageOf("Finished...    ") != nullptr) CheckPublished(*closed);
  } else if (by_ == By::Keys) {
    Expect(!by_step_key_ || !model_->IsShown, "the keys for Undo and Redo reach them from everywhere");
    ++counts_.Keys;
    model_->Observe(focus_, *screen_);
    if (enter_) model_->PressEnter(focus_);
    if (screen_->Focus() != focus_) model_->LeaveField(focus_);
  }
  if (player_.Popups > popups_) {
    model_->LeaveIfLeft(focus_, *screen_);
    model_->LeaveIfLeft(screen_->Focus(), *screen_);
  }
  FollowPlanner();
  if (model_->NeedsResynchronising) {
    ++counts_.Resynchronised;
    model_->Resynchronise(stage_->State(), *screen_);
    model_->NeedsResynchronising = false;
  }
  model_->Focus = screen_->Focus();
  const std::size_t steps = model_->Steps().Done.size();
  NoteCaretField();
  model_->EndCommand(screen_->PlaceIn(caret_field_));
  const std::vector<LiteralStep>& done = model_->Steps().Done;
  FollowRedo();
  const bool has_step = done.size() > steps;
  if (has_step) Remember("a step: " + done.back().Name);
  has_destroyed_ = has_step && !done.back().Name.starts_with("Edit page");
  has_stored_ = has_step && done.back().Showing != 0;
}

void Monkey::FollowPlanner() {
  const Event* pressed = stage_->Seen.Last(Event::Kind::Pressed, "Planner");
  if (pressed == nullptr || pressed->Control != "Command1") return;
  model_->InsertPlan(stage_->Seen);
  ++counts_.Commands;
}

QWidget* Monkey::OpenPlanner() const {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->objectName() == "Planner" && window->isVisible()) return window;
  }
  return nullptr;
}

}  // namespace tavrel::test
