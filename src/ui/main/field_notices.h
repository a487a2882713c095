#pragma once

#include <QMap>
#include <QObject>
#include <QStringList>

class QLabel;

namespace Ui {
class Main;
}

namespace tavrel {

/// Tells in the status bar, at once, what a page cannot keep of the text in its fields: characters outside
/// the code page, which have become "?", and closing tags, at which the page would end when it is shown
/// again.
class FieldNotices : public QObject {
  Q_OBJECT

 public:
  explicit FieldNotices(Ui::Main& ui);

 private:
  void TellReplaced(int count);
  void CheckTags(const QObject* field, const QString& text, const QStringList& closing_tags);

  Ui::Main& ui_;
  QLabel* tag_notice_;
  QMap<const QObject*, QString> found_tags_;
};

}  // namespace tavrel
