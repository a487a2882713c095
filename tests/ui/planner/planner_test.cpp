#include "ui/planner/planner_test.h"

#include <QLabel>
#include <QListWidget>
#include <QTest>

#include "ui/controls/tick_box.h"

namespace tavrel::test {
namespace {

constexpr int kCells = 25;

}  // namespace

void PlannerTest::StartPlanning(std::string_view document) {
  OpenDocument("Guide.dat", document);
  OpenPlanner();
}

void PlannerTest::OpenPlanner() {
  Choose("EditProjectPlanner");
  ASSERT_TRUE(PlannerWindow().isVisible());
  ActivateWindow(PlannerWindow());
}

void PlannerTest::TypeTop(const QString& number) {
  TypeInto(PlannerWindow(), "Text2", number);
}

void PlannerTest::TypeCell(int cell, const QString& text) {
  TypeInto(PlannerWindow(), Element("Text1", cell), text);
}

void PlannerTest::ClickTicks(int cell, const QStringList& arrays) {
  for (const QString& array : arrays) Click(PlannerWindow(), Element(array, cell));
}

std::string PlannerTest::CellText(int cell) {
  return Find<BodyField>(PlannerWindow(), Element("Text1", cell)).Bytes();
}

std::vector<int> PlannerTest::Ticks(int cell) {
  std::vector<int> values;
  for (const char* array : {kWest, kEast, kSouth, kNorth})
    values.push_back(Find<TickBox>(PlannerWindow(), Element(array, cell)).Value());
  return values;
}

bool PlannerTest::IsGridEmpty() {
  for (int cell = 0; cell < kCells; ++cell) {
    if (!CellText(cell).empty() || Ticks(cell) != std::vector<int>{0, 0, 0, 0}) return false;
  }
  return true;
}

void PlannerTest::Insert() {
  Click(PlannerWindow(), "Command1");
  EXPECT_FALSE(PlannerWindow().isVisible());
  ActivateWindow(Window());
}

void PlannerTest::ExpectRefused() {
  const auto pages = State.Pages;
  const std::size_t messages = Messages.Shown.size();
  Insert();
  EXPECT_EQ(Messages.Shown.size(), messages);
  EXPECT_TRUE(State.Pages == pages);
}

QStringList PlannerTest::Labels() {
  QStringList labels;
  for (int cell = 0; cell < kCells; ++cell)
    labels << Find<QLabel>(PlannerWindow(), Element("Label6", cell)).text();
  return labels;
}

void PlannerTest::WaitForLabels(const QString& first, const QString& last) {
  constexpr int kPatience = 10000;
  EXPECT_TRUE(QTest::qWaitFor([&] { return Labels().first() == first; }, kPatience));
  const int number = first.toInt();
  QStringList expected;
  for (int cell = 0; cell < kCells; ++cell) expected << QString::number(number + cell).rightJustified(3, '0');
  EXPECT_EQ(Labels(), expected);
  EXPECT_EQ(Labels().last(), last);
}

void PlannerTest::Play(const QString& button, const QString& dialog, const Robot::Step& step) {
  Player.Expect(dialog, step);
  Click(PlannerWindow(), button);
  EXPECT_EQ(Player.StepsLeft(), 0) << dialog.toStdString() << " did not open";
  if (PlannerWindow().isVisible()) ActivateWindow(PlannerWindow());
}

void PlannerTest::SavePlanAs(const QString& name) {
  Play("Command5", "SavePlanner", [&](QWidget& dialog) {
    TypeInto(dialog, "Text1", name);
    Click(dialog, "Command1");
    EXPECT_FALSE(dialog.isVisible());
  });
}

void PlannerTest::LoadPlanNamed(const QString& name) {
  Play("Command4", "LoadPlanner", [&](QWidget& dialog) {
    ClickListRow(PlanList(dialog), name);
    Click(dialog, "Command1");
    EXPECT_FALSE(dialog.isVisible());
  });
}

QString Element(const QString& array, int index) {
  return QString("%1_%2").arg(array).arg(index);
}

QListWidget& PlanList(const QWidget& dialog) {
  return Find<QListWidget>(dialog, "List1");
}

QStringList PlanRows(const QWidget& dialog) {
  QStringList rows;
  for (int row = 0; row < PlanList(dialog).count(); ++row) rows << PlanList(dialog).item(row)->text();
  return rows;
}

std::string PlanBytes(const std::string& top, const std::string& text, const Texts& ticks) {
  std::string bytes = top + "\r\nNorth\r\nSouth\r\nEast\r\nWest\r\n" + text + "\r\n";
  for (const std::string& tick : ticks) bytes += tick + "\r\n";
  for (int cell = 1; cell < kCells; ++cell) bytes += "\r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n";
  return bytes;
}

}  // namespace tavrel::test
