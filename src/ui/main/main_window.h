#pragma once

#include <QMainWindow>

#include <memory>
#include <optional>
#include <string>

#include "core/document/page_record.h"
#include "ui/app.h"
#include "ui/controls/last_focus.h"
#include "ui/main/editor.h"

class QTimer;

namespace Ui {
class Main;
}

namespace tavrel {

class Commands;
class FieldNotices;
class HoverOutline;
class CommandSteps;
class PageEditor;
class PageGrids;
class SkinPictures;
class ViewPanels;

/// The program's editor window.
class Main : public QMainWindow, public Editor {
  Q_OBJECT

 public:
  explicit Main(App& app);
  ~Main() override;

  void LoadDoc() override;
  void LoadPage(int page) override;
  void SavePage() override;
  void ClearGrid1() override;
  void ClearGrid2() override;
  void UpdateGrid1() override;
  void UpdateGrid2() override;
  void RefreshGrid2() override;
  QWidget* ControlWithFocus() const override;
  Place At() const override;
  std::size_t Showing() const override { return showing_; }
  Shown Now() const override;
  std::optional<std::string> TypedWithRedo() override;
  QWidget* FieldWithUnheldWords() const override;
  QWidget* FieldWithRedo() const override;
  void ShowAt(const Place& place) override;
  void ShowPage(int page) override;
  void ShowPart(const FieldPart& part) override;
  std::string PageToStore() const override;
  void RefreshMusicLinks() override;
  void ShowControls() override;
  void HideControls() override;
  void ShowDocumentName() override;
  void ResetCaption() override;

  /// Brings everything typed in the fields into the current page's record, whatever has the focus.
  void StoreTyped();

  /// The current page's record as it would be if all that is typed were stored now. An untouched page keeps
  /// its record as it is.
  std::string TypedPage() const;

  /// Says on the cover what was brought back at the start.
  void TellRecovered(const QString& notice);
  /// Says in the status bar that the draft could not be kept, and no longer if the reason is empty.
  void TellNotKept(const QString& reason);

 public slots:
  /// Start-up: settings, skins and the state without a document. Throws RunTimeError.
  void Form_Load();
  void Form_QueryUnload();

  void MSFlexGrid1_Click(int row);
  void MSFlexGrid2_Click(int row);
  void Text3_KeyPress();
  void Text3_LostFocus();
  void Text4_KeyPress();
  void Text4_LostFocus();
  void Text5_KeyPress();
  void Text5_LostFocus();
  void Combo1_KeyPress();
  void Combo1_LostFocus();
  void Timer1_Timer();

 signals:
  /// The window was closed by its frame; the program ends with it.
  void Closed();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void ConnectFields();
  void MoveFocusToBody();
  void NameSeparators();
  void SelectHere(FieldPart part);
  /// The fields and the links grid, without the link that is being typed.
  PageFields StoredFields() const;
  /// The record that the fields give with it.
  std::string RecordOfFields() const;

  App& app_;
  std::unique_ptr<Ui::Main> ui_;
  std::unique_ptr<PageGrids> grids_;
  std::unique_ptr<PageEditor> page_;
  std::unique_ptr<SkinPictures> skins_;
  std::unique_ptr<FieldNotices> notices_;
  std::unique_ptr<Commands> commands_;
  std::unique_ptr<HoverOutline> outline_;
  std::unique_ptr<CommandSteps> steps_;
  std::unique_ptr<ViewPanels> panels_;
  LastFocus last_focus_;
  QTimer* timer1_;
  std::string first_record_;  ///< what the fields gave when the page was shown
  Record loaded_record_;      ///< the page then
  std::string shown_record_;  ///< what they gave when it was shown or stored
  std::size_t showing_ = 0;   ///< counts the pages shown
};

}  // namespace tavrel
