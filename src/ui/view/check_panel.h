#pragma once

#include <QWidget>

#include <memory>
#include <vector>

#include "core/check/finding.h"

namespace Ui {
class CheckPanel;
}

namespace tavrel {

class FindingModel;

/// The list of what is wrong with the project.
class CheckPanel : public QWidget {
  Q_OBJECT

 public:
  explicit CheckPanel(QWidget* parent = nullptr);
  ~CheckPanel() override;

  /// `summary` says it in one line. The finding that people stand on stays selected while it is there.
  void Show(std::vector<Finding> findings, const QString& summary);

 signals:
  void Chosen(const FieldPart& part);

 private:
  std::unique_ptr<Ui::CheckPanel> ui_;
  FindingModel* model_;
};

}  // namespace tavrel
