#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <ostream>
#include <string>
#include <system_error>

#include "core/text/run_time_error.h"
#include "platform/windows_error.h"

namespace tavrel::test {
namespace {

namespace fs = std::filesystem;
using testing::EndsWith;
using testing::StartsWith;

constexpr const char* kRights = "Make sure that you may write there, or choose another folder.";
constexpr const char* kRoom = "Make room on the disk or choose another one.";
constexpr const char* kGone = "Look whether the file or its folder was moved or renamed.";
constexpr const char* kShorter = "Choose a shorter name.";
constexpr const char* kOther = "Choose another name.";
constexpr const char* kStart = "C:\\Guide.dat\ncould not be written: ";

std::string MessageOf(int code) {
  return FileError("C:\\Guide.dat", "could not be written", {code, std::system_category()}).what();
}

/// A system error and what to do about it.
struct KnownError {
  int Code;
  const char* NextStep;
};

std::ostream& operator<<(std::ostream& out, const KnownError& error) {
  return out << error.Code;
}

class WindowsErrorTest : public testing::TestWithParam<KnownError> {};

TEST_P(WindowsErrorTest, IsToldWithItsNextStep) {
  const std::string text = MessageOf(GetParam().Code);
  EXPECT_THAT(text, StartsWith(kStart));
  EXPECT_THAT(text, EndsWith(std::string(".\n") + GetParam().NextStep));
}

INSTANTIATE_TEST_SUITE_P(
    OfTheSystem, WindowsErrorTest,
    testing::Values(KnownError{ERROR_ACCESS_DENIED, kRights}, KnownError{ERROR_WRITE_PROTECT, kRights},
                    KnownError{ERROR_DISK_FULL, kRoom}, KnownError{ERROR_HANDLE_DISK_FULL, kRoom},
                    KnownError{ERROR_FILE_NOT_FOUND, kGone}, KnownError{ERROR_PATH_NOT_FOUND, kGone},
                    KnownError{ERROR_FILENAME_EXCED_RANGE, kShorter},
                    KnownError{ERROR_INVALID_PARAMETER, kOther}));

TEST(WindowsErrors, EveryOneIsToldInThreeLinesOfPlainLetters) {
  for (int code = 1; code < 2000; ++code) {
    const std::string text = MessageOf(code);
    EXPECT_THAT(text, StartsWith(kStart));
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 2) << text;
    EXPECT_EQ(text.back(), '.') << text;
    EXPECT_TRUE(std::all_of(text.begin(), text.end(), [](char c) {
      return c == '\n' || (c >= ' ' && c <= '~');
    })) << text;
  }
}

TEST(WindowsErrors, OnesThatOnlyTheSystemKnowsHaveAReason) {
  for (const int code : {ERROR_SHARING_VIOLATION, ERROR_NOT_READY, ERROR_INVALID_NAME, ERROR_CRC,
                         ERROR_GEN_FAILURE, ERROR_DEVICE_NOT_CONNECTED, ERROR_NO_MEDIA_IN_DRIVE}) {
    const std::string text = MessageOf(code);
    const std::string reason = text.substr(std::string(kStart).size());
    EXPECT_GT(reason.find('.'), 5U) << text;
  }
}

TEST(WindowsErrors, TheLastOneIsTheSystems) {
  ::SetLastError(ERROR_WRITE_PROTECT);
  EXPECT_EQ(LastSystemError(), std::error_code(ERROR_WRITE_PROTECT, std::system_category()));
}

TEST(WindowsErrors, APathIsShownAsUtf8) {
  EXPECT_EQ(PathText(L"C:\\caf\u00E9\\\u65E5\u672C.dat"), "C:\\caf\xC3\xA9\\\xE6\x97\xA5\xE6\x9C\xAC.dat");
  EXPECT_EQ(PathText(L"\U0001F600.dat"), "\xF0\x9F\x98\x80.dat");
}

TEST(WindowsErrors, APathWithHalfACharacterIsShownAllTheSame) {
  EXPECT_EQ(PathText(std::wstring(L"a") + wchar_t{0xD800} + L"z.dat"), "a?z.dat");
  EXPECT_EQ(PathText(std::wstring(L"a") + wchar_t{0xDC00}), "a?");
  EXPECT_EQ(PathText(std::wstring(1, wchar_t{0xD83D})), "?");
}

}  // namespace
}  // namespace tavrel::test
