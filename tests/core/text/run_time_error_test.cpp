#include "core/text/run_time_error.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

namespace tavrel::test {
namespace {

using testing::AllOf;
using testing::HasSubstr;

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
