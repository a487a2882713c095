// A process that saves version after version is killed at random moments. What it leaves opens and is wholly
// the last version that was saved or the one that was being saved.
//
// TAVREL_KILLS: how often a process that saves a document is killed (60 times if not given; others a fifth of
// it). TAVREL_SEED: where the random moments start, as an earlier run has printed it.

#include <algorithm>
#include <cstdlib>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iostream>
#include <memory>
#include <ostream>
#include <random>

#include "platform/system_platform.h"
#include "platform/whole_file.h"
#include "reliability/child.h"
#include "reliability/saved_versions.h"
#include "reliability/written_file.h"
#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;
using std::chrono::microseconds;

/// A number from the environment.
unsigned long Given(const char* variable, unsigned long otherwise) {
  const char* given = std::getenv(variable);
  return given == nullptr ? otherwise : std::strtoul(given, nullptr, 10);
}

struct KilledSave {
  const char* Title;
  unsigned long Share;  ///< of the kills: one in so many
  void (*Save)(int version, const fs::path& folder, Platform& platform);
  bool (*IsWhole)(int version, const fs::path& folder, Platform& platform);
};

void PrintTo(const KilledSave& save, std::ostream* out) {
  *out << save.Title;
}

const KilledSave kSaves[] = {
    {"Document", 1, SaveDocumentVersion,
     [](int version, const fs::path& folder, Platform& /*platform*/) {
       return IsDocumentVersion(version, folder / "Guide.dat");
     }},
    {"Plan", 5, SavePlanVersion,
     [](int version, const fs::path& folder, Platform& /*platform*/) {
       return IsPlanVersion(version, folder);
     }},
    {"Settings", 5, SaveSettingsVersion, AreSettingsVersion},
    {"Backup", 5, SaveBackupVersion,
     [](int version, const fs::path& folder, Platform& /*platform*/) {
       return IsDocumentVersion(kSmallVersions + version, folder / "Guide.bak");
     }},
    {"RestoredDocument", 5, SaveBackupVersion,
     [](int version, const fs::path& folder, Platform& /*platform*/) {
       return IsDocumentVersion(kSmallVersions + version, folder / "Guide.dat");
     }},
};

class KilledSaves : public testing::TestWithParam<KilledSave> {
 protected:
  /// A moment within a small save or within several large ones.
  microseconds Moment() {
    const int longest = Random() % 2 == 0 ? 15'000 : 150'000;
    return microseconds(std::uniform_int_distribution<int>(0, longest)(Random));
  }

  /// Kills a process that goes on with a version after the last; gives the version that is there now.
  int Kill(int last) {
    const int first = last + 1 + static_cast<int>(Random() % 4);
    Saved saved = SaveUntilKilled(
        first, [this](int version) { GetParam().Save(version, Folder.Path(), *System); }, Moment());
    if (saved.Begun < 0) {
      ADD_FAILURE() << "the process ended by itself";
      return last;
    }
    Saves += saved.Done + 1 - first;
    if (saved.Done < first) saved.Done = last;
    Temporaries += TemporariesIn(Folder.Path()).size();
    if (GetParam().IsWhole(saved.Done, Folder.Path(), *System)) return saved.Done;
    EXPECT_TRUE(GetParam().IsWhole(saved.Begun, Folder.Path(), *System))
        << "neither version " << saved.Done << " nor version " << saved.Begun;
    ++NotYetTold;
    return saved.Begun;
  }

  /// The next start clears what the killed process left and nothing else.
  void ExpectNothingLeft() {
    RemoveTemporaries(Folder.Path());
    for (const fs::directory_entry& entry : fs::directory_iterator(Folder.Path())) {
      const std::string name = entry.path().filename().string();
      EXPECT_FALSE(name.starts_with('.')) << name;
    }
  }

  TemporaryFolder Folder;
  std::unique_ptr<Platform> System = MakeSystemPlatform();
  unsigned long Seed = Given("TAVREL_SEED", std::random_device{}());
  std::mt19937 Random{static_cast<std::mt19937::result_type>(Seed)};
  int Saves = 0;
  int NotYetTold = 0;  ///< the new file was in place, and the process did not get to say so
  std::size_t Temporaries = 0;
};

TEST_P(KilledSaves, LeaveTheOldVersionOrTheNewOneWhole) {
  const unsigned long kills = std::max(1UL, Given("TAVREL_KILLS", 60) / GetParam().Share);
  SCOPED_TRACE("seed " + std::to_string(Seed));
  GetParam().Save(0, Folder.Path(), *System);
  int version = 0;
  for (unsigned long kill = 1; kill <= kills && !HasFailure(); ++kill) {
    SCOPED_TRACE("kill " + std::to_string(kill));
    version = Kill(version);
    ExpectNothingLeft();
  }
  std::cout << GetParam().Title << ": " << kills << " kills, seed " << Seed << ", " << Saves
            << " whole saves; a temporary file was left " << Temporaries << " times and the new file "
            << NotYetTold << " times\n";
  constexpr unsigned long kManyKills = 60;
  EXPECT_GE(Temporaries, kills / kManyKills) << "hardly a kill was between the first byte and the last";
}

INSTANTIATE_TEST_SUITE_P(Files, KilledSaves, testing::ValuesIn(kSaves),
                         [](const auto& save) { return std::string(save.param.Title); });

TEST(LeftTemporaries, AreRemovedAndNothingElse) {
  const TemporaryFolder folder;
  folder.Write(".tavrel-1.tmp", "");
  folder.Write(".tavrel-2147483646.tmp", "half a document");
  const std::map<std::string, std::string> others = {
      {"Guide.dat", "a document"},       {".tavrel-.tmp", "no digits"},
      {".tavrel-1x.tmp", "no number"},   {".tavrel-1.tmp.bak", "more"},
      {"tavrel-1.tmp", "no full stop"},  {"x.tavrel-1.tmp", "more before"},
      {".tavrel-1.TMP", "capitals"},     {".tavrel--1.tmp", "a sign"},
      {".tavrel-1.tmp2", "more behind"}, {"sub/.tavrel-1.tmp", "another folder's"}};
  for (const auto& [name, bytes] : others) folder.Write(name, bytes);
  fs::create_directory(folder.Path() / ".tavrel-2.tmp");
  fs::create_symlink("Guide.dat", folder.Path() / ".tavrel-3.tmp");
  RemoveTemporaries(folder.Path());
  EXPECT_TRUE(fs::is_directory(folder.Path() / ".tavrel-2.tmp"));
  EXPECT_TRUE(fs::is_symlink(folder.Path() / ".tavrel-3.tmp"));
  fs::remove(folder.Path() / ".tavrel-3.tmp");
  EXPECT_EQ(folder.Files(), others);
}

TEST(LeftTemporaries, OfAFolderThatIsGoneAreNoError) {
  const TemporaryFolder folder;
  EXPECT_NO_THROW(RemoveTemporaries(folder.Path() / "gone"));
}

}  // namespace
}  // namespace tavrel::test
