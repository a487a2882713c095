#include "process/process_test.h"

#include <algorithm>

#include "support/fixtures.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;

TEST_F(ProcessTest, ALaterStartPutsBackTheHelpPageOnly) {
  Run({"exit"});
  for (const char* name : {"help.html", "Skin1.jpg", "Skin2.jpg", "SkinBackup.jpg"})
    fs::remove(home_.Path() / folder_ / name);
  Run({"exit"});
  EXPECT_EQ(status_, 0);
  EXPECT_TRUE(home_.Has(folder_ / "help.html"));
  for (const char* name : {"Skin1.jpg", "Skin2.jpg", "SkinBackup.jpg"})
    EXPECT_FALSE(home_.Has(folder_ / name)) << name;
}

TEST_F(ProcessTest, FilesOfTheUsersOwnAreNeverReplaced) {
  for (const char* name : {"Skin1.jpg", "help.html"}) home_.Write(folder_ / name, "mine");
  Run({"exit"});
  Run({"exit"});
  for (const char* name : {"Skin1.jpg", "help.html"}) EXPECT_EQ(home_.Read(folder_ / name), "mine") << name;
}

TEST_F(ProcessTest, TheWindowComesBackAsItWasWhenItWasClosed) {
  home_.Write(folder_ / "Trio.dat", kTrio);
  Run({"open=Trio", "size=790x620", "panes=290", "tell-size", "close"});
  const std::string told = output_;
  EXPECT_TRUE(Says("size: 790x620 panes: ")) << output_;
  Run({"open=Trio", "tell-size", "close"});
  EXPECT_EQ(output_, told);
}

TEST_F(ProcessTest, TheWindowComesBackAsItWasWhenTheProgramWasLeft) {
  home_.Write(folder_ / "Trio.dat", kTrio);
  Run({"size=790x620", "exit"});
  EXPECT_TRUE(home_.Has("home/.config/Tavrel Writer/windows.ini"));
  Run({"tell-size", "exit"});
  EXPECT_TRUE(Says("size: 790x620")) << output_;
}

TEST_F(ProcessTest, TheWindowsMemoryIsKeptOutOfTheProgramsFolder) {
  Run({"close"});
  const std::string settings = home_.Read(folder_ / "tavrel.ini");
  const auto files = home_.Files();
  Run({"size=790x620", "close"});
  EXPECT_EQ(home_.Read(folder_ / "tavrel.ini"), settings);
  EXPECT_EQ(home_.Files().size(), files.size());
}

TEST_F(ProcessTest, ADamagedMemoryOfTheWindowIsNoObstacle) {
  home_.Write("home/.config/Tavrel Writer/windows.ini", "[Main\ngeometry=@ByteArray(\\x1\xFF\0Panes=7");
  Run({"tell-size", "close"});
  EXPECT_EQ(status_, 0);
  EXPECT_TRUE(Says("size: 1024x700")) << output_;
}

TEST_F(ProcessTest, ExitAsksOnlyWhileADocumentIsOpen) {
  home_.Write(folder_ / "Guide.dat", kGuide);
  Run({"open=Guide", "title=lost", "exit"});
  EXPECT_EQ(status_, 0);
  EXPECT_EQ(output_,
            "message: Tavrel Writer: If you exit without saving, you will lose    \n"
            "any changes to this project. Continue?    \n");
  EXPECT_EQ(home_.Read(folder_ / "Guide.dat"), kGuide);
}

TEST_F(ProcessTest, TheCloseBoxEndsTheProgramWithoutAWord) {
  home_.Write(folder_ / "Guide.dat", kGuide);
  Run({"open=Guide", "title=lost", "close"});
  EXPECT_EQ(status_, 0);
  EXPECT_EQ(output_, "");
  EXPECT_EQ(home_.Read(folder_ / "Guide.dat"), kGuide);
}

TEST_F(ProcessTest, ASettingsFileOfNineteenLinesStopsTheStart) {
  std::string lines;
  for (int line = 1; line <= 19; ++line) lines += "\r\n";
  home_.Write(folder_ / "tavrel.ini", lines);
  Run({});
  EXPECT_EQ(status_, 1);
  EXPECT_TRUE(Says("tavrel.ini"));
  EXPECT_TRUE(Says("twentieth line"));
  EXPECT_EQ(home_.Read(folder_ / "tavrel.ini"), lines);
}

TEST_F(ProcessTest, ADamagedDocumentEndsTheProgramAndStaysAsItIs) {
  const std::string damaged = "\r\n 1 ,<title>good</title>\r\n 1001 ,<title>x</title>\r\n";
  home_.Write(folder_ / "Bad.dat", damaged);
  home_.Write(folder_ / "Guide.dat", kGuide);
  Run({"open=Guide", "title=of Guide", "open=Bad"});
  EXPECT_EQ(status_, 1);
  EXPECT_TRUE(Says("Bad.dat"));
  EXPECT_TRUE(Says("1001"));
  EXPECT_EQ(home_.Read(folder_ / "Bad.dat"), damaged);
  EXPECT_EQ(home_.Read(folder_ / "Guide.dat"), kGuide);
  const auto files = home_.Files();
  EXPECT_TRUE(std::none_of(files.begin(), files.end(),
                           [](const auto& file) { return file.first.find("rescued") != std::string::npos; }));
}

TEST_F(ProcessTest, WhatWasTypedIsRescuedWhenSavingFails) {
  home_.Write(folder_ / "Trio.dat", kTrio);
  home_.Write(folder_ / "Trio (rescued).dat", "an earlier one");
  Run({"open=Trio  ", "title=Typed", "block=Trio.dat", "save"});
  EXPECT_EQ(status_, 1);
  EXPECT_TRUE(Says("Trio.dat\ncould not be written"));
  EXPECT_TRUE(Says("Trio 2 (rescued).dat"));
  EXPECT_EQ(home_.Read(folder_ / "Trio (rescued).dat"), "an earlier one");
  EXPECT_EQ(home_.Read(folder_ / "Trio 2 (rescued).dat"),
            "\r\n 1 ,<title>Typed</title><text>one</text>\r\n 2 ,<title>B</title><text>two</text>\r\n"
            " 3 ,<title>C</title><text>three</text>\r\n");
}

TEST_F(ProcessTest, WhatWasTypedButNotStoredIsRescuedWhenSaveAsFails) {
  home_.Write(folder_ / "Trio.dat", kTrio);
  Run({"open=Trio", "title=Typed", "block=Copy.dat", "save-as=Copy"});
  EXPECT_EQ(status_, 1);
  EXPECT_EQ(home_.Read(folder_ / "Trio.dat"), kTrio);
  EXPECT_NE(home_.Read(folder_ / "Copy (rescued).dat").find("<title>Typed</title>"), std::string::npos);
}

TEST_F(ProcessTest, WhatWasTypedIsRescuedWhenMemoryRunsOut) {
  home_.Write(folder_ / "Trio.dat", kTrio);
  Run({"open=Trio", "title=Typed", "run-out-of-memory"});
  EXPECT_EQ(status_, 1);
  EXPECT_NE(home_.Read(folder_ / "Trio (rescued).dat").find("<title>Typed</title>"), std::string::npos);
}

TEST_F(ProcessTest, APortableCopyKeepsToItsOwnFolder) {
  const fs::path program = fs::path(DRIVEN_WRITER).filename();
  home_.Write("stick/tavrel.ini", kPortableSettings);
  home_.Write("stick/Guide.dat", kGuide);
  fs::copy_file(DRIVEN_WRITER, home_.Path() / "stick" / program);
  const auto files = home_.Files();
  Run({"open=Guide", "title=Moved", "save", "close"},
      QString::fromStdString((home_.Path() / "stick" / program).string()));
  EXPECT_EQ(status_, 0);
  EXPECT_NE(home_.Read("stick/Guide.dat").find("<title>Moved</title>"), std::string::npos);
  EXPECT_FALSE(home_.Has(documents_));
  for (const auto& [name, bytes] : home_.Files()) {
    EXPECT_TRUE(files.contains(name) || name.starts_with("stick/") || name.starts_with("home/.config/"))
        << name;
  }
}

}  // namespace
}  // namespace tavrel::test
