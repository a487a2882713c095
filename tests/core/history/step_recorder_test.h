#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

#include "core/history/recorded_editor.h"

namespace tavrel::test {

/// A document of three pages, of which page 1 is shown.
class StepRecorderTest : public testing::Test {
 protected:
  StepRecorderTest() {
    Editor.State.Page(1) = "one";
    Editor.State.Page(2) = "two";
    Editor.State.Page(3) = "three";
    Editor.Open();
  }

  std::string Page(int page) const { return Editor.State.Page(page); }

  void ExpectPages(const std::string& one, const std::string& two, const std::string& three) const {
    EXPECT_EQ(Page(1), one);
    EXPECT_EQ(Page(2), two);
    EXPECT_EQ(Page(3), three);
  }

  /// Undo and Redo, which take the step of this name.
  void ExpectUndo(const std::string& name) { EXPECT_EQ(Editor.Undo(), name); }
  void ExpectRedo(const std::string& name) { EXPECT_EQ(Editor.Redo(), name); }

  void ExpectNoUndo() { EXPECT_EQ(Editor.Undo(), std::nullopt); }
  void ExpectNoRedo() { EXPECT_EQ(Editor.Redo(), std::nullopt); }

  RecordedEditor Editor;
};

}  // namespace tavrel::test
