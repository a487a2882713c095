#include "ui/planner/planner.h"

#include <QTimer>

#include "core/planner/plan_file.h"
#include "core/planner/plan_pages.h"
#include "core/shell/messages.h"
#include "core/text/numbers.h"
#include "core/text/run_time_error.h"
#include "ui/controls/message_box.h"
#include "ui/controls/program_control.h"
#include "ui/controls/text_conversion.h"
#include "ui/main/editor.h"
#include "ui/planner/delete_plan.h"
#include "ui/planner/load_planner.h"
#include "ui/planner/save_planner.h"
#include "ui_planner.h"

namespace tavrel {
namespace {

constexpr int kLabelDelay = 500;

// The navigation texts' numbers.
constexpr std::size_t kNorth = 0;
constexpr std::size_t kSouth = 1;
constexpr std::size_t kEast = 2;
constexpr std::size_t kWest = 3;

}  // namespace

Planner::Planner(App& app, Editor& editor, QWidget* main_window)
    : Dialog(app, nullptr),
      editor_(editor),
      main_window_(main_window),
      ui_(std::make_unique<Ui::Planner>()),
      timer1_(new QTimer(this)) {
  ui_->setupUi(this);
  setWindowFlags(Qt::Window);
  text3_ = {ui_->Text3_0, ui_->Text3_1, ui_->Text3_2, ui_->Text3_3};
  timer1_->setObjectName("Timer1");
  timer1_->setInterval(kLabelDelay);
  PrepareControls();
  ui_->Map->SetCodePage(app_.CodePageInUse());
  ConnectControls();
  WatchTags();
  OrderTabs();
  Form_Load();
}

Planner::~Planner() = default;

void Planner::ConnectControls() {
  ProgramControl& control = app_.Control;
  On(control, ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  On(control, ui_->Command2, &QPushButton::clicked, this, [this] { Command2_Click(); });
  On(control, ui_->Command3, &QPushButton::clicked, this, [this] { Command3_Click(); });
  On(control, ui_->Command4, &QPushButton::clicked, this, [this] { Command4_Click(); });
  On(control, ui_->Command5, &QPushButton::clicked, this, [this] { Command5_Click(); });
  On(control, ui_->Command6, &QPushButton::clicked, this, [this] { Command6_Click(); });
  On(control, ui_->Text2, &LineField::KeyPress, this, [this] { Text2_KeyPress(); });
  // Text may also come by the mouse.
  On(control, ui_->Text2, &LineField::textEdited, this, [this] { Text2_KeyPress(); });
  On(control, timer1_, &QTimer::timeout, this, [this] { Timer1_Timer(); });
}

void Planner::WatchTags() {
  ui_->TagNotice->SetOwner(tr("A page"));
  for (LineField* text : text3_) {
    ui_->TagNotice->Watch(*text, {"<title>", "</linktext>", "</link>", "<linktext>", "<linkto>", "<music>"});
  }
  for (const PlannerCell* cell : ui_->Map->Cells()) {
    ui_->TagNotice->Watch(cell->Text(), {"</text>", "<title>", "<note>", "</note>", "</link>", "<linktext>",
                                         "<linkto>", "<music>"});
  }
}

void Planner::OrderTabs() {
  QWidget* last = ui_->Text2;
  const auto next = [&last](QWidget* control) {
    setTabOrder(last, control);
    last = control;
  };
  for (LineField* text : text3_) next(text);
  for (const PlannerCell* cell : ui_->Map->Cells()) {
    for (QWidget* control : cell->ControlsInOrder()) next(control);
  }
  for (QPushButton* button :
       {ui_->Command1, ui_->Command3, ui_->Command4, ui_->Command5, ui_->Command6, ui_->Command2}) {
    next(button);
  }
}

void Planner::Form_Load() {
  if (!app_.State.PlanPath.empty()) ShowCaption();
  timer1_->start();
}

void Planner::Command1_Click() {
  // Whoever comes here has left the fields of the editor, perhaps by way of another program.
  editor_.UpdateGrid1();
  editor_.SavePage();
  hide();
  main_window_->setWindowState(main_window_->windowState() & ~Qt::WindowMinimized);
  const Plan plan = ShownPlan();
  if (!CanInsertPlan(plan)) return;
  if (!app_.Messages.Show(main_window_, messages::PlanOverwritesPages(PlanTop(plan)))) return;
  app_.Steps.Name(
      tr("Insert plan at %1").arg(QString::fromStdString(FormatPage(PlanTop(plan)))).toStdString());
  InsertPlan(plan, app_.State);
  editor_.RefreshGrid2();
  editor_.LoadPage(app_.State.CurrentPage);
}

void Planner::Command2_Click() {
  hide();
}

void Planner::Command3_Click() {
  for (PlannerCell* cell : ui_->Map->Cells()) cell->Show({});
}

void Planner::Command4_Click() {
  LoadPlanner(app_, this).exec();
  if (app_.State.PlanPath.empty()) return;
  ShowCaption();
  Command3_Click();
  ShowPlan(LoadPlan(app_.State));
}

void Planner::Command5_Click() {
  SavePlanner(app_, this).exec();
  if (app_.State.PlanPath.empty()) return;
  try {
    SavePlan(ShownPlan(), app_.State, app_.System);
    ShowCaption();
  } catch (const FileError& error) {
    // Ending the program would lose the plan.
    app_.Messages.Show(this, {error.what(), Buttons::Ok, Icon::Exclamation, windowTitle().toStdString()});
  }
}

void Planner::Command6_Click() {
  DeletePlan(app_, this).exec();
}

void Planner::Text2_KeyPress() {
  timer1_->start();
}

void Planner::Timer1_Timer() {
  timer1_->stop();
  ui_->Map->ShowLabels(std::abs(static_cast<std::int64_t>(WholeValue(ui_->Text2->Bytes()))));
}

void Planner::ShowCaption() {
  setWindowTitle(tr("Project Planner - %1").arg(ToText(PlanName(app_.State))));
}

void Planner::ShowPlan(const Plan& plan) {
  ui_->Text2->SetBytes(plan.TopLeft);
  text3_[kNorth]->SetBytes(plan.North);
  text3_[kSouth]->SetBytes(plan.South);
  text3_[kEast]->SetBytes(plan.East);
  text3_[kWest]->SetBytes(plan.West);
  // Unlike the timer, loading keeps a minus sign.
  ui_->Map->ShowLabels(PlanTop(plan));
  for (std::size_t i = 0; i < kPlanCells; ++i) ui_->Map->Cells()[i]->Show(plan.Cells[i]);
}

Plan Planner::ShownPlan() const {
  Plan plan;
  plan.TopLeft = ui_->Text2->Bytes();
  plan.North = text3_[kNorth]->Bytes();
  plan.South = text3_[kSouth]->Bytes();
  plan.East = text3_[kEast]->Bytes();
  plan.West = text3_[kWest]->Bytes();
  for (std::size_t i = 0; i < kPlanCells; ++i) plan.Cells[i] = ui_->Map->Cells()[i]->Shown();
  return plan;
}

}  // namespace tavrel
