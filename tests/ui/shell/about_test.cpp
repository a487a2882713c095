#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include <gmock/gmock.h>

#include "core/shell/program_info.h"
#include "support/window_test.h"
#include "ui/shell/shell_test.h"

namespace tavrel::test {
namespace {

using testing::ElementsAre;

class AboutTest : public WindowTest {
 protected:
  void OpenAbout(const Robot::Step& step) {
    Player.Expect("About", step);
    Choose("HelpAbout");
  }

  /// Moves the focus with the Tab key until it is on the control.
  static QWidget& TabTo(QWidget& dialog, const QString& name) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return dialog.focusWidget() != nullptr; }));
    for (int tabs = 0; tabs < 10 && dialog.focusWidget()->objectName() != name; ++tabs) {
      QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(dialog.focusWidget()->objectName(), name);
    return *dialog.focusWidget();
  }

  static QString TextOf(const QWidget& dialog, const QString& label) {
    return Find<QLabel>(dialog, label).text();
  }
};

TEST_F(AboutTest, TellsTheTitleAndTheVersion) {
  OpenAbout([](QWidget& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "About Tavrel Writer");
    EXPECT_EQ(TextOf(dialog, "lblTitle"), "Tavrel Writer");
    EXPECT_EQ(TextOf(dialog, "lblVersion"), "Version 1.2.1");
    EXPECT_EQ(Find<QAbstractButton>(dialog, "Label3").text(), kHomePage);
    EXPECT_NE(TextOf(dialog, "lblDisclaimer"), "");
    EXPECT_EQ(Find<QPushButton>(dialog, "cmdOK").text(), "Close");
    EXPECT_EQ(Find<QPushButton>(dialog, "cmdSysInfo").text(), "&System Info...");
    dialog.close();
  });
}

TEST_F(AboutTest, ShowsTheProgramsIcon) {
  OpenAbout([](QWidget& dialog) {
    const auto& icon = Find<QLabel>(dialog, "picIcon");
    EXPECT_EQ(icon.pixmap(Qt::ReturnByValue).deviceIndependentSize(), QSizeF(64, 64));
    EXPECT_TRUE(icon.isVisible());
    dialog.close();
  });
}

TEST_F(AboutTest, NoTextIsCutOff) {
  OpenAbout([](QWidget& dialog) {
    for (const QLabel* label : dialog.findChildren<QLabel*>()) {
      const int height =
          label->wordWrap() ? label->heightForWidth(label->width()) : label->sizeHint().height();
      EXPECT_GE(label->height(), height) << label->objectName().toStdString();
      const int width = label->wordWrap() ? 0 : label->sizeHint().width();
      EXPECT_GE(label->width(), width) << label->objectName().toStdString();
      EXPECT_TRUE(dialog.rect().contains(label->geometry())) << label->objectName().toStdString();
    }
    dialog.close();
  });
}

TEST_F(AboutTest, CloseEscAndTheFrameCloseIt) {
  OpenAbout([](QWidget& dialog) {
    Click(dialog, "cmdOK");
    EXPECT_FALSE(dialog.isVisible());
  });
  OpenAbout([](QWidget& dialog) {
    PressKey(dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
  });
  OpenAbout([](QWidget& dialog) {
    dialog.close();
    EXPECT_FALSE(dialog.isVisible());
  });
  EXPECT_EQ(System.Opened, Texts{});
  EXPECT_TRUE(Messages.Shown.empty());
}

TEST_F(AboutTest, EnterOnCloseClosesIt) {
  OpenAbout([](QWidget& dialog) {
    PressKey(TabTo(dialog, "cmdOK"), Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
  });
}

TEST_F(AboutTest, EnterRightAfterOpeningOpensNoWebPage) {
  OpenAbout([](QWidget& dialog) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return dialog.focusWidget() != nullptr; }));
    PressKey(*dialog.focusWidget(), Qt::Key_Return);
    dialog.close();
  });
  EXPECT_EQ(System.Opened, Texts{});
}

TEST_F(AboutTest, AClickOnTheAddressOpensTheHomePage) {
  OpenAbout([](QWidget& dialog) {
    Click(dialog, "Label3");
    EXPECT_TRUE(dialog.isVisible());
    dialog.close();
  });
  Choose("HelpWebSite");
  EXPECT_THAT(System.Opened, ElementsAre(kHomePage, kHomePage));
}

TEST_F(AboutTest, TheAddressCanBeChosenWithTheKeyboard) {
  OpenAbout([](QWidget& dialog) {
    PressKey(TabTo(dialog, "Label3"), Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible());
    PressKey(TabTo(dialog, "Label3"), Qt::Key_Enter);
    PressKey(TabTo(dialog, "Label3"), Qt::Key_Space);
    dialog.close();
  });
  EXPECT_THAT(System.Opened, ElementsAre(kHomePage, kHomePage, kHomePage));
}

TEST_F(AboutTest, TheAddressIsNotOpenedByOtherButtonsOrByAPointerThatLeaves) {
  OpenAbout([](QWidget& dialog) {
    auto& address = Find<QWidget>(dialog, "Label3");
    QTest::mouseClick(&address, Qt::RightButton);
    QTest::mousePress(&address, Qt::LeftButton, {}, QPoint(3, 3));
    QTest::mouseRelease(&address, Qt::LeftButton, {}, QPoint(3, -30));
    dialog.close();
  });
  EXPECT_EQ(System.Opened, Texts{});
}

TEST_F(AboutTest, WithoutABrowserTheAddressTellsSo) {
  System.HasBrowser = false;
  QWidget* shown_over = nullptr;
  OpenAbout([&](QWidget& dialog) {
    Click(dialog, "Label3");
    EXPECT_EQ(Messages.LastParent, &dialog);
    shown_over = Messages.LastParent;
    dialog.close();
  });
  EXPECT_NE(shown_over, nullptr);
  EXPECT_THAT(Seen(Messages.Shown),
              ElementsAre("Tavrel Writer|exclamation|Nothing was found on this computer to open    \r\n" +
                          std::string(kHomePage) + "    |OK"));
}

constexpr const char* kUnavailable =
    "Tavrel Writer|no icon|System Information Is Unavailable At This Time|OK";

TEST_F(AboutTest, SystemInfoTellsThatThereIsNone) {
  OpenAbout([this](QWidget& dialog) {
    Click(dialog, "cmdSysInfo");
    EXPECT_EQ(Messages.LastParent, &dialog);
    EXPECT_TRUE(dialog.isVisible());
    ActivateWindow(dialog);
    QTest::keyClick(&dialog, Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return Messages.Shown.size() == 2; }));
    PressKey(TabTo(dialog, "cmdSysInfo"), Qt::Key_Return);
    dialog.close();
  });
  EXPECT_THAT(Seen(Messages.Shown), ElementsAre(kUnavailable, kUnavailable, kUnavailable));
  EXPECT_TRUE(System.Started.empty());
}

TEST_F(AboutTest, SystemInfoNeedsTheToolInTheFolderThatTheRegistryNames) {
  System.Registry["SOFTWARE\\Microsoft\\Shared Tools Location|MSINFO"] = {
      .Type = 1, .Bytes = (Folder.Path() / "Tools").string()};
  OpenAbout([](QWidget& dialog) {
    Click(dialog, "cmdSysInfo");
    dialog.close();
  });
  EXPECT_THAT(Seen(Messages.Shown), ElementsAre(kUnavailable));
  EXPECT_TRUE(System.Started.empty());
}

TEST_F(AboutTest, SystemInfoStartsTheToolWithoutAMessage) {
  System.Registry["SOFTWARE\\Microsoft\\Shared Tools\\MSINFO|PATH"] = {.Type = 1,
                                                                       .Bytes = "C:\\msinfo32.exe"};
  OpenAbout([](QWidget& dialog) {
    Click(dialog, "cmdSysInfo");
    EXPECT_TRUE(dialog.isVisible());
    dialog.close();
  });
  EXPECT_THAT(System.Started, ElementsAre("C:\\msinfo32.exe"));
  EXPECT_TRUE(Messages.Shown.empty());
}

TEST_F(AboutTest, SystemInfoTellsOfAToolThatDoesNotStartAndOfANumberBeyondAllBounds) {
  RegistryValue& value = System.Registry["SOFTWARE\\Microsoft\\Shared Tools\\MSINFO|PATH"];
  value = {.Type = 1, .Bytes = "C:\\msinfo32.exe"};
  System.StartsPrograms = false;
  OpenAbout([&](QWidget& dialog) {
    Click(dialog, "cmdSysInfo");
    value = {.Type = 4, .Bytes = std::string(1024, '\xFF')};
    Click(dialog, "cmdSysInfo");
    dialog.close();
  });
  EXPECT_THAT(Seen(Messages.Shown), ElementsAre(kUnavailable, kUnavailable));
  EXPECT_TRUE(Program.Failures.empty());
}

TEST_F(AboutTest, IsReachedByKeyboardAndScreenReaders) {
  OpenAbout([](QWidget& dialog) {
    EXPECT_EQ(NamelessControls(dialog), Texts{});
    TabTo(dialog, "Label3");
    EXPECT_EQ(TabOrder(dialog), (Texts{"Label3", "cmdSysInfo", "cmdOK"}));
    dialog.close();
  });
}

}  // namespace
}  // namespace tavrel::test
