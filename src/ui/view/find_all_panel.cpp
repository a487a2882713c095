#include "ui/view/find_all_panel.h"

#include <QElapsedTimer>
#include <QTimer>

#include <vector>

#include "ui/controls/program_control.h"
#include "ui/view/hit_delegate.h"
#include "ui/view/hit_model.h"
#include "ui_find_all_panel.h"

namespace tavrel {
namespace {

constexpr qint64 kSlice = 8;  // milliseconds of searching between looks at the keyboard

}  // namespace

FindAllPanel::FindAllPanel(App& app, QWidget* parent)
    : QWidget(parent),
      app_(app),
      ui_(std::make_unique<Ui::FindAllPanel>()),
      model_(new HitModel(app.CodePageInUse(), this)),
      timer_(new QTimer(this)) {
  ui_->setupUi(this);
  ui_->FindWhat->SetCodePage(app_.CodePageInUse());
  ui_->Hits->setModel(model_);
  ui_->Hits->setColumnWidth(0, fontMetrics().horizontalAdvance("00000000"));
  ui_->Hits->setItemDelegateForColumn(HitModel::kContextColumn, new HitDelegate(ui_->Hits));
  timer_->setObjectName("SearchTimer");
  On(app_.Control, timer_, &QTimer::timeout, this, [this] { GoOn(); });
  connect(ui_->FindWhat, &QLineEdit::textChanged, this, [this] { Restart(); });
  connect(ui_->MatchCase, &QAbstractButton::toggled, this, [this] { Restart(); });
  connect(ui_->FindWhat, &QLineEdit::returnPressed, this, [this] {
    if (model_->Count() > 0) emit Chosen(model_->At(qMax(ui_->Hits->Row(), 0)));
  });
  for (const auto signal : {&RowList::Clicked, &RowList::Chosen})
    connect(ui_->Hits, signal, this, [this](int row) { emit Chosen(model_->At(row)); });
}

FindAllPanel::~FindAllPanel() = default;

void FindAllPanel::Show(const Global& document) {
  document_ = document;
  top_ = ui_->Hits->Top();
  Restart();
}

void FindAllPanel::FocusOnText() {
  ui_->FindWhat->setFocus();
  ui_->FindWhat->selectAll();
}

void FindAllPanel::Restart() {
  const int row = ui_->Hits->Row();
  if (row >= 0) current_ = model_->At(row);
  const std::string wanted = ui_->FindWhat->Bytes();
  model_->Start(document_, wanted.size());
  search_.reset();
  if (!wanted.empty())
    search_ = std::make_unique<FindAll>(document_, wanted, ui_->MatchCase->isChecked(), app_.CodePageInUse());
  GoOn();
}

void FindAllPanel::GoOn() {
  QElapsedTimer time;
  time.start();
  std::vector<Hit> hits;
  while (search_ && !search_->IsDone() && time.elapsed() < kSlice) search_->SearchPage(hits);
  model_->Add(hits);
  const bool is_done = !search_ || search_->IsDone();
  if (is_done) {
    timer_->stop();
    ui_->Hits->Restore(top_, current_ && ui_->Hits->Row() < 0 ? model_->RowOf(*current_) : -1);
    current_.reset();
    top_ = 0;
  } else {
    timer_->start(0);
  }
  ShowCount();
}

void FindAllPanel::ShowCount() {
  const int count = model_->Count();
  const QString hits = count == 1 ? tr("1 hit") : tr("%L1 hits").arg(count);
  ui_->HitCount->setText(!search_ ? QString() : search_->IsDone() ? hits : hits + tr(", searching on"));
}

}  // namespace tavrel
