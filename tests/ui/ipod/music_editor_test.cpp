#include "ui/ipod/music_editor_test.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QTest>

namespace tavrel::test {
namespace {

const Texts kEmptyRow(7);
const Texts kBlueRow = {"Blue", "", "", "Kim Low", "", "", ""};
const Texts kRoadRow = {"", "", "", "", "", "Road", ""};

TEST_F(MusicEditorTest, AnEmptyDocumentShowsAHundredEmptyRows) {
  OpenDocument("Trio.dat", kTrio);
  PlayEditor([](QWidget& dialog) {
    EXPECT_EQ(MusicGrid(dialog).model()->rowCount(), 100);
    for (int row = 1; row <= 100; ++row) {
      EXPECT_EQ(MusicGrid(dialog).TextMatrix(row, 0), "M" + std::to_string(row));
      EXPECT_EQ(Cells(dialog, row), kEmptyRow) << row;
    }
    EXPECT_EQ(MusicGrid(dialog).Row(), 1);
    EXPECT_EQ(Fields(dialog), kEmptyRow);
    Click(dialog, "Command4");
  });
}

TEST_F(MusicEditorTest, ExistingMusicIsShownAndTheFirstRowIsInTheFields) {
  OpenDocument("Songs.dat", kSongs);
  PlayEditor([](QWidget& dialog) {
    EXPECT_EQ(Cells(dialog, 1), kBlueRow);
    EXPECT_EQ(Cells(dialog, 2), kEmptyRow);
    EXPECT_EQ(Cells(dialog, 3), kRoadRow);
    EXPECT_EQ(Fields(dialog), kBlueRow);
    EXPECT_EQ(MusicGrid(dialog).Row(), 1);
    Click(dialog, "Command4");
  });
}

TEST_F(MusicEditorTest, ShowsItsCaptionsAndTips) {
  OpenDocument("Trio.dat", kTrio);
  PlayEditor([](QWidget& dialog) {
    const QStringList labels = {"Song:", "Album:", "Composer:", "Artist:", "Genre:", "Playlist:", "Notes:"};
    const QStringList buttons = {"Save", "Enter", "Clear", "Cancel"};
    const QStringList tips = {"Save the changes", "Enter the music attributes",
                              "Clear the currently selected music", "Close music editor, discarding changes"};
    EXPECT_EQ(dialog.windowTitle(), "Music Editor");
    for (int column = 1; column <= 7; ++column)
      EXPECT_EQ(Find<QLabel>(dialog, QString("Label1_%1").arg(column)).text(), labels[column - 1]);
    EXPECT_EQ(Find<QLabel>(dialog, "Label2").text(),
              "Select a free music slot in the table below and fill in one or more of the boxes to identify "
              "the music...");
    for (int button = 1; button <= 4; ++button) {
      const auto& command = Find<QAbstractButton>(dialog, QString("Command%1").arg(button));
      EXPECT_EQ(command.text(), buttons[button - 1]);
      EXPECT_EQ(command.toolTip(), tips[button - 1]);
    }
    Click(dialog, "Command4");
  });
}

TEST_F(MusicEditorTest, ColumnsHaveTheirHeadingsAndRoomForTheirSamples) {
  OpenDocument("Trio.dat", kTrio);
  PlayEditor([](QWidget& dialog) {
    const QStringList headings = {"Link",   "Song",  "Album",    "Composer",
                                  "Artist", "Genre", "Playlist", "Notes"};
    const QStringList samples = {"M0000",           "A LONG SONG TITLE__", "THE ALBUM NAME__",
                                 "COMPOSER'S NAME", "ARTIST'S NAME",       "THE GENRE",
                                 "PLAYLIST NAME",   "THESE ARE SOME NOTES"};
    const Grid& grid = MusicGrid(dialog);
    for (int column = 0; column < 8; ++column) {
      EXPECT_EQ(grid.model()->headerData(column, Qt::Horizontal).toString(), headings[column]);
      EXPECT_GE(grid.columnWidth(column), grid.fontMetrics().horizontalAdvance(samples[column]));
      const auto alignment = grid.model()->index(0, column).data(Qt::TextAlignmentRole).toInt();
      EXPECT_TRUE(alignment & (column == 0 ? Qt::AlignHCenter : Qt::AlignLeft)) << column;
    }
    Click(dialog, "Command4");
  });
}

TEST_F(MusicEditorTest, TypingMayBeginAtOnceAndEveryControlHasAName) {
  OpenDocument("Trio.dat", kTrio);
  PlayEditor([](QWidget& dialog) {
    EXPECT_EQ(TabOrder(dialog),
              (Texts{"Text1_1", "Text1_2", "Text1_3", "Text1_4", "Text1_5", "Text1_6", "Text1_7", "Command2",
                     "Command3", "MSFlexGrid2", "Command1", "Command4"}));
    EXPECT_EQ(NamelessControls(dialog), Texts{});
    Click(dialog, "Command4");
  });
}

TEST_F(MusicEditorTest, EnterInAnyFieldEntersTheRowAndNothingMore) {
  OpenDocument("Trio.dat", kTrio);
  PlayEditor([this](QWidget& dialog) {
    Texts typed(7);
    for (int column = 1; column <= 7; ++column) {
      const QString text(QChar('a' + column - 1));
      TypeInto(dialog, MusicField(column), text);
      EXPECT_EQ(Cells(dialog, 1), typed) << "not yet entered";
      PressKey(Find<QWidget>(dialog, MusicField(column)), column % 2 == 0 ? Qt::Key_Return : Qt::Key_Enter);
      typed[static_cast<std::size_t>(column) - 1] = text.toStdString();
      EXPECT_EQ(Cells(dialog, 1), typed);
      EXPECT_TRUE(dialog.isVisible());
      EXPECT_EQ(State.MusicLink(1), "");
    }
    EXPECT_EQ(MusicGrid(dialog).Row(), 1);
    Click(dialog, "Command1");
    EXPECT_FALSE(dialog.isVisible());
  });
  EXPECT_EQ(State.MusicLink(1),
            "<song>a</song><album>b</album><composer>c</composer><artist>d</artist><genre>e</genre>"
            "<playlist>f</playlist><notes>g</notes>");
}

TEST_F(MusicEditorTest, BlanksAroundATextAreTrimmedAndBlanksAloneAreNothing) {
  OpenDocument("Trio.dat", kTrio);
  PlayEditor([](QWidget& dialog) {
    ClickRow(MusicGrid(dialog), 2);
    TypeFields(dialog, {"   ", "  two  words "});
    Click(dialog, "Command2");
    EXPECT_EQ(Cells(dialog, 2), (Texts{"", "two  words", "", "", "", "", ""}));
    EXPECT_EQ(MusicGrid(dialog).Row(), 2);
    TypeFields(dialog, {"   "});
    Click(dialog, "Command2");
    EXPECT_EQ(Cells(dialog, 2), kEmptyRow);
    Click(dialog, "Command4");
  });
}

TEST_F(MusicEditorTest, AClickOnARowPutsItIntoTheFieldsAndSelectsIt) {
  OpenDocument("Songs.dat", kSongs);
  PlayEditor([](QWidget& dialog) {
    ClickRow(MusicGrid(dialog), 3);
    EXPECT_EQ(Fields(dialog), kRoadRow);
    EXPECT_EQ(MusicGrid(dialog).Row(), 3);
    for (int column = 1; column < MusicGrid(dialog).model()->columnCount(); ++column)
      EXPECT_TRUE(
          MusicGrid(dialog).selectionModel()->isSelected(MusicGrid(dialog).model()->index(2, column)));
    ClickRow(MusicGrid(dialog), 100);
    EXPECT_EQ(Fields(dialog), kEmptyRow);
    EXPECT_EQ(MusicGrid(dialog).Row(), 100);
    Click(dialog, "Command4");
  });
}

TEST_F(MusicEditorTest, TextThatWasNotEnteredIsLostWithTheNextRow) {
  OpenDocument("Trio.dat", kTrio);
  PlayEditor([](QWidget& dialog) {
    ClickRow(MusicGrid(dialog), 5);
    TypeInto(dialog, MusicField(1), "q");
    ClickRow(MusicGrid(dialog), 6);
    EXPECT_EQ(Fields(dialog), kEmptyRow);
    ClickRow(MusicGrid(dialog), 5);
    EXPECT_EQ(Fields(dialog), kEmptyRow);
    Click(dialog, "Command4");
  });
}

TEST_F(MusicEditorTest, AClickOnTheHeadingDoesNothing) {
  OpenDocument("Songs.dat", kSongs);
  PlayEditor([](QWidget& dialog) {
    ClickRow(MusicGrid(dialog), 3);
    TypeInto(dialog, MusicField(2), "typed");
    QWidget* heading = MusicGrid(dialog).horizontalHeader()->viewport();
    for (const int x : {5, 100, heading->width() - 5})
      QTest::mouseClick(heading, Qt::LeftButton, {}, {x, heading->height() / 2});
    EXPECT_EQ(Fields(dialog), (Texts{"", "typed", "", "", "", "Road", ""}));
    EXPECT_EQ(MusicGrid(dialog).Row(), 3);
    Click(dialog, "Command4");
  });
}

TEST_F(MusicEditorTest, ClearEmptiesTheRowAndTheFields) {
  OpenDocument("Songs.dat", kSongs);
  PlayEditor([this](QWidget& dialog) {
    TypeInto(dialog, MusicField(2), "not entered");
    Click(dialog, "Command3");
    EXPECT_EQ(Cells(dialog, 1), kEmptyRow);
    EXPECT_EQ(Cells(dialog, 3), kRoadRow);
    EXPECT_EQ(Fields(dialog), kEmptyRow);
    EXPECT_EQ(MusicGrid(dialog).Row(), 1);
    EXPECT_EQ(MusicGrid(dialog).TextMatrix(1, 0), "M1");
    EXPECT_EQ(State.MusicLink(1), "<song>Blue</song><artist>Kim Low</artist>");
    Click(dialog, "Command1");
  });
  EXPECT_EQ(State.MusicLink(1), "");
}

TEST_F(MusicEditorTest, TheKeyboardChoosesARowWithEnter) {
  OpenDocument("Songs.dat", kSongs);
  PlayEditor([](QWidget& dialog) {
    Grid& grid = MusicGrid(dialog);
    grid.setFocus();
    PressKey(grid, Qt::Key_Down);
    PressKey(grid, Qt::Key_Down);
    EXPECT_EQ(Fields(dialog), kBlueRow);
    PressKey(grid, Qt::Key_Return);
    EXPECT_EQ(Fields(dialog), kRoadRow);
    EXPECT_TRUE(dialog.isVisible());
    PressKey(grid, Qt::Key_Up);
    TypeInto(dialog, MusicField(1), "x\n");
    EXPECT_EQ(Cells(dialog, 2), kEmptyRow) << "only looked at";
    EXPECT_EQ(Cells(dialog, 3), (Texts{"x", "", "", "", "", "Road", ""}));
    Click(dialog, "Command4");
  });
}

TEST_F(MusicEditorTest, PastedTextIsMadeFit) {
  OpenDocument("Trio.dat", kTrio);
  PlayEditor([](QWidget& dialog) {
    QApplication::clipboard()->setText(u"one\r\ntwo\nthree\rfour\u0416"_qs);
    for (int column = 1; column <= 7; ++column)
      PressKey(Find<QWidget>(dialog, MusicField(column)), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Fields(dialog), Texts(7, "one two three four?"));
    Click(dialog, "Command2");
    Click(dialog, "Command1");
  });
  EXPECT_EQ(State.MusicLink(1).Bytes().find_first_of("\r\n"), std::string::npos);
}

TEST_F(MusicEditorTest, AnotherFieldsTagIsToldToo) {
  OpenDocument("Trio.dat", kTrio);
  PlayEditor([](QWidget& dialog) {
    const auto& notice = Find<QLabel>(dialog, "TagNotice");
    TypeInto(dialog, MusicField(1), "x<album>y");
    EXPECT_EQ(notice.text(), "A music link takes \"<album>\" in this field for its own markup.");
    TypeInto(dialog, MusicField(1), "x<song>y");
    EXPECT_EQ(notice.text(), "");
    Click(dialog, "Command4");
  });
}

TEST_F(MusicEditorTest, AClosingTagIsToldWhileItStands) {
  OpenDocument("Trio.dat", kTrio);
  PlayEditor([](QWidget& dialog) {
    const QStringList tags = {"</song>",  "</album>",    "</composer>", "</artist>",
                              "</genre>", "</playlist>", "</notes>"};
    const auto& notice = Find<QLabel>(dialog, "TagNotice");
    for (int column = 1; column <= 7; ++column) {
      EXPECT_EQ(notice.text(), "");
      TypeInto(dialog, MusicField(column), "a" + tags[column - 1] + "b");
      EXPECT_EQ(notice.text(),
                "A music link cannot keep what follows \"" + tags[column - 1] + "\" in this field.");
      EXPECT_TRUE(notice.isVisible());
      TypeInto(dialog, MusicField(column), "a " + tags[column % 7] + " b");
    }
    EXPECT_EQ(notice.text(), "");
    TypeInto(dialog, MusicField(1), "</song>");
    ClickRow(MusicGrid(dialog), 2);
    EXPECT_EQ(notice.text(), "");
    Click(dialog, "Command4");
  });
}

}  // namespace
}  // namespace tavrel::test
