#pragma once

#include <QLabel>
#include <QMap>
#include <QStringList>

namespace tavrel {

class BodyField;
class LineField;

/// Tells at once, and for as long as it lasts, that a field holds a closing tag at which its text would end
/// when it is shown again: records have no way to keep what follows.
class TagNotice : public QLabel {
  Q_OBJECT

 public:
  explicit TagNotice(QWidget* parent = nullptr);

  /// Whose text it is: "A page".
  void SetOwner(const QString& owner) { owner_ = owner; }

  void Watch(LineField& field, const QStringList& closing_tags);
  void Watch(BodyField& field, const QStringList& closing_tags);

 private:
  void Check(const QObject* field, const QString& text, const QStringList& closing_tags);

  QString owner_;
  QMap<const QObject*, QString> found_tags_;
};

}  // namespace tavrel
