#pragma once

#include <QString>
#include <QStringList>

#include <gtest/gtest.h>
#include <string>

#include "support/temporary_folder.h"

namespace tavrel::test {

/// Two linked pages; page 2 stands in line 4.
extern const std::string kTwoPages;

/// The companion for the command line, run in a folder as people and scripts run it.
class NotesProgram : public testing::Test {
 protected:
  void SetUp() override { folder_.Write("Tour.dat", kTwoPages); }

  /// Runs the program to its end. Its standard output goes to a file if one is named.
  void Run(const QStringList& words, const QString& output = {});

  /// Writes a project of these pages, from line 2 on, and checks it.
  void Check(const std::string& pages);

  /// The program could not do what it was asked, and said so in one line.
  void ExpectRefusal(const std::string& line) const;
  /// The same with a line that begins like this.
  void ExpectRefusalBeginning(const std::string& beginning) const;

  TemporaryFolder folder_;
  int status_ = -1;
  std::string said_;  ///< on the standard output
  std::string told_;  ///< on the standard error
};

}  // namespace tavrel::test
