#include "ui/planner/planner_cell.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QTextBlock>

#include <algorithm>

#include "ui/controls/body_field.h"
#include "ui/controls/font_size.h"
#include "ui/controls/tick_box.h"

namespace tavrel {
namespace {

constexpr qreal kSmallFont = 0.85;
constexpr int kCellMargin = 4;
constexpr qreal kCellCorner = 5;
constexpr int kLeastLines = 2;

}  // namespace

PlannerCell::PlannerCell(std::size_t index, QWidget* parent)
    : QWidget(parent), index_(index), label_(new QLabel(this)), text_(new BodyField(this)) {
  ScaleFont(*this, kSmallFont);
  north_ = AddTick("Check4", tr("North"));
  west_ = AddTick("Check1", tr("   West"));
  south_ = AddTick("Check3", tr("South"));
  east_ = AddTick("Check2", tr("East"));
  text_->setTabChangesFocus(true);
  text_->setFrameShape(QFrame::NoFrame);
  text_->setMinimumHeight(kLeastLines * text_->fontMetrics().lineSpacing() + 2 * kCellMargin);
  connect(text_, &BodyField::textChanged, this, [this] {
    update();
    emit Changed();
  });
  LayOut();
  NameControls();
}

TickBox* PlannerCell::AddTick(const QString& array, const QString& caption) {
  auto* tick = new TickBox(this);
  tick->setObjectName(QString("%1_%2").arg(array).arg(index_));
  tick->setText(caption);
  connect(tick, &TickBox::stateChanged, this, &PlannerCell::Changed);
  return tick;
}

void PlannerCell::LayOut() {
  auto* layout = new QGridLayout(this);
  layout->setContentsMargins(kCellMargin, kCellMargin, kCellMargin, kCellMargin);
  layout->setHorizontalSpacing(0);
  layout->setVerticalSpacing(kCellMargin / 2);
  layout->addWidget(label_, 0, 0);
  layout->addWidget(north_, 0, 1, Qt::AlignHCenter);
  layout->addWidget(text_, 1, 0, 1, 3);
  layout->addWidget(west_, 2, 0, Qt::AlignLeft);
  layout->addWidget(south_, 2, 1, Qt::AlignHCenter);
  layout->addWidget(east_, 2, 2, Qt::AlignRight);
  layout->setColumnStretch(0, 1);
  layout->setColumnStretch(2, 1);
  layout->setRowStretch(1, 1);
}

void PlannerCell::NameControls() {
  label_->setObjectName(QString("Label6_%1").arg(index_));
  QFont bold = label_->font();
  bold.setBold(true);
  label_->setFont(bold);
  text_->setObjectName(QString("Text1_%1").arg(index_));
  // Until the page is known.
  NameForScreenReaders(tr("Text of cell %1").arg(index_ + 1), tr("Link from cell %1:").arg(index_ + 1));
}

void PlannerCell::SetCodePage(const CodePage& code_page) {
  text_->SetCodePage(code_page);
}

void PlannerCell::ShowLabel(const QString& page_number) {
  label_->setText(page_number);
  NameForScreenReaders(tr("Text of page %1").arg(page_number), tr("Link from page %1:").arg(page_number));
}

void PlannerCell::NameForScreenReaders(const QString& text, const QString& link) {
  text_->setAccessibleName(text);
  for (TickBox* tick : {north_, west_, south_, east_})
    tick->setAccessibleName(link + " " + tick->text().trimmed());
}

void PlannerCell::Show(const PlanCell& cell) {
  text_->SetBytes(cell.Text);
  west_->SetValue(cell.West);
  east_->SetValue(cell.East);
  south_->SetValue(cell.South);
  north_->SetValue(cell.North);
}

PlanCell PlannerCell::Shown() const {
  PlanCell cell = Ticks();
  cell.Text = text_->Bytes();
  return cell;
}

PlanCell PlannerCell::Ticks() const {
  return {{}, west_->Value(), east_->Value(), south_->Value(), north_->Value()};
}

bool PlannerCell::IsPage() const {
  const QString first_line = text_->document()->firstBlock().text();
  const bool has_text = std::any_of(first_line.begin(), first_line.end(), [](QChar c) { return c != u' '; });
  return has_text || text_->blockCount() > 1;
}

std::vector<QWidget*> PlannerCell::ControlsInOrder() const {
  return {north_, text_, west_, south_, east_};
}

void PlannerCell::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const bool is_page = IsPage();
  painter.setBrush(palette().color(QPalette::Base));
  painter.setPen(QPen(palette().color(is_page ? QPalette::Highlight : QPalette::Mid), is_page ? 1.5 : 1));
  painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), kCellCorner, kCellCorner);
}

}  // namespace tavrel
