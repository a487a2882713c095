#pragma once

#include <QWidget>

#include <memory>
#include <optional>

#include "core/document/global.h"
#include "core/editing/find_all.h"
#include "ui/app.h"

class QTimer;

namespace Ui {
class FindAllPanel;
}

namespace tavrel {

class HitModel;

/// Finds a text in every field of all pages, while it is being typed.
class FindAllPanel : public QWidget {
  Q_OBJECT

 public:
  FindAllPanel(App& app, QWidget* parent = nullptr);
  ~FindAllPanel() override;

  /// Searches this document from now on; the hit that people stand on stays selected while it is there.
  void Show(const Global& document);
  /// Selects what is searched for, so that it can be typed over.
  void FocusOnText();

 signals:
  void Chosen(const FieldPart& part);
  /// Characters of what is searched for became "?".
  void CharactersReplaced(int count);

 private:
  /// Searches for what has been typed now.
  void Renew();
  void Restart();
  void GoOn();
  void ComeIntoView();
  void ShowCount();

  App& app_;
  std::unique_ptr<Ui::FindAllPanel> ui_;
  HitModel* model_;
  QTimer* timer_;
  Global document_;
  std::unique_ptr<FindAll> search_;
  bool is_new_text_ = false;          ///< people wait for the first hits
  int top_ = 0;                       ///< the first row in view, once the hits are there
  bool is_in_view_ = false;           ///< they are, or as many as can be seen
  std::optional<FieldPart> current_;  ///< where people stood before the search began again
};

}  // namespace tavrel
