#pragma once

#include <QObject>

#include <string>

#include "monkey/record.h"
#include "monkey/screen.h"

namespace tavrel {
class RowList;
}  // namespace tavrel

namespace tavrel::test {

/// Records where the panels of the View menu lead, by what people saw in a row when they chose it.
class PanelWatch : public QObject {
  Q_OBJECT

 public:
  /// Belongs to the window of the screen, which has to outlive it.
  PanelWatch(const Screen& screen, tavrel::test::Record& record);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Watch(RowList& list);
  void LookAt(const RowList& list, int row);
  std::string RecordOf(int page) const;
  void Record(Event event);

  const Screen& screen_;
  tavrel::test::Record& record_;
  Event row_{.What = Event::Kind::Led};  ///< the one that is being chosen
};

}  // namespace tavrel::test
