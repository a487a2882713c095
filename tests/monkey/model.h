#pragma once

#include <array>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "core/document/global.h"
#include "core/editing/literal_editing.h"
#include "monkey/literal_history.h"
#include "monkey/record.h"
#include "monkey/screen.h"

namespace tavrel::test {

/// The editor, which has just started, by the letter of its rules: the document, and what stands in the
/// fields and grids. It is told what a person types and which command runs, and has to come to the same as
/// the program.
class Model {
 public:
  explicit Model(const std::filesystem::path& program_folder) : program_folder_(program_folder) {}

  /// Takes over what the program has come to.
  void Resynchronise(const Global& global, const Screen& screen);

  /// Compares everything. Names the first difference.
  void Compare(const Global& global, const Screen& screen) const;

  /// Takes over what leaving a field has written into the grids when the cover went over it: that depends on
  /// which window was active at that moment, and nobody sees it.
  void ObserveCovered(const Screen& screen);
  /// Takes over what a field holds after keys that only the field knows.
  void Observe(const std::string& field, const Screen& screen);
  /// Sets a field to what was typed over it.
  void Type(const std::string& field, const std::string& bytes);
  std::string Typed(const std::string& field) const;
  void LeaveField(const std::string& field);
  /// Leaves a field if that explains what the grids show: a menu can take the focus away for a moment.
  void LeaveIfLeft(const std::string& field, const Screen& screen);
  void PressEnter(const std::string& field);

  /// Runs a command of a menu, with what happened in its dialogs and messages. False if this command is not
  /// one of the model's.
  bool Run(const std::string& command, const Record& record);
  void ClickPage(int row);
  void ClickLink(int row);
  void InsertPlan(const Record& record);
  /// A panel leads to a field of a page, of its links to that one; 0: none. `shown`: the page's record as the
  /// panel had seen it.
  void LeadTo(int page, std::string field, int link, const std::string& shown);
  /// The editor goes along with the preview.
  void GoAlong(int page);

  /// Before anything that may be a command, and after it, with the place of the caret: what has changed
  /// meanwhile can be taken back.
  /// `with_redo` as for Undo.
  void BeginCommand(const LiteralPlace& place, const std::map<std::string, std::string>& with_redo);
  void EndCommand(const LiteralPlace& place);
  /// The command began at another place than it seemed.
  void MovePlace(const LiteralPlace& place);
  /// The same if a click took the focus away from where it was. Has to be told before `Focus` is forgotten.
  void LeavePlace(LiteralPlace place_left);

  /// Takes back and makes again a step of the document. Nothing if there is none.
  /// `with_redo`: what the fields would hold whose own redo had made all typing again.
  std::optional<LiteralStep> Undo(const std::map<std::string, std::string>& with_redo);
  std::optional<LiteralStep> Redo(bool has_unheld_words);
  /// What the items in the Edit menu say that do so, if the field with the focus has nothing to offer.
  std::optional<std::string> UndoCaption() const;
  std::optional<std::string> RedoCaption() const;
  const LiteralHistory& Steps() const { return steps_; }
  bool HasUndo() const { return IsTyped() || !steps_.Done.empty(); }
  bool HasRedo() const { return !IsTyped() && !steps_.Undone.empty(); }
  /// Whether the document is as it was opened.
  bool IsAsOpened() const { return *kept_ == *opened_; }

  /// The current page's record if all that is typed were stored.
  std::string TypedPage() const;

  /// The document's file as it has to be.
  std::string FileText() const;
  /// The same with the current page as it stands in the fields.
  std::string DraftText(const std::string& typed_page) const;
  const std::string& Document() const { return doc_; }

  /// Another number each time that a page is shown.
  int Showing() const { return showing_; }

  std::string Focus;
  int LinkRow = 0;  ///< the selected row of the links grid when a command begins
  bool IsShown = false;
  bool NeedsResynchronising = false;  ///< after a command that is too long to run by the letter

 private:
  struct Row {
    std::string Title;
    std::string Note;
    bool IsPage = false;
  };

  bool ShowsGrids(const Screen& screen) const;
  std::string& Page(int number) { return editor_.Pages.at(static_cast<std::size_t>(number)); }
  void SavePage();
  /// SavePage but for its last step: what leaving a field writes into a grid does not belong to the page that
  /// has just been stored.
  void StorePage();
  void FocusBody();
  void LoadPage(int page);
  void ShowPage();
  void RefreshGrid2();
  bool IsTyped() const {
    return TypedPage() != editor_.Pages.at(static_cast<std::size_t>(editor_.CurrentPage));
  }
  LiteralDocument Now() const { return {editor_.Pages, music_}; }
  void AddStep(LiteralStep step, LiteralDocument after);
  void AddUndone(const std::string& redone);
  LiteralStep TakeBack();
  bool IsRewritten() const;
  bool IsOnlyRewritten() const;
  void AddSteps(const LiteralPlace& place);
  void Amend();
  std::string RecordOfFields() const;
  std::string TypedPageWith(const std::map<std::string, std::string>& texts) const;
  void AddEdit(const std::string& record, int showing);
  int StoringsGoneBehind() const;
  void TakeOver(std::shared_ptr<const LiteralDocument> document);
  void ShowAt(const LiteralPlace& place);
  void UpdateGrid1();
  void UpdateGrid2();
  void SwapLinks(int row, int other);
  void StoreLinks(int row);
  int RowOfLink(int link) const;
  std::string RecordInPanels(int page) const;
  template <typename Command>
  void RunOnPage(Command command);

  void Clear();
  void LoadDoc();
  void ShowResult();
  void Hide();
  bool MayGoOn(const Record& record, const std::string& question) const;

  bool RunPageCommand(const std::string& command);
  bool RunLinkCommand(const std::string& command);
  bool RunFileCommand(const std::string& command, const Record& record);
  bool RunSearch(const std::string& command, const Record& record);
  bool RunBlock(const std::string& command, const Record& record);
  void New(const Record& record);
  void Open(const Record& record);
  void Import(const Record& record);
  void Find(int first_page, const Record& record);
  void Replace(const Event& pressed);
  void EditMusic(const Record& record);

  std::filesystem::path program_folder_;
  LiteralEditor editor_{CodePage::Windows1252()};
  std::array<std::string, 101> music_;
  std::string doc_;
  std::string find_text_;
  bool match_case_ = false;
  Link entry_;
  int current_link_ = 1;
  int selected_link_ = 0;
  int selected_page_ = 0;
  std::array<Row, 1000> rows_;
  bool was_shown_ = false;  ///< since the program started

  std::string untouched_;        ///< the record that the fields made when the page was shown or stored
  std::string at_first_;         ///< the record that they made when it was shown
  std::string record_at_first_;  ///< the page then
  int showing_ = 0;              ///< counts the pages shown
  LiteralHistory steps_;
  std::shared_ptr<const LiteralDocument> kept_ = std::make_shared<LiteralDocument>();  ///< as it was last
  LiteralPlace place_;     ///< when the command began
  std::string typed_;      ///< when the command began
  std::string rewritten_;  ///< what storing would have made of the page then
  /// What the fields' own redo would have made of the page then.
  std::optional<std::string> redone_;
  int showing_before_ = 0;  ///< when the command began
  std::string step_name_;   ///< of the command; empty: it is called after what it changes
  bool is_name_known_ = true;
  bool is_saved_ = false;  ///< by the command
  std::shared_ptr<const LiteralDocument> opened_ = kept_;
  bool is_history_ = false;         ///< the command steps through the history and leaves no step
  bool is_other_document_ = false;  ///< since the command
};

}  // namespace tavrel::test
