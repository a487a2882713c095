// Saving, publishing and copying on a disk that is full: a small file system in memory where the system lets
// one be made, and a limit for the size of files everywhere.

#include <csignal>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iostream>
#include <sys/resource.h>

#include "core/ipod/folder_store.h"
#include "core/ipod/note_writer.h"
#include "core/text/run_time_error.h"
#include "platform/system_platform.h"
#include "reliability/child.h"
#include "reliability/saved_versions.h"
#include "reliability/small_disk.h"
#include "reliability/written_file.h"
#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::HasSubstr;
using FileMap = std::map<std::string, std::string>;

constexpr const char* kCannot = "cannot: ";
constexpr int kDiskPages = 256;  // a megabyte
constexpr int kDiskFiles = 40;

/// What the process of a test has to say to it: whether its expectations, which have printed themselves, were
/// met.
std::string Verdict() {
  return testing::Test::HasFailure() ? "failed, see above" : "";
}

class FullDisk : public testing::Test {
 protected:
  FullDisk() { fs::create_directory(Folder.Path() / "disk"); }

  fs::path Disk() const { return Folder.Path() / "disk"; }

  /// Tries something on a small disk, in a process of its own.
  void OnASmallDisk(const std::function<void(SmallDisk&)>& attempt) {
    const std::string verdict = InAProcess([&]() -> std::string {
      SmallDisk disk(Disk());
      if (const std::string reason = disk.Mount(kDiskPages, kDiskFiles); !reason.empty())
        return kCannot + reason;
      attempt(disk);
      fs::current_path("/");
      return Verdict();
    });
    if (verdict.starts_with(kCannot)) {
      GTEST_SKIP() << "the system lets no file system be made here (" << verdict
                   << "); the limit for the size of files is tried instead";
    }
    EXPECT_EQ(verdict, "");
    std::cout << "a file system of " << kDiskPages << " pages in memory was used\n";
  }

  /// Puts the files there that lie on the disk before a save.
  FileMap Prepare(const WrittenFile& file) const {
    FileMap files = file.Others;
    files[file.Name] = file.Old;
    for (const auto& [name, bytes] : files) Folder.Write(Disk() / name, bytes);
    return files;
  }

  std::string Save(const WrittenFile& file) {
    return FileErrorOf([&] { file.Save(Disk(), *System); });
  }

  /// What lies on the disk but for what fills it.
  FileMap Files() const {
    FileMap files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(Disk())) {
      if (!entry.is_regular_file() || entry.path().extension() == ".filler") continue;
      files[entry.path().lexically_relative(Disk()).string()] = Folder.Read(entry.path());
    }
    return files;
  }

  static auto Says(const fs::path& file, const std::string& what) {
    return AllOf(HasSubstr(PathText(file)), HasSubstr(what));
  }

  TemporaryFolder Folder;
  std::unique_ptr<Platform> System = MakeSystemPlatform();
};

TEST_F(FullDisk, KeepsTheOldFileAndTakesTheNewOneOnceThereIsRoom) {
  OnASmallDisk([this](SmallDisk& disk) {
    for (const WrittenFile& file : WrittenFiles()) {
      SCOPED_TRACE(file.Title);
      disk.Empty();
      FileMap files = Prepare(file);
      disk.LeaveRoomFor(0);
      EXPECT_THAT(Save(file), Says(Disk() / file.Name, "Make room on the disk"));
      EXPECT_EQ(Files(), files);
      disk.LeaveRoomFor(1);
      EXPECT_EQ(Save(file), "");
      files[file.Name] = file.New;
      EXPECT_EQ(Files(), files);
    }
  });
}

TEST_F(FullDisk, KeepsTheOldFileWhenThereIsNoRoomForOneMore) {
  OnASmallDisk([this](SmallDisk& disk) {
    for (const WrittenFile& file : WrittenFiles()) {
      SCOPED_TRACE(file.Title);
      disk.Empty();
      const FileMap files = Prepare(file);
      for (int number = 0; number < kDiskFiles; ++number) {
        const std::ofstream more(Disk() / (std::to_string(number) + ".filler"));
      }
      EXPECT_THAT(Save(file), Says(Disk() / file.Name, "Make room on the disk"));
      EXPECT_EQ(Files(), files);
    }
  });
}

TEST_F(FullDisk, KeepsTheOldDocumentUntilThereIsRoomForAllOfTheNew) {
  OnASmallDisk([this](SmallDisk& disk) {
    constexpr int kNew = 2;  // forty pages, like the one before
    constexpr int kOld = 6;
    SaveDocumentVersion(kNew, Disk(), *System);
    const int needed = static_cast<int>(fs::file_size(Disk() / "Guide.dat") / SmallDisk::kPage) + 1;
    EXPECT_GT(needed, 40);
    SaveDocumentVersion(kOld, Disk(), *System);
    for (int room = 0; room < needed; room += room < needed - 3 ? 7 : 1) {
      SCOPED_TRACE(room);
      disk.LeaveRoomFor(room);
      EXPECT_THAT(FileErrorOf([&] { SaveDocumentVersion(kNew, Disk(), *System); }),
                  Says(Disk() / "Guide.dat", "Make room on the disk"));
      EXPECT_TRUE(IsDocumentVersion(kOld, Disk() / "Guide.dat"));
      EXPECT_TRUE(TemporariesIn(Disk()).empty());
    }
    disk.LeaveRoomFor(needed);
    EXPECT_EQ(FileErrorOf([&] { SaveDocumentVersion(kNew, Disk(), *System); }), "");
    EXPECT_TRUE(IsDocumentVersion(kNew, Disk() / "Guide.dat"));
  });
}

/// A document of three pages, whose notes take three pages of a disk each.
Global LongNotes() {
  Global global;
  for (const int page : {1, 2, 3}) {
    global.Page(page) = "<text>" + std::string(10'000, static_cast<char>('a' + page)) + "</text>";
  }
  return global;
}

std::string LongNote(int page) {
  return std::string(page == 1 ? "<title>-</title>\r\n" : "<title></title>\r\n") +
         "<meta name=\"LineWrap\" content=\"false\">\r\n" +
         std::string(10'000, static_cast<char>('a' + page)) + "\r\n";
}

TEST_F(FullDisk, HoldsEachNoteWholeOrNotAtAll) {
  for (const char* name : {"z001.txt", "z002.txt", "z003.txt"}) {
    Folder.Write(fs::path("source") / name, LongNote(name[3] - '0'));
  }
  OnASmallDisk([this](SmallDisk& disk) {
    const Global global = LongNotes();
    const auto copy = [&](const fs::path& to) {
      CopyFolder(Folder.Path() / "source", to, *System, [](int /*done*/, int /*all*/) {});
    };
    const auto publish = [&](const fs::path& to) { PublishNotes(global, *System, to, {}); };
    for (const std::function<void(const fs::path&)>& write :
         {std::function<void(const fs::path&)>(publish), std::function<void(const fs::path&)>(copy)}) {
      for (int room = 0; room <= 9; ++room) {
        SCOPED_TRACE(room);
        disk.Empty();
        disk.LeaveRoomFor(room);
        const std::string message = FileErrorOf([&] { write(Disk() / "Trio"); });
        const FileMap notes = Files();
        EXPECT_EQ(notes.size(), static_cast<std::size_t>(room / 3));
        for (const auto& [name, bytes] : notes) {
          EXPECT_EQ(bytes, LongNote(name.at(std::string("Trio/z00").size()) - '0')) << name;
        }
        if (room == 9) {
          EXPECT_EQ(message, "");
        } else {
          EXPECT_THAT(message, Says(Disk() / "Trio", "Make room on the disk"));
        }
      }
    }
  });
}

TEST_F(FullDisk, KeepsAllOfADiskThatMayOnlyBeRead) {
  OnASmallDisk([this](SmallDisk& disk) {
    for (const WrittenFile& file : WrittenFiles()) Prepare(file);
    Folder.Write("disk/Trio/z002.txt", "from before");
    Folder.Write("source/z002.txt", "new");
    const FileMap files = Files();
    EXPECT_TRUE(disk.MakeReadOnly());
    for (const WrittenFile& file : WrittenFiles()) {
      SCOPED_TRACE(file.Title);
      EXPECT_THAT(Save(file), Says(Disk() / file.Name, "Make sure that you may write there"));
    }
    EXPECT_THAT(FileErrorOf([&] { PublishNotes(LongNotes(), *System, Disk() / "Trio", {}); }),
                Says(Disk() / "Trio" / "z001.txt", "Make sure that you may write there"));
    EXPECT_THAT(FileErrorOf([&] { PublishNotes(LongNotes(), *System, Disk() / "New", {}); }),
                Says(Disk() / "New", "Make sure that you may write there"));
    EXPECT_THAT(FileErrorOf([&] {
                  CopyFolder(Folder.Path() / "source", Disk() / "Trio", *System,
                             [](int /*done*/, int /*all*/) {});
                }),
                Says(Disk() / "Trio" / "z002.txt", "Make sure that you may write there"));
    EXPECT_EQ(Files(), files);
  });
}

TEST_F(FullDisk, KeepsAllOfAFolderThatMayOnlyBeRead) {
  for (const WrittenFile& file : WrittenFiles()) Prepare(file);
  Folder.Write("disk/Trio/z002.txt", "from before");
  const FileMap files = Files();
  const std::string verdict = InAProcess([&]() -> std::string {
    if (!BecomeAnOrdinaryUser(Folder.Path())) return kCannot + std::string("the superuser has to stay that");
    for (const char* name : {"disk/Trio", "disk"}) {
      fs::permissions(Folder.Path() / name, fs::perms::owner_read | fs::perms::owner_exec);
    }
    for (const WrittenFile& file : WrittenFiles()) {
      SCOPED_TRACE(file.Title);
      EXPECT_THAT(Save(file), Says(Disk() / file.Name, "Make sure that you may write there"));
    }
    for (const char* name : {"Trio", "New"}) {
      EXPECT_THAT(FileErrorOf([&] { PublishNotes(LongNotes(), *System, Disk() / name, {}); }),
                  Says(Disk() / name, "Make sure that you may write there"));
    }
    EXPECT_EQ(Files(), files);
    fs::current_path("/");
    return Verdict();
  });
  if (verdict.starts_with(kCannot)) GTEST_SKIP() << verdict;
  EXPECT_EQ(verdict, "");
}

TEST_F(FullDisk, KeepsTheOldFileWhereFilesMayNotGrow) {
  const std::string verdict = InAProcess([this] {
    std::signal(SIGXFSZ, SIG_IGN);
    for (const WrittenFile& file : WrittenFiles()) {
      SCOPED_TRACE(file.Title);
      FileMap files = Prepare(file);
      const std::size_t step = 1 + file.New.size() / 20;
      for (std::size_t most = 0; most < file.New.size(); most += step) {
        SCOPED_TRACE(most);
        rlimit limit{};
        ::getrlimit(RLIMIT_FSIZE, &limit);
        const rlim_t old = limit.rlim_cur;
        limit.rlim_cur = most;
        ::setrlimit(RLIMIT_FSIZE, &limit);
        const std::string message = Save(file);
        limit.rlim_cur = old;
        ::setrlimit(RLIMIT_FSIZE, &limit);
        EXPECT_THAT(message, Says(Disk() / file.Name, "could not be written"));
        EXPECT_EQ(Files(), files);
      }
      EXPECT_EQ(Save(file), "");
      files[file.Name] = file.New;
      EXPECT_EQ(Files(), files);
      for (const auto& [name, bytes] : files) fs::remove(Disk() / name);
    }
    fs::current_path("/");
    return Verdict();
  });
  EXPECT_EQ(verdict, "");
  std::cout << "a limit for the size of files was used\n";
}

}  // namespace
}  // namespace tavrel::test
