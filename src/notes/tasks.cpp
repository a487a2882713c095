#include "notes/tasks.h"

#include <iostream>
#include <memory>
#include <vector>

#include "core/check/project_check.h"
#include "core/document/document_file.h"
#include "core/ipod/note_reader.h"
#include "core/shell/program_info.h"
#include "core/text/file_names.h"
#include "core/text/numbers.h"
#include "core/text/run_time_error.h"
#include "core/text/text_files.h"

namespace tavrel::notes {
namespace {

namespace fs = std::filesystem;

/// A project, and the lines of its file that its pages stand in.
struct Project {
  fs::path File;
  Global State;
  DocumentLines Lines;
};

/// "FILE:LINE: " as other programs write it, so that editors find the place.
std::string PlaceOf(const fs::path& file, int line) {
  return PathText(file) + ":" + (line > 0 ? std::to_string(line) + ":" : "") + " ";
}

std::unique_ptr<Project> Read(const fs::path& file) {
  auto project = std::make_unique<Project>();
  project->File = file;
  const std::string text = ReadWholeFile(file);
  project->Lines = LinesOf(text);
  try {
    ReadDocumentText(text, project->State);
  } catch (const RunTimeError& error) {
    throw RunTimeError(PlaceOf(file, project->Lines.Damaged) + error.what());
  }
  return project;
}

std::string FieldName(const Finding& finding) {
  switch (finding.Where) {
    case Field::Title:
      return ", title";
    case Field::Text:
      return ", text";
    case Field::LinkText:
      return ", words of link " + std::to_string(finding.Link);
    case Field::LinkTarget:
      return ", target of link " + std::to_string(finding.Link);
    case Field::MusicText:
      return ", music text";
    case Field::MusicLink:
      return ", music link";
    default:
      return "";
  }
}

void Tell(const Project& project, const Finding& finding) {
  const auto page = static_cast<std::size_t>(finding.Page);
  std::cerr << PlaceOf(project.File, project.Lines.Pages.at(page));
  if (finding.Page > 0) std::cerr << "page " << FormatPage(finding.Page) << FieldName(finding) << ": ";
  std::cerr << finding.Sentence << '\n';
}

Outcome Check(const Arguments& arguments, const Platform& platform) {
  const auto project = Read(arguments.From);
  const std::vector<Finding> findings =
      CheckProject(project->State, platform.SystemCodePage(), arguments.Options);
  for (const Finding& finding : findings) Tell(*project, finding);
  return findings.empty() ? Outcome::Done : Outcome::Found;
}

/// Publishing would stop half-way at the links that it cannot write.
bool CanBePublished(const Project& project, const Arguments& arguments, const Platform& platform) {
  bool can_be = true;
  for (const Finding& finding : CheckProject(project.State, platform.SystemCodePage(), arguments.Options)) {
    if (!finding.StopsPublishing) continue;
    Tell(project, finding);
    can_be = false;
  }
  return can_be;
}

Outcome Publish(const Arguments& arguments, Platform& platform) {
  const auto project = Read(arguments.From);
  if (!CanBePublished(*project, arguments, platform)) return Outcome::Failed;
  PublishNotes(project->State, platform, fs::absolute(arguments.To), arguments.Options);
  return Outcome::Done;
}

Outcome Import(const Arguments& arguments, Platform& platform) {
  const fs::path folder = fs::absolute(arguments.From);
  const fs::path file = fs::absolute(arguments.To);
  if (!arguments.Overwrite && fs::exists(fs::symlink_status(file))) {
    std::cerr << PlaceOf(file, 0) << "The project is there already. With --overwrite it is replaced.\n";
    return Outcome::Failed;
  }
  if (platform.RefusesName(file.filename())) {
    std::cerr << PlaceOf(file, 0) << "No file can have this name.\n";
    return Outcome::Failed;
  }
  if (!fs::is_directory(folder)) {
    std::cerr << PlaceOf(folder, 0) << "This is not a folder.\n";
    return Outcome::Failed;
  }
  std::vector<fs::path> notes;
  for (const FolderFile& note : ListFiles(folder, ".txt", platform.SystemCodePage()))
    notes.push_back(note.Name);
  const auto global = std::make_unique<Global>();
  ImportNotes(*global, folder, notes, platform.SystemCodePage(), [](int) {});
  platform.WriteWholeFile(file, DocumentText(*global));
  return Outcome::Done;
}

}  // namespace

Outcome Do(const Arguments& arguments, Platform& platform) {
  switch (arguments.What) {
    case Arguments::Task::Help:
      std::cout << HelpText();
      return Outcome::Done;
    case Arguments::Task::Version:
      std::cout << "tavrel-notes " << VersionNumber() << '\n';
      return Outcome::Done;
    case Arguments::Task::Publish:
      return Publish(arguments, platform);
    case Arguments::Task::Import:
      return Import(arguments, platform);
    case Arguments::Task::Check:
      return Check(arguments, platform);
  }
  return Outcome::Failed;
}

}  // namespace tavrel::notes
