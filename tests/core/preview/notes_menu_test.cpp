#include "core/preview/notes_menu.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <utility>
#include <vector>

// The device's list of notes.

namespace tavrel::test {
namespace {

using EntryList = std::vector<std::string>;
using PageList = std::vector<std::pair<int, std::string>>;

/// "title/page", in the order of the list.
EntryList EntriesOf(const PageList& pages) {
  const auto document = std::make_unique<Global>();
  for (const auto& [page, record] : pages) document->Page(page) = record;
  EntryList described;
  for (const NotesMenuEntry& entry : NotesMenuEntries(*document))
    described.push_back(entry.Title + "/" + std::to_string(entry.Page));
  return described;
}

TEST(NotesMenuEntries, AnEmptyDocumentHasNone) {
  EXPECT_EQ(EntriesOf({}), EntryList());
}

TEST(NotesMenuEntries, StandInTheOrderOfTheirTitles) {
  EXPECT_EQ(EntriesOf({{2, "<title>pear</title>"}, {3, "<title>apple</title>"}, {999, "<title>fig</title>"}}),
            (EntryList{"apple/3", "fig/999", "pear/2"}));
}

TEST(NotesMenuEntries, CapitalsStandWhereSmallLettersDo) {
  EXPECT_EQ(EntriesOf({{2, "<title>b</title>"},
                       {3, "<title>C</title>"},
                       {4, "<title>A</title>"},
                       {5, "<title>Bc</title>"},
                       {6, "<title>bB</title>"}}),
            (EntryList{"A/4", "b/2", "bB/6", "Bc/5", "C/3"}));
}

TEST(NotesMenuEntries, OfTheSameTitleStandInTheOrderOfThePages) {
  EXPECT_EQ(EntriesOf({{9, "<title>a</title>"}, {4, "<title>A</title>"}, {7, "<title>a</title>"}}),
            (EntryList{"A/4", "a/7", "a/9"}));
}

TEST(NotesMenuEntries, PageOneComesFirstForItsDash) {
  EXPECT_EQ(EntriesOf({{1, "<title>Zoo</title>"}, {2, "<title>Ape</title>"}, {3, "<title>1st</title>"}}),
            (EntryList{"-Zoo/1", "1st/3", "Ape/2"}));
}

TEST(NotesMenuEntries, PageOneWithoutATitleIsADash) {
  EXPECT_EQ(EntriesOf({{1, "<text>x</text>"}}), EntryList{"-/1"});
}

TEST(NotesMenuEntries, PagesWithoutATitleStandUnderTheNamesOfTheirFiles) {
  EXPECT_EQ(EntriesOf({{12, "<text>x</text>"},
                       {3, "<title></title>"},
                       {2, "<title>yes</title>"},
                       {4, "<title>zoo</title>"}}),
            (EntryList{"yes/2", "z003.txt/3", "z012.txt/12", "zoo/4"}));
}

TEST(NotesMenuEntries, WhatIsNoPageIsNotListed) {
  EXPECT_EQ(EntriesOf({{0, "<title>a</title>"}, {1000, "<title>b</title>"}, {5, "<title>c</title>"}}),
            EntryList{"c/5"});
}

/// A menu of notes "0", "1", ..., which are pages 10, 20, ...
NotesMenu MenuOf(int count, int rows) {
  std::vector<NotesMenuEntry> entries;
  for (int entry = 0; entry < count; ++entry) entries.push_back({std::to_string(entry), 10 * (entry + 1)});
  return {std::move(entries), rows};
}

void ExpectAt(const NotesMenu& menu, std::size_t top, std::size_t current) {
  EXPECT_EQ(menu.Top(), top);
  EXPECT_EQ(menu.Current(), current);
}

TEST(NotesMenuTest, BeginsWithTheFirst) {
  ExpectAt(MenuOf(5, 3), 0, 0);
}

TEST(NotesMenuTest, TheWheelStopsAtBothEnds) {
  NotesMenu menu = MenuOf(2, 3);
  menu.TurnBack();
  ExpectAt(menu, 0, 0);
  menu.TurnForward();
  ExpectAt(menu, 0, 1);
  menu.TurnForward();
  ExpectAt(menu, 0, 1);
}

TEST(NotesMenuTest, ScrollsOnlyAtTheEdgesOfTheScreen) {
  NotesMenu menu = MenuOf(5, 3);
  menu.TurnForward();
  menu.TurnForward();
  ExpectAt(menu, 0, 2);
  menu.TurnForward();
  ExpectAt(menu, 1, 3);
  menu.TurnForward();
  ExpectAt(menu, 2, 4);
  menu.TurnForward();
  ExpectAt(menu, 2, 4);
  menu.TurnBack();
  menu.TurnBack();
  ExpectAt(menu, 2, 2);
  menu.TurnBack();
  ExpectAt(menu, 1, 1);
  menu.TurnBack();
  ExpectAt(menu, 0, 0);
}

TEST(NotesMenuTest, APageIsSelectedWhereverItStands) {
  NotesMenu menu = MenuOf(9, 3);
  menu.Select(20);
  ExpectAt(menu, 0, 1);
  menu.Select(70);
  ExpectAt(menu, 4, 6);
  menu.Select(60);
  ExpectAt(menu, 4, 5);
  menu.Select(40);
  ExpectAt(menu, 3, 3);
}

TEST(NotesMenuTest, APageWithoutAnEntrySelectsTheFirst) {
  NotesMenu menu = MenuOf(9, 3);
  menu.Select(70);
  menu.Select(75);
  ExpectAt(menu, 0, 0);
}

TEST(NotesMenuTest, AnEmptyMenuStandsStill) {
  NotesMenu menu = MenuOf(0, 3);
  menu.TurnForward();
  menu.TurnBack();
  menu.Select(10);
  ExpectAt(menu, 0, 0);
}

TEST(NotesMenuTest, AScreenWithoutRoomShowsOneRow) {
  NotesMenu menu = MenuOf(3, 0);
  menu.TurnForward();
  ExpectAt(menu, 1, 1);
}

}  // namespace
}  // namespace tavrel::test
