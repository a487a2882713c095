#pragma once

#include <QAbstractTableModel>

#include <vector>

#include "core/check/finding.h"

namespace tavrel {

/// What is wrong with a project: page, field and sentence of each finding.
class FindingModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  using QAbstractTableModel::QAbstractTableModel;

  const Finding& At(int row) const { return findings_.at(static_cast<std::size_t>(row)); }
  int Count() const { return static_cast<int>(findings_.size()); }
  /// The row of a finding like this one; -1 if there is none.
  int RowOf(const Finding& finding) const;
  void Set(std::vector<Finding> findings);

  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : Count(); }
  int columnCount(const QModelIndex& /*parent*/ = {}) const override { return 3; }
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  std::vector<Finding> findings_;
};

}  // namespace tavrel
