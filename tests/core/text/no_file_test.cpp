#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "core/text/run_time_error.h"
#include "core/text/text_files.h"
#include "support/temporary_folder.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::ThrowsMessage;

TEST(ReadWholeFile, DoesNotWaitForAPipe) {
  const TemporaryFolder folder;
  const fs::path pipe = folder.Path() / "Guide.dat";
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_THAT([&] { ReadWholeFile(pipe); }, ThrowsMessage<FileError>(HasSubstr("Guide.dat")));
}

TEST(ReadWholeFile, DoesNotReadADeviceThatNeverEnds) {
  const TemporaryFolder folder;
  fs::create_symlink("/dev/zero", folder.Path() / "Guide.dat");
  EXPECT_THAT([&] { ReadWholeFile(folder.Path() / "Guide.dat"); },
              ThrowsMessage<FileError>(HasSubstr("Guide.dat")));
}

}  // namespace
}  // namespace tavrel::test
