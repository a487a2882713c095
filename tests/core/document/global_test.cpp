#include "core/document/global.h"

#include <gtest/gtest.h>
#include <stdexcept>
#include <string>

namespace tavrel::test {
namespace {

TEST(ClearDocument, EmptiesPagesAndMusicLinksOfUsersOnly) {
  Global global;
  global.Pages.fill("page");
  global.MusicLinks.fill("link");
  global.IsDocumentShown = true;
  ClearDocument(global);

  EXPECT_EQ(global.Page(0), "page");
  for (int page = 1; page <= 999; ++page) EXPECT_EQ(global.Page(page), "") << page;
  EXPECT_EQ(global.Page(1000), "page");
  EXPECT_EQ(global.MusicLink(0), "link");
  for (int link = 1; link <= 100; ++link) EXPECT_EQ(global.MusicLink(link), "") << link;
  EXPECT_FALSE(global.IsDocumentShown);
}

TEST(ClearDocument, LeavesTheFileNameAlone) {
  Global global;
  global.DocPath = "Guide.dat";
  ClearDocument(global);
  EXPECT_EQ(global.DocPath, "Guide.dat");
}

TEST(Global, HoldsADocumentWhileItHasAFileName) {
  Global global;
  EXPECT_FALSE(global.IsDocumentOpen());
  global.DocPath = "Guide.dat";
  EXPECT_TRUE(global.IsDocumentOpen());
}

TEST(Global, StartsEmpty) {
  const Global global;
  for (const std::string& page : global.Pages) EXPECT_EQ(page, "");
  for (const std::string& link : global.MusicLinks) EXPECT_EQ(link, "");
  EXPECT_EQ(global.FindText + global.PageClipboard, "");
  EXPECT_TRUE(global.PlanPath.empty());
}

TEST(Global, RefusesNumbersOutsideItsArrays) {
  Global global;
  EXPECT_THROW(global.Page(-1), std::out_of_range);
  EXPECT_THROW(global.Page(1001), std::out_of_range);
  EXPECT_THROW(global.MusicLink(-1), std::out_of_range);
  EXPECT_THROW(global.MusicLink(101), std::out_of_range);
}

TEST(LastPage, IsTheLastThatIsNotEmpty) {
  Global global;
  global.Page(1) = "x";
  EXPECT_EQ(LastPage(global), 1);
  global.Page(12) = "x";
  EXPECT_EQ(LastPage(global), 12);
  global.Page(5) = "x";
  EXPECT_EQ(LastPage(global), 12);
  global.Page(999) = "x";
  EXPECT_EQ(LastPage(global), 999);
}

TEST(LastPage, IsTheFirstWithoutPages) {
  Global global;
  EXPECT_EQ(LastPage(global), 1);
  global.Page(0) = global.Page(1000) = "x";
  EXPECT_EQ(LastPage(global), 1);
}

TEST(LastPage, NeedsNoFirstPage) {
  Global global;
  global.Page(2) = "x";
  EXPECT_EQ(LastPage(global), 2);
}

TEST(DocumentFile, LiesInTheProgramsFolder) {
  Global global;
  global.ProgramFolder = std::filesystem::path("/somewhere") / "Tavrel Writer";
  global.DocPath = "Guide.dat";
  EXPECT_EQ(DocumentFile(global), std::filesystem::path("/somewhere") / "Tavrel Writer" / "Guide.dat");
}

TEST(DocumentName, IsTheFileNameLessFourCharacters) {
  Global global;
  EXPECT_EQ(DocumentName(global), "");
  global.DocPath = "my.notes.dat";
  EXPECT_EQ(DocumentName(global), "my.notes");
  global.DocPath = "Guide.DAT";
  EXPECT_EQ(DocumentName(global), "Guide");
}

}  // namespace
}  // namespace tavrel::test
