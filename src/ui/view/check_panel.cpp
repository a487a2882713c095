#include "ui/view/check_panel.h"

#include <QHeaderView>

#include <optional>
#include <utility>

#include "ui/view/finding_model.h"
#include "ui_check_panel.h"

namespace tavrel {

CheckPanel::CheckPanel(QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::CheckPanel>()), model_(new FindingModel(this)) {
  ui_->setupUi(this);
  ui_->Findings->setModel(model_);
  ui_->Findings->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
  ui_->Findings->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
  connect(ui_->Findings, &RowList::Chosen, this, [this](int row) { emit Chosen(model_->At(row)); });
}

CheckPanel::~CheckPanel() = default;

void CheckPanel::Show(std::vector<Finding> findings, const QString& summary) {
  const int row = ui_->Findings->Row();
  const std::optional<Finding> current = row >= 0 ? std::optional(model_->At(row)) : std::nullopt;
  const int top = ui_->Findings->Top();
  model_->Set(std::move(findings));
  ui_->Findings->Restore(top, current ? model_->RowOf(*current) : -1);
  ui_->Summary->setText(summary);
}

}  // namespace tavrel
