#include <QCoreApplication>
#include <QLabel>
#include <QRegularExpression>
#include <QStatusBar>
#include <QTranslator>

#include <gmock/gmock.h>

#include "core/shell/messages.h"
#include "core/shell/program_info.h"
#include "ui/walk/visible_texts.h"
#include "ui/walk/walk_test.h"

namespace tavrel::test {
namespace {

using testing::IsEmpty;

/// A language in which every text stands in brackets.
class Brackets : public QTranslator {
 public:
  Brackets() { QCoreApplication::installTranslator(this); }
  ~Brackets() override { QCoreApplication::removeTranslator(this); }
  Brackets(const Brackets&) = delete;
  Brackets& operator=(const Brackets&) = delete;

  bool isEmpty() const override { return false; }
  QString translate(const char* /*context*/, const char* source, const char* /*disambiguation*/,
                    int /*number*/) const override {
    return "[" + QString::fromUtf8(source) + "]";
  }
};

/// What is the same in every language: the name of the program and of the project, numbers, addresses.
bool IsTheSameInEveryLanguage(const QString& text) {
  static const QRegularExpression kNumber("^[0-9]+$");
  const QStringList names = {kProgramName, "City walk", QString("City walk - ") + kProgramName, kHomePage};
  return names.contains(text) || kNumber.match(text).hasMatch();
}

Faults Untranslated(const QWidget& window) {
  Faults faults;
  for (const VisibleText& text : VisibleTexts(window)) {
    const bool translated = text.Text.contains('[') && text.Text.contains(']');
    if (!translated && !IsTheSameInEveryLanguage(text.Text))
      faults.push_back(text.Where + ": " + text.Text.toStdString());
  }
  return faults;
}

class TranslationWalkTest : public EachWindowTest {
 private:
  // Before the window is made.
  Brackets language_;
};

TEST_P(TranslationWalkTest, AllTextIsTranslated) {
  Visit(GetParam(), [](QWidget& window) {
    EXPECT_GT(VisibleTexts(window).size(), 2U);
    EXPECT_THAT(Untranslated(window), IsEmpty());
  });
}

INSTANTIATE_TEST_SUITE_P(Windows, TranslationWalkTest, testing::ValuesIn(kWindows), NameOfPlace);

class MessageTranslationTest : public WalkTest {
 protected:
  void ExpectTranslated(const Message& message) {
    SCOPED_TRACE(message.Text);
    VisitMessage(message, [](QWidget& window) { EXPECT_THAT(Untranslated(window), IsEmpty()); });
  }

 private:
  Brackets language_;
};

TEST_F(MessageTranslationTest, EveryMessageIsTranslated) {
  using namespace messages;
  for (const Message& message :
       {FileExists(), NewErasesDocument(), OpenErasesDocument(), CloseDoesNotSave(), ExitLosesChanges(),
        NothingToClose(), NothingToSave(), NothingToPublish(), ProjectSaved(), NotFound(),
        ImportErasesDocument(), ImportFinished(12), DeleteFolderQuestion("/notes/Walk"), DeleteFolderFailed(),
        PlanOverwritesPages(2), PublishFinished(), DriveNotAvailable("E:"), SystemInfoUnavailable(),
        CannotOpen("help.html")}) {
    ExpectTranslated(message);
  }
}

TEST_F(MessageTranslationTest, WhatIsFilledInStaysAsItIs) {
  VisitMessage(messages::PlanOverwritesPages(2), [](QWidget& window) {
    EXPECT_EQ(Find<QLabel>(window, "qt_msgbox_label").text(), "[Overwrite pages 2 to 27?    ]");
  });
}

TEST_F(MessageTranslationTest, NoticesAboutTypedTextAreTranslated) {
  OpenDocument("City walk.dat", kTrio);
  TypeInto(Title(), "</title>");
  EXPECT_EQ(Find<QLabel>(Window(), "TagNotice").text(),
            "[[A page] cannot keep what follows \"</title>\" in this field.]");
  TypeInto(Title(), u"\u4E2D"_qs);
  EXPECT_EQ(Find<QStatusBar>(Window(), "StatusBar").currentMessage(),
            "[A character that an iPod note cannot hold became \"?\".]");
}

}  // namespace
}  // namespace tavrel::test
