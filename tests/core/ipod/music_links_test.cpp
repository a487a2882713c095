#include "core/ipod/music_links.h"

#include <gtest/gtest.h>

namespace tavrel::test {
namespace {

const char* const kFullRecord =
    "<song>a</song><album>b</album><composer>c</composer><artist>d</artist><genre>e</genre>"
    "<playlist>f</playlist><notes>g</notes>";

TEST(BuildMusicLink, WritesTheFieldsInOrder) {
  EXPECT_EQ(BuildMusicLink({"a", "b", "c", "d", "e", "f", "g"}), kFullRecord);
}

TEST(BuildMusicLink, LeavesEmptyFieldsOut) {
  EXPECT_EQ(BuildMusicLink({"Blue", "", "", "Kim Low", "", "", ""}),
            "<song>Blue</song><artist>Kim Low</artist>");
  EXPECT_EQ(BuildMusicLink({"", "", "", "", "", "", "g"}), "<notes>g</notes>");
}

TEST(BuildMusicLink, GivesTheEmptyRecordForEmptyFields) {
  EXPECT_EQ(BuildMusicLink(MusicFields()), "");
}

TEST(BuildMusicLink, TakesTheFieldsAsTheyStand) {
  EXPECT_EQ(BuildMusicLink({" a ", " ", "", "", "", "", ""}), "<song> a </song><album> </album>");
  EXPECT_EQ(BuildMusicLink({"a\r\nb", "<p>", "", "", "", "", ""}), "<song>a\r\nb</song><album><p></album>");
}

TEST(ReadMusicLink, FillsEveryField) {
  EXPECT_EQ(ReadMusicLink(kFullRecord), (MusicFields{"a", "b", "c", "d", "e", "f", "g"}));
}

TEST(ReadMusicLink, FindsTheElementsInAnyOrder) {
  EXPECT_EQ(ReadMusicLink("<notes>g</notes><playlist>f</playlist><genre>e</genre><artist>d</artist>"
                          "<composer>c</composer><album>b</album><song>a</song>"),
            (MusicFields{"a", "b", "c", "d", "e", "f", "g"}));
}

TEST(ReadMusicLink, GivesEmptyFieldsForMissingElements) {
  EXPECT_EQ(ReadMusicLink(""), MusicFields());
  EXPECT_EQ(ReadMusicLink("<playlist>Road</playlist>"), (MusicFields{"", "", "", "", "", "Road", ""}));
  EXPECT_EQ(ReadMusicLink("<song>Blue"), MusicFields());
}

TEST(ReadMusicLink, TakesTheFirstOfDoubledElements) {
  EXPECT_EQ(ReadMusicLink("<song>a</song><song>b</song>"), (MusicFields{"a", "", "", "", "", "", ""}));
}

TEST(ReadMusicLink, ReadsEachElementAsIfTheOthersWereText) {
  EXPECT_EQ(ReadMusicLink("<song>a<song>b</song>"), (MusicFields{"a<song>b", "", "", "", "", "", ""}));
  EXPECT_EQ(ReadMusicLink("<album>x<song>y</album>z</song>"),
            (MusicFields{"y</album>z", "x<song>y", "", "", "", "", ""}));
  EXPECT_EQ(ReadMusicLink("<song>a</album><album>b</album>"), (MusicFields{"", "b", "", "", "", "", ""}));
  EXPECT_EQ(ReadMusicLink("<<genre>r<</genre><"), (MusicFields{"", "", "", "", "r<", "", ""}));
  EXPECT_EQ(ReadMusicLink("</song><song></song><song>late</song>"), MusicFields());
}

TEST(ReadMusicLink, ChangesNoBlanks) {
  EXPECT_EQ(ReadMusicLink("<song> a </song>"), (MusicFields{" a ", "", "", "", "", "", ""}));
}

TEST(ReadMusicLink, LosesWhatFollowsAClosingTagInAField) {
  const MusicFields fields = {"a</song>b", "c", "", "", "", "", ""};
  EXPECT_EQ(ReadMusicLink(BuildMusicLink(fields)), (MusicFields{"a", "c", "", "", "", "", ""}));
}

}  // namespace
}  // namespace tavrel::test
