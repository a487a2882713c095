#pragma once

#include <QLabel>
#include <QMap>
#include <QStringList>

namespace tavrel {

class BodyField;
class LineField;

/// Tells at once, and for as long as it lasts, that a field holds a tag which a record has no way to keep: a
/// closing tag, at which its text would end when it is shown again, or one that would be taken for another
/// field's.
class TagNotice : public QLabel {
  Q_OBJECT

 public:
  explicit TagNotice(QWidget* parent = nullptr);

  /// Whose text it is: "A page".
  void SetOwner(const QString& owner) { owner_ = owner; }

  void Watch(LineField& field, const QStringList& tags);
  void Watch(BodyField& field, const QStringList& tags);

 private:
  QString NoticeOf(const QString& tag) const;
  void Check(const QObject* field, const QString& text, const QStringList& tags);

  QString owner_;
  QMap<const QObject*, QString> found_tags_;
};

}  // namespace tavrel
