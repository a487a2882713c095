#include "ui/document/document_test.h"

#include <QLabel>
#include <QMenu>
#include <QTest>

#include <algorithm>
#include <chrono>
#include <ctime>

namespace tavrel::test {

namespace fs = std::filesystem;

void DocumentTest::Play(const QString& menu_item, const QString& dialog, const Robot::Step& step) {
  Player.Expect(dialog, step);
  Choose(menu_item);
}

void DocumentTest::CreateDocument(const QString& name, const QStringList& boxes) {
  Play("FileNew", "NewDoc", [&](QWidget& dialog) {
    for (const QString& box : boxes) Click(dialog, box);
    TypeInto(dialog, "Text1", name);
    Click(dialog, "Command1");
  });
}

void DocumentTest::SaveAs(const QString& name) {
  Play("FileSaveAs", "SaveAs", [&](QWidget& dialog) {
    TypeInto(dialog, "Text1", name);
    Click(dialog, "Command1");
  });
}

void DocumentTest::Reopen() {
  const fs::path name = State.DocPath;
  OpenExisting(name.string());
  ASSERT_EQ(State.DocPath, name);
}

void DocumentTest::ExpectNoDocument() {
  EXPECT_TRUE(State.DocPath.empty());
  EXPECT_TRUE(Find<QWidget>(Window(), "Picture1").isVisible());
  EXPECT_FALSE(Find<QMenu>(Window(), "EditMenu").menuAction()->isEnabled());
  EXPECT_EQ(Window().windowTitle(), "Tavrel Writer");
}

void DocumentTest::ExpectDocument(const std::string& name) {
  EXPECT_EQ(State.DocPath, name + ".dat");
  EXPECT_EQ(Find<QLabel>(Window(), "Label7").text(), QString::fromStdString(name));
  EXPECT_FALSE(Find<QWidget>(Window(), "Picture1").isVisible());
  EXPECT_TRUE(Find<QMenu>(Window(), "EditMenu").menuAction()->isEnabled());
}

bool DocumentTest::IsMemoryEmpty() const {
  const auto is_empty = [](const std::string& record) { return record.empty(); };
  return std::all_of(State.Pages.begin() + 1, State.Pages.begin() + 1000, is_empty) &&
         std::all_of(State.MusicLinks.begin() + 1, State.MusicLinks.end(), is_empty);
}

Texts DocumentTest::MessageTexts() const {
  Texts texts;
  for (const Message& message : Messages.Shown) texts.push_back(message.Text);
  return texts;
}

void DocumentTest::DateFile(const fs::path& name) const {
  std::tm noon{};
  noon.tm_mday = 3;
  noon.tm_mon = 2;
  noon.tm_year = 106;
  noon.tm_hour = 12;
  noon.tm_isdst = -1;
  const auto time = std::chrono::system_clock::from_time_t(std::mktime(&noon));
  fs::last_write_time(Folder.Path() / name, std::chrono::file_clock::from_sys(time));
}

void ClickRowAt(QListWidget& list, int row) {
  QListWidgetItem* item = list.item(row);
  ASSERT_NE(item, nullptr);
  list.scrollToItem(item);
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(item).center());
}

QStringList Rows(const QListWidget& list) {
  QStringList rows;
  for (int row = 0; row < list.count(); ++row) rows << list.item(row)->text();
  return rows;
}

}  // namespace tavrel::test
