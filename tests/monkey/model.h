#pragma once

#include <array>
#include <filesystem>
#include <string>

#include "core/document/global.h"
#include "core/editing/literal_editing.h"
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

  /// The document's file as it has to be.
  std::string FileText() const;
  /// The same with the current page as it stands in the fields.
  std::string DraftText(const std::string& typed_page) const;
  const std::string& Document() const { return doc_; }

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

  bool IsTypedPage(const std::string& record) const;
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
  void UpdateGrid1();
  void UpdateGrid2();
  void SwapLinks(int row, int other);
  void StoreLinks(int row);
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
};

}  // namespace tavrel::test
