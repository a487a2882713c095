#pragma once

#include <QComboBox>
#include <QStringList>

#include <string>
#include <string_view>

#include "core/text/code_page.h"

class QStringListModel;

namespace tavrel {

class LineField;

/// An editable list of link targets. Refilling the list never changes what was typed, and typing never
/// completes or adds an entry.
class TargetList : public QComboBox {
  Q_OBJECT

 public:
  explicit TargetList(QWidget* parent = nullptr);

  void SetCodePage(const CodePage& code_page);

  /// Replaces the entries; the text in the field stays.
  void SetItems(const QStringList& items);
  QStringList Items() const;

  std::string Bytes() const;
  void SetBytes(std::string_view bytes);

  LineField& Field() const { return *field_; }

 protected:
  /// A wheel that turns over a closed list scrolls what lies around it and chooses nothing.
  void wheelEvent(QWheelEvent* event) override;

 private:
  LineField* field_;
  QStringListModel* items_;
};

}  // namespace tavrel
