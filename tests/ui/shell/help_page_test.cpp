#include "ui/shell/help_page.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QTextDocumentFragment>

#include <gmock/gmock.h>

#include "core/text/run_time_error.h"
#include "support/window_test.h"
#include "ui/controls/picture_button.h"
#include "ui/shell/look.h"

namespace tavrel::test {
namespace {

using testing::ElementsAreArray;
using testing::IsSupersetOf;

QByteArray Resource(const QString& name) {
  QFile file(":/help/" + name);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
  return file.readAll();
}

/// The page as it was written, with its pictures beside it.
QString WrittenPage() {
  InitResources();
  return QString::fromUtf8(Resource("help.html"));
}

/// What a pattern's first group finds in a text, in order.
QStringList All(const QString& pattern, const QString& text) {
  QStringList found;
  for (const QRegularExpressionMatch& match : QRegularExpression(pattern).globalMatch(text))
    found += match.captured(1);
  return found;
}

/// The page's words in one line, without markup.
QString Words(const QString& html) {
  return QTextDocumentFragment::fromHtml(html).toPlainText().simplified();
}

QString Caption(const QAction& item) {
  return item.text().remove('&');
}

TEST(HelpPageTest, EveryLinkInItLeadsToAPlaceInIt) {
  const QString page = WrittenPage();
  const QStringList places = All(R"re(\sid="([^"]*)")re", page);
  const QStringList targets = All(R"re(<a href="([^"]*)")re", page);
  EXPECT_GT(targets.size(), 40);
  for (const QString& target : targets) {
    EXPECT_TRUE(target.startsWith('#') && places.contains(target.mid(1))) << target.toStdString();
  }
  EXPECT_EQ(targets.size(), page.count("<a "));
  for (const QString& heading : All(R"re(aria-labelledby="([^"]*)")re", page)) {
    EXPECT_TRUE(places.contains(heading)) << heading.toStdString();
  }
}

TEST(HelpPageTest, EveryPlaceHasItsOwnName) {
  QStringList places = All(R"re(\sid="([^"]*)")re", WrittenPage());
  EXPECT_GT(places.size(), 30);
  EXPECT_EQ(places.removeDuplicates(), 0);
  EXPECT_FALSE(places.contains(""));
}

TEST(HelpPageTest, EveryHeadingOfAChapterStandsInTheContents) {
  const QString page = WrittenPage();
  const QString contents = page.section("<nav", 1).section("</nav>", 0, 0);
  const QStringList listed = All(R"re(href="#([^"]*)")re", contents);
  const QStringList chapters = All(R"re(<h2 id="([^"]*)")re", page);
  EXPECT_GT(chapters.size(), 5);
  for (const QString& chapter : chapters) EXPECT_TRUE(listed.contains(chapter)) << chapter.toStdString();
}

TEST(HelpPageTest, ThePicturesThatItNamesAreThoseThatTheProgramCarries) {
  QStringList named = All(R"re(<img src="help/([^"]*)")re", WrittenPage());
  EXPECT_EQ(named.size(), WrittenPage().count("<img"));
  named.sort();
  QStringList carried = QDir(":/help").entryList(QDir::Files, QDir::Name);
  carried.removeOne("help.html");
  carried.sort();
  named.removeDuplicates();
  EXPECT_EQ(named.join(' '), carried.join(' '));
  EXPECT_GT(carried.size(), 10);
}

TEST(HelpPageTest, EveryPictureIsDescribedForThoseWhoDoNotSeeIt) {
  const QStringList pictures = All("(<img [^>]*>)", WrittenPage());
  EXPECT_FALSE(pictures.empty());
  for (const QString& picture : pictures) {
    EXPECT_TRUE(QRegularExpression(R"re( alt="[^"]{10,}")re").match(picture).hasMatch())
        << picture.toStdString();
  }
}

TEST(HelpPageTest, TheInstalledPageIsOneFileWithThePicturesInside) {
  const QString written = WrittenPage();
  const QString page = QString::fromStdString(HelpPage());
  const QStringList names = All(R"re(<img src="help/([^"]*)")re", written);
  const QStringList inside = All(R"re(<img src="data:image/png;base64,([^"]*)")re", page);
  ASSERT_EQ(inside.size(), names.size());
  for (qsizetype i = 0; i < inside.size(); ++i) {
    const QByteArray picture =
        QByteArray::fromBase64(inside[i].toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
    EXPECT_EQ(picture, Resource(names[i])) << names[i].toStdString();
    EXPECT_FALSE(QImage::fromData(picture, "PNG").isNull()) << names[i].toStdString();
  }
  EXPECT_FALSE(page.contains("help/"));
  EXPECT_EQ(Words(page), Words(written));
}

TEST(HelpPageTest, ItNeedsNothingFromTheNetwork) {
  const QString page = WrittenPage();
  for (const char* loading :
       {"<link", "<script", "<iframe", "@import", "url(", "http:", "https:", "src=\"//"}) {
    EXPECT_FALSE(page.contains(loading, Qt::CaseInsensitive)) << loading;
  }
}

TEST(HelpPageTest, ItTellsWhatTheDeviceDoesWithNotes) {
  const QString page = WrittenPage();
  const QString chapter = Words("<h2" + page.section("<h2 id=\"ipod\"", 1).section("</section>", 0, 0));
  for (const char* fact : {"4,096 bytes", "markup", "without a word", "1,000 notes", "titles", "Latin-1",
                           "curly quotes", "dashes", "euro sign"}) {
    EXPECT_TRUE(chapter.contains(fact, Qt::CaseInsensitive)) << fact;
  }
}

TEST(InstallHelpPageTest, PutsThePageIntoAFolderWithoutOne) {
  const TemporaryFolder folder;
  FakePlatform system;
  InstallHelpPage(folder.Path(), system);
  EXPECT_EQ(folder.Files(), (std::map<std::string, std::string>{{"help.html", HelpPage()}}));
}

TEST(InstallHelpPageTest, LeavesAPageThatIsThere) {
  for (const char* old : {"", "the user's own"}) {
    const TemporaryFolder folder;
    FakePlatform system;
    folder.Write("help.html", old);
    InstallHelpPage(folder.Path(), system);
    EXPECT_EQ(folder.Read("help.html"), old);
  }
}

TEST(InstallHelpPageTest, RenewsThePageOfAnotherVersionButNoOther) {
  const TemporaryFolder folder;
  FakePlatform system;
  folder.Write("help.html", "<!DOCTYPE html><!-- Tavrel Writer 0.9.9 -->\nold");
  InstallHelpPage(folder.Path(), system);
  EXPECT_EQ(folder.Read("help.html"), HelpPage());
  EXPECT_TRUE(HelpPage().starts_with("<!DOCTYPE html><!-- Tavrel Writer 1.2.1 -->\n"));

  for (const char* own : {"<!DOCTYPE html>\nmy own", "", "Tavrel Writer 0.9.9"}) {
    folder.Write("help.html", own);
    InstallHelpPage(folder.Path(), system);
    EXPECT_EQ(folder.Read("help.html"), own);
  }
}

TEST(InstallHelpPageTest, LeavesNothingHalfWritten) {
  const TemporaryFolder folder;
  FakePlatform system;
  system.Files.FailAt(FailingFiles::Operation::Write, 1, std::errc::no_space_on_device);
  InstallHelpPage(folder.Path(), system);
  EXPECT_TRUE(folder.Files().empty());
}

/// Compares the page with the real main window.
class HelpAndWindowTest : public WindowTest {
 protected:
  /// The items of a menu and of the menus in it.
  static std::vector<QAction*> ItemsOf(const QList<QAction*>& actions) {
    std::vector<QAction*> items;
    for (QAction* action : actions) {
      if (action->isSeparator()) continue;
      items.push_back(action);
      if (action->menu() == nullptr) continue;
      for (QAction* item : ItemsOf(action->menu()->actions())) items.push_back(item);
    }
    return items;
  }

  std::vector<QAction*> Items() { return ItemsOf(Window().menuBar()->actions()); }

  /// The rows of the page's table of shortcuts.
  static QStringList ShortcutRows() {
    const QString chapter = WrittenPage().section("<h2 id=\"keys\"", 1).section("</table>", 0, 0);
    return All("(<tr>.*</tr>)", chapter.section("<tbody>", 1).simplified().replace("</tr>", "</tr>\n"));
  }
};

TEST_F(HelpAndWindowTest, EveryCommandOfTheMenusIsMentioned) {
  const QString words = Words(WrittenPage());
  EXPECT_GT(Items().size(), 45U);
  for (const QAction* item : Items()) {
    const QRegularExpression caption("\\b" + QRegularExpression::escape(Caption(*item)) + "\\b");
    EXPECT_TRUE(caption.match(words).hasMatch()) << Caption(*item).toStdString();
  }
}

TEST_F(HelpAndWindowTest, EveryButtonOfTheToolbarIsInItsTable) {
  const QString chapter = WrittenPage().section("<h2 id=\"toolbar\"", 1).section("</section>", 0, 0);
  std::vector<std::string> explained;
  for (const QString& row : All(R"re(<tr><th scope="row">([^<]*)</th>)re", chapter))
    explained.push_back(row.toStdString());
  std::vector<std::string> tips;
  for (const PictureButton* button : Window().findChildren<PictureButton*>())
    tips.push_back(button->toolTip().toStdString());
  EXPECT_EQ(tips.size(), 17U);
  EXPECT_THAT(explained, ElementsAreArray(tips));
}

TEST_F(HelpAndWindowTest, EveryShortcutStandsInTheTableWithItsCommand) {
  const QStringList rows = ShortcutRows();
  int shortcuts = 0;
  for (const QAction* item : Items()) {
    if (item->shortcut().isEmpty()) continue;
    ++shortcuts;
    const QString keys = "<kbd>" + item->shortcut().toString(QKeySequence::PortableText) + "</kbd>";
    const QStringList row = rows.filter(keys);
    ASSERT_EQ(row.size(), 1) << keys.toStdString();
    EXPECT_TRUE(Words("<table>" + row[0] + "</table>").contains(Caption(*item), Qt::CaseInsensitive))
        << keys.toStdString() << " is not " << Caption(*item).toStdString();
  }
  EXPECT_GT(shortcuts, 10);
}

TEST_F(HelpAndWindowTest, TheTableHasNoShortcutThatTheMenusDoNotHave) {
  std::vector<std::string> shortcuts;
  for (const QAction* item : Items()) {
    for (const QKeySequence& keys : item->shortcuts()) shortcuts.push_back(keys.toString().toStdString());
  }
  std::vector<std::string> listed;
  for (const QString& keys : All("<kbd>([^<]*)</kbd>", ShortcutRows().join('\n')))
    listed.push_back(keys.toStdString());
  EXPECT_GT(listed.size(), 10U);
  EXPECT_THAT(shortcuts, IsSupersetOf(listed));
}

}  // namespace
}  // namespace tavrel::test
