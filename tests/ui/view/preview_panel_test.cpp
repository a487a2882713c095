#include <QAction>
#include <QCheckBox>
#include <QMenu>
#include <QMenuBar>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ui/view/preview_test.h"

namespace tavrel::test {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

constexpr const char* kCutNotice = "The note is cut: an iPod shows its first 4,096 bytes.";

class PreviewPanelTest : public PreviewTest {
 protected:
  void OpenGuide() {
    OpenDocument("Guide.dat", kGuide);
    OpenPreview();
  }
  void OpenSongs() {
    OpenDocument("Songs.dat", kSongs);
    OpenPreview();
  }

  /// Page 1, "T", with so many bytes of text. The note has 103 bytes more: "<title>-T</title>" 17, the meta
  /// lines 38 and 40, and four line ends.
  void OpenLongNote(std::size_t bytes) {
    std::string text;
    while (text.size() < bytes) text += "word ";
    OpenDocument("Long.dat", "\r\n 1 ,<title>T</title><text>" + text.substr(0, bytes) + "</text>\r\n");
    OpenPreview();
  }
  static constexpr std::size_t kRoom = 4096 - 103;

  /// What the Edit menu says when it is opened.
  bool CanUndo() {
    auto& menu = Find<QMenu>(Window(), "EditMenu");
    const QMenuBar* bar = Window().menuBar();
    QTest::mouseClick(Window().menuBar(), Qt::LeftButton, {},
                      bar->actionGeometry(menu.menuAction()).center());
    const bool can_undo = Find<QAction>(Window(), "EditUndo").isEnabled();
    menu.close();
    ActivateWindow(Window());
    return can_undo;
  }

  /// Types `text` and expects another picture that shows `screen`.
  void ExpectTypingShows(QWidget& field, const QString& text, const std::string& screen) {
    const QImage before = ScreenPicture();
    TypeInto(field, text);
    EXPECT_TRUE(Comes(screen)) << Screen();
    EXPECT_NE(ScreenPicture(), before) << screen;
  }

  /// Whether the screen shows where a note was cut: letters do not come so near to the left edge.
  bool ShowsACut() {
    const QImage screen = ScreenPicture();
    for (int y = 30; y < screen.height(); ++y) {
      if (screen.pixelColor(0, y) != QColor(Qt::white)) return true;
    }
    return false;
  }
};

TEST_F(PreviewPanelTest, ItShowsThePageInTheEditor) {
  OpenGuide();
  EXPECT_EQ(Screen(), "-One|Alpha\n[Two]\nFive\n");
  const QImage first = ScreenPicture();
  ClickRow(PagesGrid(), 2);
  EXPECT_TRUE(Comes("Two|Beta\n[One]\n")) << Screen();
  EXPECT_NE(ScreenPicture(), first);
  ClickRow(PagesGrid(), 1);
  EXPECT_TRUE(Comes("-One|Alpha\n[Two]\nFive\n")) << Screen();
  EXPECT_EQ(ScreenPicture(), first);
}

TEST_F(PreviewPanelTest, ItFollowsTypingInEveryFieldThatANoteHas) {
  OpenSongs();
  ASSERT_EQ(Screen(), "-Start|[Play]\nSee Part two\nPart two\n");
  ExpectTypingShows(Title(), "Hello", "-Hello|[Play]\nSee Part two\nPart two\n");
  ExpectTypingShows(Body(), "Go <there>\nnow", "-Hello|[Play]\nGo there\nnow\nPart two\n");
  ExpectTypingShows(LinkText(), "Next one\n", "-Hello|[Play]\nGo there\nnow\nNext one\n");
  ExpectTypingShows(MusicText(), "Listen", "-Hello|[Listen]\nGo there\nnow\nNext one\n");
  ExpectTypingShows(MusicText(), "", "-Hello|Go [there]\nnow\nNext one\n");
}

TEST_F(PreviewPanelTest, ItFollowsTypedTargets) {
  OpenSongs();
  TypeInto(MusicLink(), "M3");
  LetPanelsLook();
  PressKey(Device(), Qt::Key_Return);
  EXPECT_EQ(Notice(), "An iPod would play: playlist Road");
  TypeInto(LinkTarget(), "001\n");
  LetPanelsLook();
  PressKey(Device(), Qt::Key_Down);
  PressKey(Device(), Qt::Key_Return);
  EXPECT_EQ(Screen(), "-Start|[Play]\nSee Part two\nPart two\n");
  PressKey(Device(), Qt::Key_Escape);
  EXPECT_EQ(Screen(), "-Start|Play\nSee [Part two]\nPart two\n") << "the link had led to another showing";
}

TEST_F(PreviewPanelTest, ALinkAppearsWhenItIsStored) {
  OpenSongs();
  TypeInto(LinkText(), "Next one");
  LetPanelsLook();
  EXPECT_EQ(Screen(), "-Start|[Play]\nSee Part two\nPart two\n") << "publishing would write this";
  PressKey(LinkText(), Qt::Key_Tab);
  EXPECT_TRUE(Comes("-Start|[Play]\nSee Part two\nNext one\n")) << Screen();
}

TEST_F(PreviewPanelTest, ItShowsWhatPublishingWritesWhileALinkIsBeingWritten) {
  OpenSongs();
  ClickRow(LinksGrid(), 2);
  TypeInto(LinkText(), "new words");
  TypeInto(LinkTarget(), "001");
  LetPanelsLook();
  EXPECT_EQ(Screen(), "-Start|[Play]\nSee Part two\nPart two\n");
  Player.Expect("Publish", [](QWidget& dialog) { test::Click(dialog, "Command2"); });
  Choose("ToolsPublish");
  const std::string note = Folder.Read("Songs/z001.txt");
  EXPECT_NE(note.find("Part two</a>"), std::string::npos) << note;
  EXPECT_EQ(note.find("new words"), std::string::npos) << note;
}

TEST_F(PreviewPanelTest, ThePagesNoteIsNotShownOnADevice) {
  OpenGuide();
  const QImage before = ScreenPicture();
  TypeInto(Note(), "remember the milk");
  LetPanelsLook();
  EXPECT_EQ(Screen(), "-One|Alpha\n[Two]\nFive\n");
  EXPECT_EQ(ScreenPicture(), before);
}

TEST_F(PreviewPanelTest, TypingShowsWithTheNextLookWhichComesWithinHalfASecond) {
  OpenGuide();
  EXPECT_LE(Find<QTimer>(Window(), "LookTimer").interval(), 500);
  for (const char* title : {"One more", "And another"}) {
    TypeInto(Title(), title);
    LetPanelsLook();
    EXPECT_EQ(Screen(), "-" + std::string(title) + "|Alpha\n[Two]\nFive\n");
  }
}

TEST_F(PreviewPanelTest, WhatIsTypedWhileItIsClosedShowsWhenItOpens) {
  OpenDocument("Guide.dat", kGuide);
  TypeInto(Title(), "New");
  OpenPreview();
  EXPECT_EQ(Screen(), "-New|Alpha\n[Two]\nFive\n");
}

TEST_F(PreviewPanelTest, TheEditorStaysWhereItIsUnlessItIsToGoAlong) {
  OpenGuide();
  TypeInto(Body(), "Typed");
  ASSERT_TRUE(Comes("-One|Typed\n[Two]\nFive\n"));
  PressKey(Device(), Qt::Key_Return);
  EXPECT_EQ(Screen(), "Two|Beta\n[One]\n");
  LetPanelsLook();
  EXPECT_EQ(Screen(), "Two|Beta\n[One]\n");
  EXPECT_EQ(State.CurrentPage, 1);
  EXPECT_EQ(Body().Bytes(), "Typed");
  EXPECT_THAT(State.Page(1).Bytes(), HasSubstr("<text>Alpha</text>"));
}

TEST_F(PreviewPanelTest, TheEditorGoesAlongAndStoresWhatWasTypedAsOneStep) {
  OpenGuide();
  Tick("GoAlong");
  const std::string before = State.Page(1);
  TypeInto(Body(), "Typed");
  ASSERT_TRUE(Comes("-One|Typed\n[Two]\nFive\n"));
  PressKey(Device(), Qt::Key_Down);
  PressKey(Device(), Qt::Key_Return);
  EXPECT_EQ(Screen(), "Five|Gamma\n[Last]\n");
  EXPECT_EQ(State.CurrentPage, 5);
  EXPECT_EQ(PagesGrid().Row(), 5);
  EXPECT_EQ(Title().Bytes(), "Five");
  EXPECT_EQ(Body().Bytes(), "Gamma");
  EXPECT_THAT(State.Page(1).Bytes(), HasSubstr("<text>Typed</text>"));
  LetPanelsLook();
  EXPECT_EQ(Screen(), "Five|Gamma\n[Last]\n");

  ASSERT_TRUE(CanUndo());
  Choose("EditUndo");
  EXPECT_EQ(State.Page(1), before);
  EXPECT_FALSE(CanUndo());
}

TEST_F(PreviewPanelTest, GoingAlongWithoutTypingIsNoStep) {
  OpenGuide();
  Tick("GoAlong");
  PressKey(Device(), Qt::Key_Return);
  ASSERT_EQ(State.CurrentPage, 2);
  EXPECT_FALSE(CanUndo());
}

TEST_F(PreviewPanelTest, OneCanStepBackAtOnceAfterGoingAlong) {
  OpenGuide();
  Tick("GoAlong");
  for (const bool is_patient : {false, true}) {
    PressKey(Device(), Qt::Key_Return);
    if (is_patient) LetPanelsLook();
    EXPECT_EQ(State.CurrentPage, 2);
    PressKey(Device(), Qt::Key_Escape);
    LetPanelsLook();
    EXPECT_EQ(Screen(), "-One|Alpha\n[Two]\nFive\n") << is_patient;
    EXPECT_EQ(State.CurrentPage, 2) << "only links lead the editor";
    ClickRow(PagesGrid(), 1);
    LetPanelsLook();
  }
}

TEST_F(PreviewPanelTest, GoingAlongLeavesTheKeyboardToTheDevice) {
  OpenGuide();
  Tick("GoAlong");
  Device().setFocus();
  PressKey(*Window().focusWidget(), Qt::Key_Return);
  ASSERT_EQ(State.CurrentPage, 2);
  EXPECT_EQ(Window().focusWidget(), &Device());
  PressKey(*Window().focusWidget(), Qt::Key_Return);
  EXPECT_EQ(State.CurrentPage, 1) << "the second link is followed with the same key";
  EXPECT_EQ(State.Page(2),
            "<title>Two</title><text>Beta</text><link><linktext>One</linktext><linkto>001"
            "</linkto></link>");
}

TEST_F(PreviewPanelTest, APageOfTheNotesMenuIsBroughtIntoTheEditorToo) {
  OpenGuide();
  Tick("GoAlong");
  PressKey(Device(), Qt::Key_Escape);
  ASSERT_EQ(Screen(), "Notes|[-One]|Five|Last|Two");
  PressKey(Device(), Qt::Key_Down);
  PressKey(Device(), Qt::Key_Down);
  PressKey(Device(), Qt::Key_Return);
  EXPECT_EQ(Screen(), "Last|Omega\n");
  EXPECT_EQ(State.CurrentPage, 999);
  EXPECT_EQ(Body().Bytes(), "Omega");
}

TEST_F(PreviewPanelTest, TypingBringsTheEditedPageBack) {
  OpenGuide();
  PressKey(Device(), Qt::Key_Return);
  ASSERT_EQ(Screen(), "Two|Beta\n[One]\n");
  TypeInto(Title(), "Uno");
  EXPECT_TRUE(Comes("-Uno|Alpha\n[Two]\nFive\n")) << Screen();
  PressKey(Device(), Qt::Key_Escape);
  PressKey(Device(), Qt::Key_Escape);
  EXPECT_EQ(Screen(), "Notes|[-Uno]|Five|Last|Two") << "with a fresh history";
  TypeInto(Body(), "Beta?");
  EXPECT_TRUE(Comes("-Uno|Beta?\n[Two]\nFive\n")) << Screen();
}

TEST_F(PreviewPanelTest, SavingLeavesThePreviewWhereOneHasWalked) {
  OpenGuide();
  TypeInto(Title(), "Uno");
  ASSERT_TRUE(Comes("-Uno|Alpha\n[Two]\nFive\n"));
  PressKey(Device(), Qt::Key_Return);
  ASSERT_EQ(Screen(), "Two|Beta\n[One]\n");
  Save();
  LetPanelsLook();
  EXPECT_EQ(Screen(), "Two|Beta\n[One]\n");
}

TEST_F(PreviewPanelTest, TypingKeepsThePlaceInALongNote) {
  OpenLongNote(2000);
  TurnWheel(-120 * 12);
  ASSERT_EQ(Top(), 12U);
  PressKey(Body(), Qt::Key_End, Qt::ControlModifier);
  QTest::keyClicks(&Body(), "end");
  ASSERT_TRUE(QTest::qWaitFor([&] { return Screen().ends_with("word end\n"); }, kSoon)) << Screen();
  EXPECT_EQ(Top(), 12U);
}

TEST_F(PreviewPanelTest, MusicIsNamedAndTheNoteStays) {
  OpenSongs();
  EXPECT_EQ(Notice(), "");
  PressKey(Device(), Qt::Key_Return);
  EXPECT_EQ(Screen(), "-Start|[Play]\nSee Part two\nPart two\n");
  EXPECT_EQ(Notice(), "An iPod would play: song Blue, artist Kim Low");
  TurnWheel(-30);
  EXPECT_EQ(Notice(), "An iPod would play: song Blue, artist Kim Low") << "not a whole notch";
  PressKey(Device(), Qt::Key_Down);
  EXPECT_EQ(Notice(), "");
}

TEST_F(PreviewPanelTest, WithoutBackgroundMusicTheDeviceShowsWhatPlays) {
  OpenSongs();
  const QImage note = ScreenPicture();
  Tick("BackgroundMusic");
  PressKey(Device(), Qt::Key_Return);
  EXPECT_EQ(Screen(), "Now Playing|song Blue, artist Kim Low");
  EXPECT_EQ(Notice(), "An iPod would play: song Blue, artist Kim Low");
  EXPECT_NE(ScreenPicture(), note);
  PressKey(Device(), Qt::Key_Escape);
  EXPECT_EQ(Screen(), "-Start|[Play]\nSee Part two\nPart two\n");
  EXPECT_EQ(ScreenPicture(), note);
}

TEST_F(PreviewPanelTest, TheNotesMenuLinkIsShownWhenItIsTicked) {
  OpenGuide();
  Tick("NotesMenuLink");
  EXPECT_EQ(Screen(), "-One|Alpha\n[Two]\nFive\nNotes menu\n");
  PressKey(Device(), Qt::Key_Down);
  PressKey(Device(), Qt::Key_Down);
  EXPECT_EQ(Screen(), "-One|Alpha\nTwo\nFive\n[Notes menu]\n");
  PressKey(Device(), Qt::Key_Return);
  EXPECT_EQ(Screen(), "Notes|[-One]|Five|Last|Two");
  Tick("NotesMenuLink");
  PressKey(Device(), Qt::Key_Return);
  EXPECT_EQ(Screen(), "-One|Alpha\n[Two]\nFive\n");
}

TEST_F(PreviewPanelTest, ANoteThatJustFitsIsNotCut) {
  OpenLongNote(kRoom);
  EXPECT_EQ(Notice(), "");
  TurnWheel(-120 * 1000);
  EXPECT_FALSE(ShowsACut());

  PressKey(Body(), Qt::Key_End, Qt::ControlModifier);
  QTest::keyClicks(&Body(), "!");
  EXPECT_TRUE(QTest::qWaitFor([&] { return Notice() == kCutNotice; }, kSoon));
  EXPECT_TRUE(ShowsACut());
  TurnWheel(120 * 1000);
  EXPECT_FALSE(ShowsACut()) << "the end is far below";
  EXPECT_EQ(Notice(), kCutNotice);
}

TEST_F(PreviewPanelTest, TheTicksCountForTheCut) {
  OpenLongNote(kRoom + 42);
  EXPECT_EQ(Notice(), kCutNotice);
  Tick("BackgroundMusic");
  EXPECT_EQ(Notice(), "") << "its line has 42 bytes";
  Tick("NotesMenuLink");
  EXPECT_EQ(Notice(), kCutNotice);
}

TEST_F(PreviewPanelTest, TheCutIsMarkedOnEveryScreen) {
  OpenLongNote(kRoom + 1);
  for (int model = 0; model < 7; ++model) {
    ChooseIn("Model", model);
    TurnWheel(-120 * 1000);
    EXPECT_TRUE(ShowsACut()) << model;
    EXPECT_EQ(Notice(), kCutNotice) << model;
  }
}

TEST_F(PreviewPanelTest, AnEmptyPageSaysSo) {
  OpenGuide();
  ClickRow(PagesGrid(), 7);
  EXPECT_TRUE(Comes("z007.txt|The page is empty, so there is no note of it.")) << Screen();
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Return}) PressKey(Device(), key);
  EXPECT_EQ(Screen(), "z007.txt|The page is empty, so there is no note of it.");
  TypeInto(Title(), "Seven");
  EXPECT_TRUE(QTest::qWaitFor([&] { return Screen().starts_with("Seven|"); }, kSoon)) << Screen();
}

TEST_F(PreviewPanelTest, AnImpossibleMusicLinkIsToldOnTheScreen) {
  OpenSongs();
  TypeInto(MusicLink(), "M101");
  EXPECT_TRUE(QTest::qWaitFor([&] { return Screen().starts_with("z001.txt|"); }, kSoon)) << Screen();
  EXPECT_THAT(Screen(), HasSubstr("M101"));
  EXPECT_THAT(Screen(), HasSubstr("0 to 100"));
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Return}) PressKey(Device(), key);
  EXPECT_THAT(Screen(), StartsWith("z001.txt|"));
  PressKey(Device(), Qt::Key_Escape);
  EXPECT_EQ(Screen(), "Notes|[-Start]|Next");
  TypeInto(MusicLink(), "M1");
  EXPECT_TRUE(Comes("-Start|[Play]\nSee Part two\nPart two\n")) << Screen();
  EXPECT_TRUE(Program.Failures.empty());
  EXPECT_TRUE(Messages.Shown.empty());
}

TEST_F(PreviewPanelTest, ClosingTheProjectEmptiesTheDeviceAndOpeningOneFillsIt) {
  OpenGuide();
  PressKey(Device(), Qt::Key_Return);
  Choose("FileClose");
  EXPECT_TRUE(Comes("Notes")) << Screen();
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Return, Qt::Key_Escape})
    PressKey(Device(), key);
  ClickAt(Look().Hub.toPoint());
  DragRound(0, 90);
  EXPECT_EQ(Screen(), "Notes");
  EXPECT_EQ(Notice(), "");

  OpenDocument("Trio.dat", kTrio);
  EXPECT_TRUE(Comes("-A|one\n")) << Screen();
  PressKey(Device(), Qt::Key_Escape);
  EXPECT_EQ(Screen(), "Notes|[-A]|B|C");
  EXPECT_TRUE(Program.Failures.empty());
}

TEST_F(PreviewPanelTest, WithoutAProjectItsChoicesStillWork) {
  Start();
  OpenPreview();
  EXPECT_EQ(Screen(), "Notes");
  ChooseIn("Model", 4);
  ChooseIn("Scale", 0);
  Tick("NotesMenuLink");
  Tick("GoAlong");
  EXPECT_EQ(Look().Screen.size(), QSize(320, 240));
  PressKey(Device(), Qt::Key_Return);
  EXPECT_EQ(Screen(), "Notes");
  EXPECT_TRUE(Program.Failures.empty());
}

TEST_F(PreviewPanelTest, ClosingAnEditedProjectThatIsOpenedAgainForgetsTheTyping) {
  OpenGuide();
  TypeInto(Title(), "Gone");
  ASSERT_TRUE(Comes("-Gone|Alpha\n[Two]\nFive\n"));
  Choose("FileClose");
  OpenExisting("Guide.dat");
  EXPECT_TRUE(Comes("-One|Alpha\n[Two]\nFive\n")) << Screen();
}

TEST_F(PreviewPanelTest, TheTabKeyGoesThroughItFromTheTop) {
  OpenGuide();
  Find<QComboBox>(Window(), "Model").setFocus();
  std::vector<std::string> order = TabOrder(Window());
  ASSERT_GE(order.size(), 6U);
  order.resize(6);
  const std::vector<std::string> expected = {"Model",   "Scale",         "Device",
                                             "GoAlong", "NotesMenuLink", "BackgroundMusic"};
  EXPECT_EQ(order, expected);
}

TEST_F(PreviewPanelTest, AllOfItHasANameForAScreenReader) {
  OpenGuide();
  EXPECT_EQ(NamelessControls(Find<QWidget>(Window(), "PreviewPanel")), std::vector<std::string>());
}

TEST_F(PreviewPanelTest, ItNeverTouchesTheProgramsSettings) {
  OpenGuide();
  const bool had_settings = Folder.Has("tavrel.ini");
  const std::string settings = had_settings ? Folder.Read("tavrel.ini") : "";
  ChooseIn("Model", 3);
  ChooseIn("Scale", 2);
  for (const char* tick : {"GoAlong", "NotesMenuLink", "BackgroundMusic"}) Tick(tick);
  PressKey(Device(), Qt::Key_Return);
  PressKey(Window(), Qt::Key_F5);
  EXPECT_EQ(Folder.Has("tavrel.ini"), had_settings);
  EXPECT_EQ(had_settings ? Folder.Read("tavrel.ini") : "", settings);
}

}  // namespace
}  // namespace tavrel::test
