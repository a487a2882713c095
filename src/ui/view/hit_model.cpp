#include "ui/view/hit_model.h"

#include <algorithm>
#include <array>
#include <tuple>

#include "ui/controls/text_conversion.h"
#include "ui/view/field_names.h"

namespace tavrel {
namespace {

constexpr std::size_t kRoomAround = 40;

auto PlaceOf(const FieldPart& part) {
  return std::tuple(part.Page, part.Where, part.Link, part.Position);
}

}  // namespace

void HitModel::Start(const Global& document, std::size_t wanted_length) {
  beginResetModel();
  document_ = document;
  hits_.clear();
  wanted_length_ = wanted_length;
  endResetModel();
}

void HitModel::Add(const std::vector<Hit>& hits) {
  if (hits.empty()) return;
  beginInsertRows({}, Count(), Count() + static_cast<int>(hits.size()) - 1);
  hits_.insert(hits_.end(), hits.begin(), hits.end());
  endInsertRows();
}

int HitModel::RowOf(const FieldPart& part) const {
  const auto found = std::find_if(hits_.begin(), hits_.end(), [&](const Hit& hit) {
    return PlaceOf(hit.Part(wanted_length_)) == PlaceOf(part);
  });
  return found == hits_.end() ? -1 : static_cast<int>(found - hits_.begin());
}

QVariant HitModel::data(const QModelIndex& index, int role) const {
  // The list asks for its current row even if it has none.
  if (!hasIndex(index.row(), index.column())) return {};
  const FieldPart part = At(index.row());
  if (index.column() == kContextColumn) return Context(part, role);
  if (role != Qt::DisplayRole) return {};
  return index.column() == 0 ? PageName(part) : FieldName(part);
}

QVariant HitModel::Context(const FieldPart& part, int role) const {
  if (role != Qt::DisplayRole && role != Qt::ToolTipRole && role != kStartRole && role != kLengthRole)
    return {};
  const HitContext context = ContextOf(FieldContent(document_, part), part, kRoomAround);
  if (role == kStartRole) return static_cast<int>(context.Before.size());
  if (role == kLengthRole) return static_cast<int>(context.Found.size());
  return ToText(context.Before + context.Found + context.After, code_page_);
}

QVariant HitModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  const std::array<QString, 3> headings = {tr("Page"), tr("Field"), tr("Found")};
  return headings.at(static_cast<std::size_t>(section));
}

}  // namespace tavrel
