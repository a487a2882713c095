#include "core/planner/plan_file.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <string>

#include "core/planner/plan_files.h"
#include "core/text/run_time_error.h"
#include "support/fake_platform.h"
#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

using namespace std::string_literals;
using testing::HasSubstr;
using testing::ThrowsMessage;
using Operation = FailingFiles::Operation;
using FileMap = std::map<std::string, std::string>;

Plan PlanWithText(const std::string& text) {
  Plan plan = EmptyPlan();
  plan.Cells[0].Text = text;
  return plan;
}

TEST(PlanText, Is130Lines) {
  const std::string text = PlanText(HiThere());
  EXPECT_EQ(text, kHiThere);
  EXPECT_EQ(text.size(), 591U);
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 130);
}

TEST(PlanText, WritesTheTicksInTheOrderWestEastSouthNorth) {
  const auto text_with = [](Tick west, Tick east, Tick south, Tick north) {
    Plan plan = EmptyPlan();
    plan.Cells[24] = {"x", west, east, south, north};
    return PlanText(plan);
  };
  const std::string before = kPlanHeader + EmptyCells(24) + "x\r\n";
  EXPECT_EQ(text_with(1, 0, 0, 0), before + " 1 \r\n 0 \r\n 0 \r\n 0 \r\n");
  EXPECT_EQ(text_with(0, 1, 0, 0), before + " 0 \r\n 1 \r\n 0 \r\n 0 \r\n");
  EXPECT_EQ(text_with(0, 0, 1, 0), before + " 0 \r\n 0 \r\n 1 \r\n 0 \r\n");
  EXPECT_EQ(text_with(0, 0, 0, 1), before + " 0 \r\n 0 \r\n 0 \r\n 1 \r\n");
}

TEST(PlanText, WritesTextsAsTheyAre) {
  Plan plan = PlanWithText(" \"a\", b\0\xE9\x80 "s);
  plan.TopLeft = " 2.6x ";
  plan.North = "\"up\"";
  plan.South = "";
  plan.East = "  a,b  ";
  plan.West = "\xE9";
  EXPECT_EQ(PlanText(plan), " 2.6x \r\n\"up\"\r\n\r\n  a,b  \r\n\xE9\r\n"s + " \"a\", b\0\xE9\x80 \r\n"s +
                                " 0 \r\n 0 \r\n 0 \r\n 0 \r\n" + EmptyCells(24));
}

TEST(PlanText, WritesEachLineBreakOfACellAsAMark) {
  const std::string ticks = " 0 \r\n 0 \r\n 0 \r\n 0 \r\n";
  EXPECT_EQ(PlanText(PlanWithText("\r\na\r\n\r\n")), FileWith("<p>a<p><p>\r\n" + ticks));
  EXPECT_EQ(PlanText(PlanWithText("a\rb\r")), FileWith("a\rb\r\r\n" + ticks));
  EXPECT_EQ(PlanText(PlanWithText("a<p>b")), FileWith("a<p>b\r\n" + ticks));
  EXPECT_EQ(PlanText(PlanWithText("a\nb")), FileWith("a<p>b\r\n" + ticks));
}

class PlanFileTest : public testing::Test {
 protected:
  PlanFileTest() {
    State.ProgramFolder = Folder.Path();
    State.PlanPath = "m.pln";
  }

  TemporaryFolder Folder;
  FakePlatform System;
  Global State;
};

TEST_F(PlanFileTest, HoldsTheSavedPlan) {
  SavePlan(HiThere(), State, System);
  EXPECT_EQ(Folder.Files(), (FileMap{{"m.pln", kHiThere}}));
  ExpectHiThere(LoadPlan(State));
}

TEST_F(PlanFileTest, ReplacesALongerOne) {
  Folder.Write("m.pln", kHiThere + kHiThere);
  Folder.Write("other.pln", "other");
  SavePlan(EmptyPlan(), State, System);
  EXPECT_EQ(Folder.Files(), (FileMap{{"m.pln", kPlanHeader + EmptyCells(25)}, {"other.pln", "other"}}));
}

TEST_F(PlanFileTest, StaysTheOldOneIfTheNewOneCannotBeWritten) {
  Folder.Write("m.pln", "old");
  for (const Operation step :
       {Operation::CreateNew, Operation::Write, Operation::Flush, Operation::Close, Operation::Replace}) {
    System.Files.FailAt(step, 1, std::errc::no_space_on_device);
    EXPECT_THAT([&] { SavePlan(HiThere(), State, System); },
                ThrowsMessage<FileError>(HasSubstr(PathText(Folder.Path() / "m.pln"))));
    EXPECT_EQ(Folder.Files(), (FileMap{{"m.pln", "old"}}));
  }
}

TEST_F(PlanFileTest, IsNeverAFolder) {
  Folder.Write("m.pln/inside", "x");
  EXPECT_THROW(SavePlan(HiThere(), State, System), FileError);
  EXPECT_THROW(LoadPlan(State), FileError);
  EXPECT_NO_THROW(DeletePlanFile(State));
  EXPECT_EQ(Folder.Files(), (FileMap{{"m.pln/inside", "x"}}));
}

TEST_F(PlanFileTest, IsNamedIfItCannotBeRead) {
  EXPECT_THAT([&] { LoadPlan(State); },
              ThrowsMessage<FileError>(HasSubstr(PathText(Folder.Path() / "m.pln"))));
  for (const std::string& file : {""s, kPlanHeader, FileWith("x\r\nyes\r\n")}) {
    Folder.Write("m.pln", file);
    EXPECT_THAT([&] { LoadPlan(State); },
                ThrowsMessage<RunTimeError>(HasSubstr(PathText(Folder.Path() / "m.pln"))));
    EXPECT_EQ(Folder.Files(), (FileMap{{"m.pln", file}}));
  }
}

TEST_F(PlanFileTest, IsTheOneThatGoesAndStaysTheCurrentOne) {
  Folder.Write("m.pln", "x");
  Folder.Write("other.pln", "other");
  DeletePlanFile(State);
  EXPECT_EQ(Folder.Files(), (FileMap{{"other.pln", "other"}}));
  EXPECT_EQ(State.PlanPath, "m.pln");
}

TEST_F(PlanFileTest, NeedNotBeThereToBeDeleted) {
  Folder.Write("other.pln", "other");
  EXPECT_NO_THROW(DeletePlanFile(State));
  State.PlanPath.clear();
  EXPECT_NO_THROW(DeletePlanFile(State));
  EXPECT_EQ(Folder.Files(), (FileMap{{"other.pln", "other"}}));
}

TEST_F(PlanFileTest, HasANameOfAnyCharacters) {
  State.PlanPath = std::filesystem::path(U"\u4E2D\u00E9.pln");
  SavePlan(HiThere(), State, System);
  EXPECT_EQ(Folder.Read(State.PlanPath), kHiThere);
  ExpectHiThere(LoadPlan(State));
  EXPECT_EQ(PlanName(State), std::filesystem::path(U"\u4E2D\u00E9"));
}

TEST_F(PlanFileTest, IsCalledByItsNameLessTheExtension) {
  EXPECT_EQ(PlanName(State), "m");
  State.PlanPath = "my plan.PLN";
  EXPECT_EQ(PlanName(State), "my plan");
  State.PlanPath.clear();
  EXPECT_EQ(PlanName(State), "");
}

}  // namespace
}  // namespace tavrel::test
