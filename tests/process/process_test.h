#pragma once

#include <QStringList>

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

#include "support/temporary_folder.h"

namespace tavrel::test {

inline constexpr int kPatience = 60'000;  ///< milliseconds for a program to end

/// Runs the program as a process, with a user inside it who plays commands. Its folder is in a home of its
/// own, or, where the system does not let the environment say where documents are, beside a portable copy of
/// it.
class ProcessTest : public testing::Test {
 protected:
  void SetUp() override;

  /// Runs the program to its end while its user plays the commands.
  void Run(const QStringList& commands);
  void Run(const QStringList& commands, const QString& program);

  bool Says(const std::string& text) const { return output_.find(text) != std::string::npos; }

  /// Where a document's folder is made at the first start.
  const std::filesystem::path documents_ = std::filesystem::path("home") / "Documents" / "Tavrel Writer";
  std::filesystem::path folder_ = documents_;  ///< the program's folder
  TemporaryFolder home_;
  int status_ = -1;
  std::string output_;  ///< with "\n" at its lines' ends
};

/// A portable copy's settings: twenty lines.
extern const char* const kPortableSettings;

}  // namespace tavrel::test
