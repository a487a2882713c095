#pragma once

#include <QStringList>

#include <map>
#include <string>
#include <vector>

#include "support/window_test.h"

class QListWidget;

namespace tavrel::test {

using Texts = std::vector<std::string>;

inline const std::string kMeta = "<meta name=\"LineWrap\" content=\"false\">\r\n";
inline const std::string kNow = "<meta name=\"NowPlaying\" content=\"false\">\r\n";
inline const std::string kMenu = "<a href=\"\\\">Notes menu</a>\r\n";
inline const std::string kFinished = "Publish|information|Finished...    |OK";

inline const std::string kNotAvailable = "Warning|critical|Drive D: not available!  |OK";

/// Publishes documents as a person does.
class PublishTest : public WindowTest {
 protected:
  using WindowTest::WindowTest;

  /// Chooses File > Publish and plays `step` on the dialog.
  void PlayPublish(const Robot::Step& step);

  /// Publishes after clicking some of the dialog's controls. Adds nothing to the messages kept.
  void Publish(const QStringList& clicks = {});

  /// Opens a document of these lines and publishes it with both boxes off.
  void PublishPlain(const std::string& page_lines);

  /// The files of a folder below the program's folder, with their bytes.
  std::map<std::string, std::string> FilesIn(const std::string& folder) const;
  /// The bytes of one note of the folder "Doc", which PublishPlain makes.
  std::string Note(int page) const;
};

/// The whole text of the folder list's row for a folder; throws if there is none.
QString FolderRow(const QListWidget& folders, const QString& name);
void OpenFolder(QWidget& dialog, const QString& name);

/// Opens the list of drives and chooses one, with the keyboard.
void ChooseDrive(QWidget& dialog, const QString& drive);

}  // namespace tavrel::test
