#include <QMenu>
#include <QMenuBar>
#include <QTest>

#include "support/user.h"
#include "tour/tour.h"
#include "ui/controls/grid.h"

namespace tavrel::test {

void Tour::AddMusic() {
  robot_.Expect("MusicEditor", [this](QWidget& dialog) {
    TypeInto(dialog, "Text1_1", "Water Music");
    TypeInto(dialog, "Text1_3", "Handel\n");
    ClickRow(Find<Grid>(dialog, "MSFlexGrid2"), 2);
    TypeInto(dialog, "Text1_6", "Evening walk\n");
    TakePicture(dialog, "music-editor");
    Click(dialog, "Command1");
  });
  Choose("EditMusic");
  ShowPage(3);
  TypeInto(*window_, "Text6", "Listen while you look");
  TypeInto(*window_, "Combo2", "M1");
}

void Tour::InsertAPage() {
  ShowPage(4);
  Choose("EditInsert");
  WritePage(4, "Mill Lane", "Between the fountain and the river",
            "Mind the steps: there are 42 of them down to <the cafe>.");
  WriteLink(1, "The caf\u00E9", "5");
  ShowPage(3);
  TakePicture(*window_, "renumbered");
}

void Tour::ClearAndUndo() {
  Choose("EditClear");
  QMenuBar& bar = *window_->menuBar();
  auto& menu = Find<QMenu>(*window_, "EditMenu");
  QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.actionGeometry(menu.menuAction()).center());
  TakePicture(menu, "undo");
  menu.close();
  Choose("EditUndo");
  TakePicture(*window_, "undone");
}

void Tour::FindAndReplace() {
  robot_.Expect("ReplaceForm", [this](QWidget& dialog) {
    TypeInto(dialog, "Text1", "the cafe");
    TypeInto(dialog, "Text2", "the caf\u00E9");
    TakePicture(dialog, "replace");
    Click(dialog, "Command1");
  });
  Choose("EditReplace");
  robot_.Expect("FindForm", [this](QWidget& dialog) {
    TypeInto(dialog, "Text1", "42");
    TakePicture(dialog, "find");
    Click(dialog, "Command1");
  });
  Choose("EditSearch");
  TakePicture(*window_, "found");
}

void Tour::LookThroughThePanels() {
  constexpr int kRoomForPreview = 400;
  const QSize size = window_->size();
  window_->resize(size + QSize(kRoomForPreview, 0));
  ShowPage(4);
  Choose("ViewPreview");
  TakePicture(*window_, "preview");
  auto& device = Find<QWidget>(*window_, "Device");
  QTest::keyClick(&device, Qt::Key_Escape);
  TakePicture(*window_, "notes-menu");
  Choose("ViewPreview");
  window_->resize(size);
  Choose("ViewCheck");
  TakePicture(*window_, "check");
  Choose("ViewFindAll");
  TypeInto(*window_, "FindWhat", "caf\u00E9");
  TakePicture(*window_, "find-all");
  Choose("ViewFindAll");
  Choose("ViewCheck");
  window_->resize(size);
}

void Tour::MoveBlocks() {
  FillIn("BlockCopy", "EditBlockCopy", {"2", "4", "20"}, "block-copy");
  FillIn("BlockClear", "EditBlockClear", {"21", "22"}, "block-clear");
  FillIn("BlockInsert", "EditBlockInsert", {"6", "10"}, "block-insert");
  FillIn("BlockDelete", "EditBlockDelete", {"6", "998"}, "block-delete");
  ShowPage(1);
}

void Tour::FillIn(const QString& dialog, const QString& menu_item, const QStringList& numbers,
                  const QString& picture) {
  robot_.Expect(dialog, [this, numbers, picture](QWidget& window) {
    for (int box = 0; box < numbers.size(); ++box) {
      TypeInto(window, QString("Text%1").arg(box + 1), numbers[box]);
    }
    TakePicture(window, picture);
    Click(window, "Command2");
  });
  Choose(menu_item);
}

}  // namespace tavrel::test
