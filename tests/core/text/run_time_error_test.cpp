#include "core/text/run_time_error.h"

#include <cerrno>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <system_error>

namespace tavrel::test {
namespace {

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

std::string ErrorText(std::errc code) {
  return FileError("folder/Guide.dat", "could not be written", std::make_error_code(code)).what();
}

TEST(FileError, NamesTheFileTheAttemptAndTheReason) {
  EXPECT_THAT(ErrorText(std::errc::io_error),
              AllOf(HasSubstr("Guide.dat"), HasSubstr("could not be written"),
                    HasSubstr(std::make_error_code(std::errc::io_error).message())));
}

TEST(FileError, GivesANextStepThatSuitsTheReason) {
  const auto next_step = [](std::errc code) {
    const std::string text = ErrorText(code);
    return text.substr(text.rfind('\n') + 1);
  };
  const std::string usual = next_step(std::errc::io_error);
  EXPECT_NE(usual, "");
  EXPECT_NE(next_step(std::errc::no_space_on_device), usual);
  EXPECT_NE(next_step(std::errc::no_such_file_or_directory), usual);
  EXPECT_NE(next_step(std::errc::is_a_directory), usual);
  EXPECT_NE(next_step(std::errc::permission_denied), usual);
  EXPECT_EQ(next_step(std::errc::permission_denied), next_step(std::errc::read_only_file_system));
}

struct StepFor {
  std::error_code Error;
  const char* NextStep;
};

class FileErrorStepTest : public testing::TestWithParam<StepFor> {};

TEST_P(FileErrorStepTest, SaysWhatToDoAboutIt) {
  const std::string text = FileError("Guide.dat", "could not be written", GetParam().Error).what();
  EXPECT_THAT(text, AllOf(StartsWith("Guide.dat\ncould not be written: "),
                          EndsWith(std::string(".\n") + GetParam().NextStep)));
}

std::error_code Error(std::errc code) {
  return std::make_error_code(code);
}

constexpr const char* kRoom = "Make room on the disk or choose another one.";
constexpr const char* kRights = "Make sure that you may write there, or choose another folder.";
constexpr const char* kBusy = "Another program is using it. Close that program and try again.";
constexpr const char* kOtherName = "Choose another name.";
constexpr const char* kTryAgain = "Check the disk and try again.";

INSTANTIATE_TEST_SUITE_P(
    Reasons, FileErrorStepTest,
    testing::Values(StepFor{Error(std::errc::no_space_on_device), kRoom},
                    StepFor{Error(std::errc::permission_denied), kRights},
                    StepFor{Error(std::errc::operation_not_permitted), kRights},
                    StepFor{Error(std::errc::read_only_file_system), kRights},
                    StepFor{Error(std::errc::no_such_file_or_directory),
                            "Look whether the file or its folder was moved or renamed."},
                    StepFor{Error(std::errc::is_a_directory),
                            "A folder has that name. Rename it or choose another name."},
                    StepFor{Error(std::errc::not_a_directory),
                            "A file stands where a folder should be. Rename it or choose another folder."},
                    StepFor{Error(std::errc::file_exists),
                            "Something of that name is there already. Rename one of the two and try again."},
                    StepFor{Error(std::errc::too_many_symbolic_link_levels),
                            "Links lead in a circle there. Remove them or choose another name."},
                    StepFor{Error(std::errc::operation_not_supported),
                            "That name or place takes no ordinary file. Choose another one."},
                    StepFor{Error(std::errc::file_too_large),
                            "Choose another disk: this one takes no file of that size."},
                    StepFor{Error(std::errc::device_or_resource_busy), kBusy},
                    StepFor{Error(std::errc::text_file_busy), kBusy},
                    StepFor{Error(std::errc::too_many_files_open), "Close other programs and try again."},
                    StepFor{Error(std::errc::filename_too_long), "Choose a shorter name."},
                    StepFor{Error(std::errc::invalid_argument), kOtherName},
                    StepFor{Error(std::errc::illegal_byte_sequence), kOtherName},
                    StepFor{Error(std::errc::io_error), kTryAgain},
                    StepFor{Error(std::errc::no_such_device), kTryAgain}));

#ifdef EDQUOT
INSTANTIATE_TEST_SUITE_P(Quota, FileErrorStepTest,
                         testing::Values(StepFor{{EDQUOT, std::generic_category()}, kRoom}));
#endif

TEST(FileError, IsARunTimeError) {
  EXPECT_THROW(throw FileError("x", "could not be read", std::make_error_code(std::errc::io_error)),
               RunTimeError);
}

TEST(PathText, IsUtf8) {
  EXPECT_EQ(PathText(U"Caf\u00E9/\u4E2D.dat"), "Caf\xC3\xA9/\xE4\xB8\xAD.dat");
}

#ifndef _WIN32
TEST(PathText, SurvivesAPathThatIsNotText) {
  EXPECT_EQ(PathText("caf\xE9/x.dat"), "caf?/x.dat");
}
#endif

}  // namespace
}  // namespace tavrel::test
