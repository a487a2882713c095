#pragma once

#include <QObject>

#include <memory>

#include "ui/app.h"

class QWidget;

namespace tavrel {

class BlockClear;
class BlockCopy;
class BlockDelete;
class BlockInsert;
class Editor;

/// The commands of the Edit menu on a range of pages.
class BlockCommands : public QObject {
  Q_OBJECT

 public:
  BlockCommands(App& app, Editor& editor, QWidget* window);
  ~BlockCommands() override;

 public slots:
  void EditBlockCopy_Click();
  void EditBlockClear_Click();
  void EditBlockDelete_Click();
  void EditBlockInsert_Click();

 private:
  void OpenPage(int page);
  void ShowChange();

  App& app_;
  Editor& editor_;
  QWidget* window_;
  // Made at their first use and kept with the numbers last typed.
  std::unique_ptr<BlockCopy> block_copy_;
  std::unique_ptr<BlockClear> block_clear_;
};

}  // namespace tavrel
