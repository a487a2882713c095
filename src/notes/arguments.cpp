#include "notes/arguments.h"

#include <algorithm>

#include "core/text/run_time_error.h"

namespace tavrel::notes {
namespace {

namespace fs = std::filesystem;

bool IsOption(const fs::path& word) {
  return word.native().size() > 1 && word.native().front() == '-';
}

/// Takes an option into the arguments; false if the task does not know it.
bool TakeOption(const std::string& option, Arguments& arguments) {
  const Arguments::Task task = arguments.What;
  const bool is_published = task == Arguments::Task::Publish || task == Arguments::Task::Check;
  if (option == "--notes-menu-link" && is_published) {
    arguments.Options.NotesMenuLink = true;
  } else if (option == "--no-background-music" && is_published) {
    arguments.Options.BackgroundMusic = false;
  } else if (option == "--overwrite" && task == Arguments::Task::Import) {
    arguments.Overwrite = true;
  } else {
    return false;
  }
  return true;
}

Arguments::Task TaskNamed(const std::string& name) {
  if (name == "--help" || name == "-h") return Arguments::Task::Help;
  if (name == "--version") return Arguments::Task::Version;
  if (name == "publish") return Arguments::Task::Publish;
  if (name == "import") return Arguments::Task::Import;
  if (name == "check") return Arguments::Task::Check;
  throw UsageError("There is no command \"" + name + "\".");
}

std::size_t FilesOf(Arguments::Task task) {
  switch (task) {
    case Arguments::Task::Publish:
    case Arguments::Task::Import:
      return 2;
    case Arguments::Task::Check:
      return 1;
    default:
      return 0;
  }
}

}  // namespace

Arguments ReadArguments(const std::vector<fs::path>& words) {
  if (words.empty()) throw UsageError("Say what to do.");
  Arguments arguments;
  arguments.What = TaskNamed(PathText(words.front()));
  std::vector<fs::path> files;
  bool are_options_over = false;
  for (auto word = words.begin() + 1; word != words.end(); ++word) {
    if (are_options_over || !IsOption(*word)) {
      files.push_back(*word);
    } else if (*word == "--") {
      are_options_over = true;
    } else if (!TakeOption(PathText(*word), arguments)) {
      throw UsageError("The option \"" + PathText(*word) + "\" does not belong here.");
    }
  }
  if (files.size() != FilesOf(arguments.What))
    throw UsageError(files.size() < FilesOf(arguments.What) ? "Something is missing." : "That is too much.");
  if (std::any_of(files.begin(), files.end(), [](const fs::path& file) { return file.empty(); }))
    throw UsageError("A name is empty.");
  if (!files.empty()) arguments.From = files.front();
  if (files.size() > 1) arguments.To = files.back();
  return arguments;
}

std::string HelpText() {
  return "Publishes, imports and checks projects of Tavrel Writer.\n"
         "\n"
         "  tavrel-notes publish [--notes-menu-link] [--no-background-music] DOCUMENT FOLDER\n"
         "      Writes the project's pages as notes into the folder, which is made if need be.\n"
         "  tavrel-notes import [--overwrite] FOLDER DOCUMENT\n"
         "      Makes a project out of the folder's text files.\n"
         "  tavrel-notes check [--notes-menu-link] [--no-background-music] DOCUMENT\n"
         "      Tells what would go wrong on the iPod.\n"
         "  tavrel-notes --help | --version\n"
         "\n"
         "  --notes-menu-link      end every note with a link back to the Notes menu\n"
         "  --no-background-music  leave the note for the Now Playing screen when music is chosen\n"
         "  --overwrite            replace the project if there is one already\n"
         "\n"
         "The exit status is 0 if all went well, 1 if check has found something, 2 if it could not be "
         "done.\n";
}

}  // namespace tavrel::notes
