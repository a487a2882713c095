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

 private:
  void Restart();
  void GoOn();
  void ShowCount();

  App& app_;
  std::unique_ptr<Ui::FindAllPanel> ui_;
  HitModel* model_;
  QTimer* timer_;
  Global document_;
  std::unique_ptr<FindAll> search_;
  int top_ = 0;                       ///< the first row in view then, if the document has changed
  std::optional<FieldPart> current_;  ///< where people stood before the search began again
};

}  // namespace tavrel
