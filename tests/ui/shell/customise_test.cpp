#include <QCheckBox>
#include <QLabel>

#include "ui/shell/shell_test.h"

namespace tavrel::test {
namespace {

using CustomiseTest = ShellTest;

TEST_F(CustomiseTest, EnableShowsTheFlagAtEachOpening) {
  for (const bool enable : {true, false, true}) {
    CustomiseWith(enable);
    Customise([enable](QWidget& dialog) {
      EXPECT_EQ(Find<QCheckBox>(dialog, "Check1").isChecked(), enable);
      Click(dialog, "Command1");
    });
  }
}

TEST_F(CustomiseTest, EscAndTheFrameChangeNothingAndWriteNothing) {
  WriteSettings("1");
  WritePicture("Skin1.jpg", Qt::red);
  Customise([](QWidget& dialog) {
    Click(dialog, "Check1");
    dialog.close();
  });
  Customise([](QWidget& dialog) {
    EXPECT_TRUE(Find<QCheckBox>(dialog, "Check1").isChecked());
    Click(dialog, "Check1");
    PressKey(Find<QWidget>(dialog, "Check1"), Qt::Key_Escape);
  });
  EXPECT_TRUE(State.UseSkin);
  EXPECT_FALSE(SettingsWereWritten());
  EXPECT_EQ(Shown(Cover()), "red");
}

TEST_F(CustomiseTest, EnterActsOnlyOnTheOkButton) {
  WriteSettings("1");
  Customise([](QWidget& dialog) {
    auto& enable = Find<QCheckBox>(dialog, "Check1");
    Click(enable);
    PressKey(enable, Qt::Key_Return);
    ASSERT_TRUE(dialog.isVisible());
    auto& ok = Find<QWidget>(dialog, "Command1");
    ok.setFocus();
    PressKey(ok, Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
  });
  EXPECT_FALSE(State.UseSkin);
  EXPECT_TRUE(SettingsWereWritten());
}

TEST_F(CustomiseTest, ShowsItsCaptions) {
  Customise([](QWidget& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Customise");
    EXPECT_EQ(Find<QCheckBox>(dialog, "Check1").text(), "Enable");
    EXPECT_EQ(Find<QLabel>(dialog, "Label1").text(),
              "The program can be customised by adding your own background image to the main window. There "
              "are two - "
              "Skin1.jpg is used when no project is open and Skin2.jpg is used when editing a project.");
    dialog.close();
  });
}

TEST_F(CustomiseTest, TheOkButtonShowsAPicture) {
  Customise([](QWidget& dialog) {
    EXPECT_FALSE(Find<QAbstractButton>(dialog, "Command1").icon().isNull());
    dialog.close();
  });
}

TEST_F(CustomiseTest, IsReachedByKeyboardAndScreenReaders) {
  Customise([](QWidget& dialog) {
    EXPECT_EQ(NamelessControls(dialog), Texts{});
    EXPECT_EQ(TabOrder(dialog), (Texts{"Check1", "Command1"}));
    dialog.close();
  });
}

TEST_F(CustomiseTest, NoTextIsCutOff) {
  Customise([](QWidget& dialog) {
    const auto& text = Find<QLabel>(dialog, "Label1");
    EXPECT_GE(text.height(), text.heightForWidth(text.width()));
    const auto& enable = Find<QCheckBox>(dialog, "Check1");
    EXPECT_GE(enable.width(), enable.sizeHint().width());
    for (const QWidget* control : {static_cast<const QWidget*>(&text), static_cast<const QWidget*>(&enable)})
      EXPECT_TRUE(dialog.rect().contains(control->geometry()));
    dialog.close();
  });
}

}  // namespace
}  // namespace tavrel::test
