#include <QAction>

#include <gtest/gtest.h>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "support/recording.h"
#include "ui/controls/program_control.h"

namespace tavrel::test {
namespace {

/// Keeps what it is told, among what the handlers note themselves.
class NotingWatch final : public CommandWatch {
 public:
  explicit NotingWatch(std::vector<std::string>& notes) : notes_(notes) {}
  void Begins() override { notes_.emplace_back("begins"); }
  void Ends() override { notes_.emplace_back("ends"); }

 private:
  std::vector<std::string>& notes_;
};

class CommandWatchTest : public testing::Test {
 protected:
  using Notes = std::vector<std::string>;

  CommandWatchTest() { program_.SetWatch(&watch_); }

  void Run(const std::string& name) {
    program_.Run([&] { notes_.push_back(name); });
  }

  Notes notes_;
  NotingWatch watch_{notes_};
  RecordedProgram program_;
};

TEST_F(CommandWatchTest, IsToldBeforeAndAfterEachHandler) {
  Run("one");
  Run("two");
  EXPECT_EQ(notes_, (Notes{"begins", "one", "ends", "begins", "two", "ends"}));
}

TEST_F(CommandWatchTest, IsNotToldOfHandlersWithinAHandler) {
  program_.Run([this] {
    Run("one");
    program_.Run([this] { Run("two"); });
    notes_.emplace_back("outer");
  });
  EXPECT_EQ(notes_, (Notes{"begins", "one", "two", "outer", "ends"}));
}

TEST_F(CommandWatchTest, IsToldOfSignalsThatAreHandled) {
  QAction item;
  On(program_, &item, &QAction::triggered, &item, [this] { notes_.emplace_back("x"); });
  item.trigger();
  EXPECT_EQ(notes_, (Notes{"begins", "x", "ends"}));
}

TEST_F(CommandWatchTest, IsNotToldTheEndOfAHandlerThatFails) {
  program_.Run([] { throw std::runtime_error("fault"); });
  EXPECT_EQ(program_.Failures, Notes{"fault"});
  EXPECT_EQ(notes_, Notes{"begins"});
}

TEST_F(CommandWatchTest, IsToldOfTheNextHandlerAfterOneThatFailed) {
  program_.Run([] { throw std::runtime_error("fault"); });
  notes_.clear();
  Run("one");
  EXPECT_EQ(notes_, (Notes{"begins", "one", "ends"}));
}

TEST_F(CommandWatchTest, AFailureWithinAHandlerDoesNotEndTheOuterOne) {
  program_.Run([this] {
    program_.Run([] { throw std::runtime_error("fault"); });
    notes_.emplace_back("outer");
  });
  EXPECT_EQ(program_.Failures, Notes{"fault"});
  EXPECT_EQ(notes_, (Notes{"begins", "outer", "ends"}));
}

TEST_F(CommandWatchTest, IsToldNothingOnceItIsTakenAway) {
  program_.SetWatch(nullptr);
  Run("one");
  EXPECT_EQ(notes_, Notes{"one"});
}

TEST_F(CommandWatchTest, MayBeTakenAwayByTheHandlerItself) {
  program_.Run([this] { program_.SetWatch(nullptr); });
  EXPECT_EQ(notes_, Notes{"begins"});
  Run("one");
  EXPECT_EQ(notes_, (Notes{"begins", "one"}));
}

/// A watch that fails is a fault of the command.
TEST_F(CommandWatchTest, AWatchThatFailsIsTold) {
  struct FailingWatch final : CommandWatch {
    void Begins() override {}
    void Ends() override { throw std::runtime_error("watch"); }
  } failing;
  program_.SetWatch(&failing);
  Run("one");
  Run("two");
  EXPECT_EQ(notes_, (Notes{"one", "two"}));
  EXPECT_EQ(program_.Failures, (Notes{"watch", "watch"}));
}

}  // namespace
}  // namespace tavrel::test
