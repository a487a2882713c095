#include <filesystem>
#include <gtest/gtest.h>

#include "platform/whole_file.h"
#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

TEST(TemporariesTest, WhatAKilledProgramLeftIsRemovedAndNothingElse) {
  const TemporaryFolder folder;
  for (const char* left : {".tavrel-1.tmp", ".tavrel-2147483646.tmp"}) folder.Write(left, "half");
  const char* const others[] = {".tavrel-.tmp",       ".tavrel-1a.tmp", ".tavrel-1.recovery",
                                ".tavrel-1.lock",     "tavrel-1.tmp",   ".tavrel-1.tmp.dat",
                                "Guide.dat",          "1.tmp",          ".tavrel--1.tmp",
                                "inner/.tavrel-1.tmp"};
  for (const char* other : others) folder.Write(other, "kept");
  std::filesystem::create_directory(folder.Path() / ".tavrel-7.tmp");
  RemoveTemporaries(folder.Path());
  EXPECT_EQ(folder.Files().size(), std::size(others));
  for (const char* other : others) EXPECT_TRUE(folder.Has(other)) << other;
  EXPECT_TRUE(std::filesystem::is_directory(folder.Path() / ".tavrel-7.tmp"));
}

TEST(TemporariesTest, AFolderThatIsGoneIsNoObstacle) {
  const TemporaryFolder folder;
  EXPECT_NO_THROW(RemoveTemporaries(folder.Path() / "gone"));
}

}  // namespace
}  // namespace tavrel::test
