#include "ui/editing/search_commands.h"

#include "core/editing/search.h"
#include "core/shell/messages.h"
#include "core/text/run_time_error.h"
#include "ui/controls/body_field.h"
#include "ui/controls/hourglass.h"
#include "ui/controls/message_box.h"
#include "ui/editing/find_form.h"
#include "ui/editing/replace_form.h"
#include "ui/main/editor.h"

namespace tavrel {

SearchCommands::SearchCommands(App& app, Editor& editor, BodyField& body, QWidget* window)
    : app_(app), editor_(editor), body_(body), window_(window) {}

SearchCommands::~SearchCommands() = default;

void SearchCommands::EditSearch_Click() {
  Finder().Ask();
  if (Finder().IsCancelled()) return;
  editor_.SavePage();
  ShowMatch(1);
}

void SearchCommands::EditFindNext_Click() {
  if (app_.State.FindText.empty()) return;
  editor_.SavePage();
  ShowMatch(app_.State.CurrentPage + 2);
}

void SearchCommands::EditReplace_Click() {
  ReplaceForm& form = Replacer();
  form.Ask();
  if (form.IsCancelled()) return;
  const Hourglass hourglass;
  editor_.SavePage();
  const int pages = ReplaceInPages(app_.State, app_.State.FindText, form.ReplacementText(),
                                   form.IsCaseMatched(), app_.CodePageInUse());
  const QString name = pages == 1 ? tr("Replace in 1 page") : tr("Replace in %1 pages").arg(pages);
  if (pages > 0) app_.Steps.Name(name.toStdString());
  editor_.LoadPage(app_.State.CurrentPage);
}

FindForm& SearchCommands::Finder() {
  if (!find_form_) find_form_ = std::make_unique<FindForm>(app_, window_);
  return *find_form_;
}

ReplaceForm& SearchCommands::Replacer() {
  if (!replace_form_) replace_form_ = std::make_unique<ReplaceForm>(app_, window_);
  return *replace_form_;
}

void SearchCommands::ShowMatch(int first_page) {
  const std::string& wanted = app_.State.FindText;
  const std::optional<Match> match =
      FindInPages(app_.State, wanted, first_page, Finder().IsCaseMatched(), app_.CodePageInUse());
  if (!match) {
    app_.Messages.Show(window_, messages::NotFound());
    return;
  }
  if (match->Page > kLastPage)
    throw RunTimeError(PathText(DocumentFile(app_.State)) +
                       "\nThe text was found on page 1000, which cannot be shown.\n"
                       "Save the project and open it again.");
  app_.State.CurrentPage = static_cast<std::int16_t>(match->Page);
  editor_.LoadPage(match->Page);
  body_.Select(match->Position, wanted.size());
}

}  // namespace tavrel
