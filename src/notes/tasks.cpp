#include "notes/tasks.h"

#include <algorithm>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <system_error>
#include <vector>

#include "core/check/project_check.h"
#include "core/document/document_file.h"
#include "core/ipod/note_reader.h"
#include "core/shell/program_info.h"
#include "core/text/file_names.h"
#include "core/text/numbers.h"
#include "core/text/run_time_error.h"
#include "core/text/text_files.h"
#include "notes/messages.h"

namespace tavrel::notes {
namespace {

namespace fs = std::filesystem;

/// A project, and the lines of its file that its pages stand in.
struct Project {
  fs::path File;
  DocumentLines Lines;
  Global State;
};

std::unique_ptr<Project> Read(const fs::path& file) {
  auto project = std::make_unique<Project>();
  project->File = file;
  try {
    ReadDocumentFile(file, project->State, project->Lines);
  } catch (const FileError&) {
    throw;
  } catch (const RunTimeError& error) {
    // The editor's advice behind the fault is for its own menus.
    const std::string told = error.what();
    throw TaskError(
        MessageAbout(file, project->Lines.Read,
                     told.substr(0, told.find('\n')) + " Restore its backup or repair it in a text editor."));
  }
  return project;
}

std::string FieldName(const Finding& finding) {
  switch (finding.Where) {
    case Field::Title:
      return ", title";
    case Field::Note:
      return ", note";
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

std::string Message(const Project& project, const Finding& finding) {
  if (finding.Page == 0) return MessageAbout(project.File, 0, finding.Sentence);
  return MessageAbout(project.File, project.Lines.Pages.at(static_cast<std::size_t>(finding.Page)),
                      "page " + FormatPage(finding.Page) + FieldName(finding) + ": " + finding.Sentence);
}

void Tell(const Project& project, const std::vector<Finding>& findings) {
  for (const Finding& finding : findings) std::cerr << Message(project, finding) << '\n';
}

Outcome Check(const Arguments& arguments, const Platform& platform) {
  const auto project = Read(arguments.From);
  const std::vector<Finding> findings =
      CheckProject(project->State, platform.SystemCodePage(), arguments.Options);
  Tell(*project, findings);
  return findings.empty() ? Outcome::Done : Outcome::Found;
}

/// Publishing would stop half-way at the links that it cannot write. More notes than an iPod shows are told,
/// and published.
bool CanBePublished(const Project& project, const Arguments& arguments, const Platform& platform) {
  const CodePage& code_page = platform.SystemCodePage();
  const int others = OtherNotes(project.State, arguments.To, code_page);
  const std::vector<Finding> findings = CheckPublishing(project.State, code_page, others);
  Tell(project, findings);
  return std::none_of(findings.begin(), findings.end(),
                      [](const Finding& finding) { return finding.StopsPublishing; });
}

Outcome Publish(const Arguments& arguments, Platform& platform) {
  const auto project = Read(arguments.From);
  if (!CanBePublished(*project, arguments, platform)) return Outcome::Failed;
  PublishNotes(project->State, platform, arguments.To, arguments.Options);
  return Outcome::Done;
}

/// Whether anything has this name, be it a link that leads nowhere.
bool IsThere(const fs::path& file) {
  std::error_code error;
  const fs::file_status status = fs::symlink_status(file, error);
  if (status.type() == fs::file_type::none) throw FileError(file, "could not be looked for", error);
  return fs::exists(status);
}

void RequirePlaceFor(const fs::path& file, bool overwrite, const Platform& platform) {
  if (!overwrite && IsThere(file))
    throw TaskError(MessageAbout(file, 0, "The project is there already. With --overwrite it is replaced."));
  if (platform.RefusesName(file.filename()))
    throw TaskError(MessageAbout(file, 0, "No file can have this name."));
}

/// The folder's notes, in the order in which they become pages.
std::vector<fs::path> NotesIn(const fs::path& folder, const Platform& platform) {
  if (const std::error_code error = platform.WhyNotReadable(folder))
    throw FileError(folder, "could not be read", error);
  std::vector<fs::path> notes;
  for (const FolderFile& note : ListFiles(folder, ".txt", platform.SystemCodePage()))
    notes.push_back(note.Name);
  if (notes.empty())
    throw TaskError(MessageAbout(folder, 0, "The folder holds no notes, which are files named *.txt."));
  return notes;
}

/// Whether a project's file has room for all that was imported. Says what would be lost.
bool IsAllStored(const Global& global, const fs::path& folder, const std::vector<fs::path>& notes) {
  bool is_all = true;
  const auto tell = [&](const fs::path& file, const std::string& sentence) {
    std::cerr << MessageAbout(file, 0, sentence) << '\n';
    is_all = false;
  };
  if (!global.Page(kLastRecord).empty())
    tell(folder / notes.back(), "A project stores " + std::to_string(kLastPage) +
                                    " pages, so this note would be lost. Move some of them to another "
                                    "folder and import again.");
  if (!global.MusicLink(kLastMusicLink).empty())
    tell(folder, "A project stores " + std::to_string(kLastMusicLink - 1) +
                     " music links, so a piece of music would be lost. Move some of the notes to another "
                     "folder and import again.");
  return is_all;
}

Outcome Import(const Arguments& arguments, Platform& platform) {
  RequirePlaceFor(arguments.To, arguments.Overwrite, platform);
  const std::vector<fs::path> notes = NotesIn(arguments.From, platform);
  const auto global = std::make_unique<Global>();
  ImportNotes(*global, arguments.From, notes, platform.SystemCodePage(), [](int) {});
  if (!IsAllStored(*global, arguments.From, notes)) return Outcome::Failed;
  platform.WriteWholeFile(arguments.To, DocumentText(*global));
  return Outcome::Done;
}

/// Gives the answer that was asked for.
Outcome Answer(const std::string& text) {
  std::cout << text << std::flush;
  if (!std::cout) throw std::runtime_error("The standard output could not be written.");
  return Outcome::Done;
}

}  // namespace

Outcome Do(const Arguments& arguments, Platform& platform) {
  switch (arguments.What) {
    case Arguments::Task::Help:
      return Answer(HelpText());
    case Arguments::Task::Version:
      return Answer("tavrel-notes " + VersionNumber() + "\n");
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
