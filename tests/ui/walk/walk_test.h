#pragma once

#include <QFont>

#include <functional>
#include <string>
#include <vector>

#include "support/window_test.h"
#include "ui/walk/windows.h"

namespace tavrel::test {

using Faults = std::vector<std::string>;

/// Goes to the program's windows as people see them: with a project, its backup, a published folder, a plan
/// and an iPod at hand.
class WalkTest : public WindowTest {
 protected:
  using Look = std::function<void(QWidget& window)>;

  WalkTest();
  ~WalkTest() override;

  /// Opens the window, lets `look` look at it and closes it.
  void Visit(const Place& place, const Look& look);
  /// The message boxes that people see.
  void VisitMessage(const Message& message, const Look& look);

  /// To be chosen before the visit.
  static void EnlargeFont(double factor);
  static void SetDirection(Qt::LayoutDirection direction);

 private:
  void MakeFiles();
  void Enter(QWidget& window, const Place& place, const Look& look);
  void VisitPlanner(const Place& place, const Look& look);

  QFont usual_font_;
  TemporaryFolder disks_;
};

/// One of the tests of each window.
class EachWindowTest : public WalkTest, public testing::WithParamInterface<Place> {};

inline std::string NameOfPlace(const testing::TestParamInfo<Place>& info) {
  return info.param.Name;
}

}  // namespace tavrel::test
