#pragma once

#include <QAbstractTableModel>

#include <vector>

#include "core/document/global.h"
#include "core/editing/find_all.h"
#include "core/text/code_page.h"

namespace tavrel {

/// Where a text was found: page, field and the words around it, which are only looked up for the rows that
/// are on the screen.
class HitModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  static constexpr int kContextColumn = 2;
  /// Where the hit begins and how long it is, in characters of the context.
  static constexpr int kStartRole = Qt::UserRole;
  static constexpr int kLengthRole = Qt::UserRole + 1;

  explicit HitModel(const CodePage& code_page, QObject* parent)
      : QAbstractTableModel(parent), code_page_(code_page) {}

  /// No hits, and the document in which they will be found.
  void Start(const Global& document, std::size_t wanted_length);
  void Add(const std::vector<Hit>& hits);

  FieldPart At(int row) const { return hits_.at(static_cast<std::size_t>(row)).Part(wanted_length_); }
  int Count() const { return static_cast<int>(hits_.size()); }
  /// The row of a hit at this place; -1 if there is none.
  int RowOf(const FieldPart& part) const;

  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : Count(); }
  int columnCount(const QModelIndex& /*parent*/ = {}) const override { return 3; }
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  QVariant Context(const FieldPart& part, int role) const;

  const CodePage& code_page_;
  Global document_;
  std::vector<Hit> hits_;
  std::size_t wanted_length_ = 0;
};

}  // namespace tavrel
