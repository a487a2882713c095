#include <QAbstractButton>

#include "ui/ipod/music_editor_test.h"

namespace tavrel::test {
namespace {

const std::string kBlue = "<song>Blue</song><artist>Kim Low</artist>";
const std::string kRoad = "<playlist>Road</playlist>";

/// Opening the music editor, what it leaves behind and what the main window shows then.
class MusicCommandsTest : public MusicEditorTest {
 protected:
  void SetUp() override { OpenDocument("Songs.dat", kSongs); }

  void ExpectOldMusic() {
    for (int link = 1; link <= 100; ++link)
      EXPECT_EQ(State.MusicLink(link), link == 1 ? kBlue : link == 3 ? kRoad : "") << link;
  }
};

TEST_F(MusicCommandsTest, SavingWithoutAChangeChangesNothing) {
  PlayEditor([](QWidget& dialog) { Click(dialog, "Command1"); });
  ExpectOldMusic();
  EXPECT_EQ(Save(), kSongs);
}

TEST_F(MusicCommandsTest, ARowOfEmptyFieldsIsNoMusicLink) {
  SaveRow(1, {});
  EXPECT_EQ(State.MusicLink(1), "");
  EXPECT_EQ(State.MusicLink(3), kRoad);
  EXPECT_EQ(LinkTarget().Items(), (QStringList{"001", "002", "M3"}));
  EXPECT_EQ(MusicLink().Items(), QStringList{"M3"});
  EXPECT_EQ(MusicLink().Bytes(), "M1") << "the page keeps its reference";
  EXPECT_EQ(Save(), std::string(kSongs).erase(0, std::string(" 1 ," + kBlue + "\r\n").size()));
}

TEST_F(MusicCommandsTest, NewMusicIsOfferedAsATarget) {
  SaveRow(7, {"Z"});
  EXPECT_EQ(State.MusicLink(7), "<song>Z</song>");
  EXPECT_EQ(LinkTarget().Items(), (QStringList{"001", "002", "M1", "M3", "M7"}));
  EXPECT_EQ(MusicLink().Items(), (QStringList{"M1", "M3", "M7"}));
  EXPECT_EQ(Folder.Read("Songs.dat"), kSongs) << "the file waits for the next save";
  EXPECT_NE(Save().find("\r\n 7 ,<song>Z</song>\r\n\r\n"), std::string::npos);
}

TEST_F(MusicCommandsTest, TextThatWasNotEnteredIsLost) {
  PlayEditor([](QWidget& dialog) {
    TypeInto(dialog, MusicField(1), "typed only");
    Click(dialog, "Command1");
    EXPECT_FALSE(dialog.isVisible());
  });
  ExpectOldMusic();
}

TEST_F(MusicCommandsTest, DismissingItLosesAllThatWasEntered) {
  for (int way = 0; way < 3; ++way) {
    PlayEditor([way](QWidget& dialog) {
      EXPECT_EQ(Cells(dialog, 2), Texts(7)) << "nothing is left of the last time";
      Click(dialog, "Command3");
      ClickRow(MusicGrid(dialog), 2);
      TypeInto(dialog, MusicField(1), "two\n");
      ClickRow(MusicGrid(dialog), 100);
      TypeInto(dialog, MusicField(1), "hundred\n");
      EXPECT_EQ(Cells(dialog, 2), OnlySong("two"));
      if (way == 0) Click(dialog, "Command4");
      if (way == 1) PressKey(Find<QWidget>(dialog, MusicField(1)), Qt::Key_Escape);
      if (way == 2) dialog.close();
      EXPECT_FALSE(dialog.isVisible());
    });
    ExpectOldMusic();
    EXPECT_EQ(LinkTarget().Items(), (QStringList{"001", "002", "M1", "M3"}));
    EXPECT_EQ(MusicLink().Items(), (QStringList{"M1", "M3"}));
  }
}

TEST_F(MusicCommandsTest, TheHundredthLinkIsKeptInMemoryButNotInTheFile) {
  SaveRow(100, {"last", "", "", "", "", "", "note"});
  EXPECT_EQ(State.MusicLink(100), "<song>last</song><notes>note</notes>");
  EXPECT_EQ(MusicLink().Items(), (QStringList{"M1", "M3", "M100"}));
  EXPECT_EQ(Save(), kSongs);
  PlayEditor([](QWidget& dialog) {
    EXPECT_EQ(Cells(dialog, 100), (Texts{"last", "", "", "", "", "", "note"}));
    Click(dialog, "Command4");
  });
}

TEST_F(MusicCommandsTest, WhatAFileHoldsIsSavedAsItStandsButInTheEditorsOrder) {
  State.MusicLink(1) = "<notes>n</notes><odd>x</odd><artist> Kim  </artist><song></song>";
  PlayEditor([](QWidget& dialog) {
    EXPECT_EQ(Cells(dialog, 1), (Texts{"", "", "", " Kim  ", "", "", "n"}));
    Click(dialog, "Command1");
  });
  EXPECT_EQ(State.MusicLink(1), "<artist> Kim  </artist><notes>n</notes>");
}

TEST_F(MusicCommandsTest, BothWaysStoreThePageFirst) {
  const auto look = [this](const std::string& title) {
    return [this, title](QWidget& dialog) {
      EXPECT_EQ(State.Page(2), "<title>" + title + "</title><text>End</text>");
      Click(dialog, "Command4");
    };
  };
  ClickRow(PagesGrid(), 2);
  TypeInto(Title(), " by menu ");
  PlayEditor(look("by menu"));
  EXPECT_EQ(Title().Bytes(), " by menu ") << "the page is not shown again";
  EXPECT_EQ(PagesGrid().TextMatrix(2, 1), " by menu ");

  TypeInto(Title(), "by button");
  Player.Expect("MusicEditor", look("by button"));
  Click(Find<QAbstractButton>(Window(), "Command4"));
  EXPECT_EQ(Player.StepsLeft(), 0);
  EXPECT_EQ(State.CurrentPage, 2);
  EXPECT_EQ(PagesGrid().Row(), 2);
  EXPECT_TRUE(Messages.Shown.empty());
}

TEST_F(MusicCommandsTest, TheTypedTargetStaysAndTheMusicLinkIsReadAgain) {
  TypeInto(LinkTarget(), "M9");
  TypeInto(MusicLink(), "m3");
  SaveRow(9, {"nine"});
  EXPECT_EQ(LinkTarget().Bytes(), "M9");
  EXPECT_EQ(MusicLink().Bytes(), "M3");
  EXPECT_EQ(MusicText().Bytes(), "Play");
  EXPECT_EQ(LinkTarget().Items(), (QStringList{"001", "002", "M1", "M3", "M9"}));
}

TEST_F(MusicCommandsTest, AMusicLinkWithoutItsTextIsLostEvenByCancelling) {
  ClickRow(PagesGrid(), 2);
  TypeInto(MusicLink(), "M3");
  PlayEditor([](QWidget& dialog) { Click(dialog, "Command4"); });
  EXPECT_EQ(MusicLink().Bytes(), "");
  EXPECT_EQ(MusicLink().Items(), (QStringList{"M1", "M3"}));
  TypeInto(MusicText(), "Hear");
  TypeInto(MusicLink(), "M3");
  PlayEditor([](QWidget& dialog) { dialog.close(); });
  EXPECT_EQ(MusicLink().Bytes(), "M3");
  EXPECT_EQ(State.Page(2), "<title>Next</title><text>End</text><music>Hear</music><music>M3</music>");
}

TEST_F(MusicCommandsTest, PagesMadeMeanwhileAreNotAddedToTheTargets) {
  ClickRow(PagesGrid(), 9);
  TypeInto(Title(), "nine");
  SaveRow(2, {"two"});
  EXPECT_EQ(LinkTarget().Items(), (QStringList{"001", "002", "M1", "M2", "M3"}));
  ClickRow(PagesGrid(), 1);
  EXPECT_EQ(LinkTarget().Items(), (QStringList{"001", "002", "009", "M1", "M2", "M3"}));
}

TEST_F(MusicCommandsTest, TheKeyOpensItOnlyWithADocument) {
  Player.Expect("MusicEditor", [](QWidget& dialog) { Click(dialog, "Command4"); });
  PressKey(Body(), Qt::Key_M, Qt::ControlModifier);
  EXPECT_EQ(Player.StepsLeft(), 0);
  Choose("FileClose");
  PressKey(Window(), Qt::Key_M, Qt::ControlModifier);
  EXPECT_FALSE(Find<QAbstractButton>(Window(), "Command4").isVisible());
}

TEST_F(MusicCommandsTest, AllHundredLinksCanBeSaved) {
  for (int link = 1; link <= 100; ++link)
    State.MusicLink(link) = "<song>s" + std::to_string(link) + "</song>";
  const auto music = State.MusicLinks;
  PlayEditor([](QWidget& dialog) { Click(dialog, "Command1"); });
  EXPECT_TRUE(State.MusicLinks == music);
  EXPECT_EQ(MusicLink().Items().size(), 100);
  EXPECT_EQ(LinkTarget().Items().size(), 102);
}

}  // namespace
}  // namespace tavrel::test
