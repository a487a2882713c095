#pragma once

#include <filesystem>
#include <string>

namespace tavrel::test {

/// How a recording program was started.
struct Recording {
  std::filesystem::path Program;
  std::string CommandLine;  ///< as UTF-8
  std::filesystem::path Folder;
  std::string Shown;  ///< the number of how its window was to be shown, or -1
};

/// Programs that write down how they were started are told to do so into a file, for as long as this lives.
class Recorder {
 public:
  explicit Recorder(const std::filesystem::path& file);
  ~Recorder();
  Recorder(const Recorder&) = delete;
  Recorder& operator=(const Recorder&) = delete;

  /// The program that does so. It may be copied.
  static std::filesystem::path Program();

  /// Waits for such a program to end and gives what it wrote down.
  Recording Recorded() const;

 private:
  std::filesystem::path file_;
};

}  // namespace tavrel::test
