#include "ui/view/finding_model.h"

#include <algorithm>
#include <array>
#include <utility>

#include "ui/view/field_names.h"

namespace tavrel {
namespace {

bool IsSame(const Finding& one, const Finding& other) {
  return one.Page == other.Page && one.Where == other.Where && one.Link == other.Link &&
         one.Position == other.Position && one.Length == other.Length && one.Sentence == other.Sentence;
}

}  // namespace

int FindingModel::RowOf(const Finding& finding) const {
  const auto found = std::find_if(findings_.begin(), findings_.end(),
                                  [&finding](const Finding& other) { return IsSame(finding, other); });
  return found == findings_.end() ? -1 : static_cast<int>(found - findings_.begin());
}

void FindingModel::Set(std::vector<Finding> findings) {
  if (std::equal(findings.begin(), findings.end(), findings_.begin(), findings_.end(), IsSame)) return;
  beginResetModel();
  findings_ = std::move(findings);
  endResetModel();
}

QVariant FindingModel::data(const QModelIndex& index, int role) const {
  // The list asks for its current row even if it has none.
  if (!hasIndex(index.row(), index.column())) return {};
  if (role != Qt::DisplayRole && role != Qt::ToolTipRole) return {};
  const Finding& finding = At(index.row());
  const std::array<QString, 3> cells = {PageName(finding), FieldName(finding),
                                        QString::fromStdString(finding.Sentence)};
  return cells.at(static_cast<std::size_t>(index.column()));
}

QVariant FindingModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  const std::array<QString, 3> headings = {tr("Page"), tr("Field"), tr("What is wrong")};
  return headings.at(static_cast<std::size_t>(section));
}

}  // namespace tavrel
