#pragma once

#include <QWidget>

#include <memory>

#include "core/document/global.h"
#include "core/preview/pod_browser.h"

namespace Ui {
class PreviewPanel;
}

namespace tavrel {

/// Shows the page in the editor as the device would.
class PreviewPanel : public QWidget {
  Q_OBJECT

 public:
  explicit PreviewPanel(QWidget* parent = nullptr);
  ~PreviewPanel() override;

  /// Shows this document from now on, and its current page if that, or its note, is new.
  void Show(const Global& document);
  /// There is no document.
  void ShowNothing();

  /// The device as a whole across, with a scroll bar beside it.
  QSize sizeHint() const override;

  /// What is chosen as in the Publish window.
  PublishOptions Options() const;

 signals:
  void OptionsChanged();
  /// People followed a link to a page and want the editor to follow.
  void PageChosen(int page);

 private:
  void ChangeScreen();
  void ChangeOptions();
  void TellFollowed(const Followed& followed);
  void TellCut();
  void Tell(const QString& notice);

  std::unique_ptr<Ui::PreviewPanel> ui_;
  Global document_;
  int edited_page_ = 0;  ///< 0: none yet
};

}  // namespace tavrel
