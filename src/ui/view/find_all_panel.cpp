#include "ui/view/find_all_panel.h"

#include <QElapsedTimer>
#include <QTimer>

#include <iterator>
#include <optional>
#include <utility>
#include <vector>

#include "ui/controls/program_control.h"
#include "ui/view/hit_delegate.h"
#include "ui/view/hit_model.h"
#include "ui_find_all_panel.h"

namespace tavrel {
namespace {

constexpr qint64 kSlice = 8;     // milliseconds of searching between looks at the keyboard
constexpr int kUntilShown = 20;  // milliseconds in which the first hits come to the screen
constexpr int kInView = 100;     // rows; more do not fit

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
  connect(ui_->FindWhat, &LineField::CharactersReplaced, this, &FindAllPanel::CharactersReplaced);
  connect(ui_->FindWhat, &QLineEdit::textChanged, this, [this] { Renew(); });
  connect(ui_->MatchCase, &QAbstractButton::toggled, this, [this] { Renew(); });
  connect(ui_->FindWhat, &QLineEdit::returnPressed, this, [this] {
    if (model_->Count() > 0) emit Chosen(model_->At(qMax(ui_->Hits->Row(), 0)));
  });
  for (const auto signal : {&RowList::Clicked, &RowList::Chosen})
    connect(ui_->Hits, signal, this, [this](int row) { emit Chosen(model_->At(row)); });
}

FindAllPanel::~FindAllPanel() = default;

void FindAllPanel::Show(const Global& document) {
  document_ = document;
  if (is_in_view_) top_ = ui_->Hits->Top();
  Restart();
}

void FindAllPanel::FocusOnText() {
  ui_->FindWhat->setFocus();
  ui_->FindWhat->selectAll();
}

void FindAllPanel::Renew() {
  is_new_text_ = true;
  top_ = 0;
  Restart();
}

void FindAllPanel::Restart() {
  const int row = ui_->Hits->Row();
  if (row >= 0) current_ = model_->At(row);
  is_in_view_ = false;
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
  const auto is_view_full = [&] { return model_->Count() + std::ssize(hits) >= top_ + kInView; };
  const auto has_first = [&] { return is_new_text_ && !is_in_view_ && is_view_full(); };
  while (search_ && !search_->IsDone() && !has_first() && time.elapsed() < kSlice) search_->SearchPage(hits);
  // A list of many rows takes long to lay out, so the first are painted before the others come.
  timer_->start(has_first() ? kUntilShown : 0);
  model_->Add(std::exchange(hits, {}));
  const bool is_done = !search_ || search_->IsDone();
  if (is_done || (!is_in_view_ && is_view_full())) ComeIntoView();
  if (is_done) {
    timer_->stop();
    current_.reset();
    is_new_text_ = false;
  }
  ShowCount();
}

/// People may scroll on while the search goes on.
void FindAllPanel::ComeIntoView() {
  const int top = std::exchange(is_in_view_, true) ? ui_->Hits->Top() : top_;
  const bool is_free = current_ && ui_->Hits->Row() < 0;
  ui_->Hits->Restore(top, is_free ? model_->RowOf(*current_) : -1);
}

void FindAllPanel::ShowCount() {
  const int count = model_->Count();
  const QString hits = count == 1 ? tr("1 hit") : tr("%L1 hits").arg(count);
  ui_->HitCount->setText(!search_ ? QString() : search_->IsDone() ? hits : hits + tr(", searching on"));
}

}  // namespace tavrel
