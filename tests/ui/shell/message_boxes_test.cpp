#include <QAbstractButton>
#include <QCoreApplication>
#include <QLabel>
#include <QMessageBox>
#include <QTranslator>

#include <map>
#include <vector>

#include "support/window_test.h"

namespace tavrel::test {
namespace {

/// The boxes that people see, answered by clicks and keys.
class MessageBoxesTest : public WindowTest {
 protected:
  using Step = std::function<void(QMessageBox& box)>;

  bool Show(const Message& message, const Step& step) {
    Player.Expect("MessageBox", [&](QWidget& window) { step(dynamic_cast<QMessageBox&>(window)); });
    return boxes_.Show(&Window(), message);
  }

  static void Press(const QMessageBox& box, QMessageBox::StandardButton button) {
    Click(*box.button(button));
  }

  MessageBoxes boxes_;
};

const Message kQuestion = {
    "Closing the document does not save it,    \r\nso any changes will be lost. Continue?    ",
    Buttons::OkCancel, Icon::Question, "Tavrel Writer"};
const Message kRefusal = {"Nothing to save!    ", Buttons::Ok, Icon::Exclamation, "Oops!"};

TEST_F(MessageBoxesTest, AQuestionShowsItsLinesWithTheirBlanksAndTwoButtons) {
  EXPECT_TRUE(Show(kQuestion, [this](QMessageBox& box) {
    EXPECT_EQ(box.text(),
              "Closing the document does not save it,    \nso any changes will be lost. Continue?    ");
    EXPECT_EQ(box.windowTitle(), "Tavrel Writer");
    EXPECT_EQ(box.icon(), QMessageBox::Question);
    EXPECT_EQ(box.standardButtons(), QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_EQ(box.parentWidget(), &Window());
    Press(box, QMessageBox::Ok);
  }));
}

TEST_F(MessageBoxesTest, AMessageHasOneButton) {
  EXPECT_TRUE(Show(kRefusal, [](QMessageBox& box) {
    EXPECT_EQ(box.text(), "Nothing to save!    ");
    EXPECT_EQ(box.windowTitle(), "Oops!");
    EXPECT_EQ(box.icon(), QMessageBox::Warning);
    EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
    Press(box, QMessageBox::Ok);
  }));
}

TEST_F(MessageBoxesTest, EveryIconIsShown) {
  const std::vector<std::pair<Icon, QMessageBox::Icon>> icons = {
      {Icon::None, QMessageBox::NoIcon},
      {Icon::Information, QMessageBox::Information},
      {Icon::Question, QMessageBox::Question},
      {Icon::Exclamation, QMessageBox::Warning},
      {Icon::Critical, QMessageBox::Critical}};
  for (const auto& pair : icons) {
    Show({"Text", Buttons::Ok, pair.first, "Title"}, [&](QMessageBox& box) {
      EXPECT_EQ(box.icon(), pair.second);
      Press(box, QMessageBox::Ok);
    });
  }
}

TEST_F(MessageBoxesTest, MarkupIsShownAsItIs) {
  Show({"<b>a</b> &amp; b  ", Buttons::Ok, Icon::None, "Title"}, [](QMessageBox& box) {
    const auto& label = Find<QLabel>(box, "qt_msgbox_label");
    EXPECT_EQ(label.text(), "<b>a</b> &amp; b  ");
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
    Press(box, QMessageBox::Ok);
  });
}

TEST_F(MessageBoxesTest, LettersOutsidePlainAsciiAreShown) {
  Show({"Caf\u00e9", Buttons::Ok, Icon::None, "Title"}, [](QMessageBox& box) {
    EXPECT_EQ(box.text(), QString::fromUtf8("Caf\u00e9"));
    Press(box, QMessageBox::Ok);
  });
}

TEST_F(MessageBoxesTest, CancelEscAndTheFrameAnswerNo) {
  EXPECT_FALSE(Show(kQuestion, [](QMessageBox& box) { Press(box, QMessageBox::Cancel); }));
  EXPECT_FALSE(Show(kQuestion, [](QMessageBox& box) { PressKey(box, Qt::Key_Escape); }));
  EXPECT_FALSE(Show(kQuestion, [](QMessageBox& box) { box.close(); }));
}

TEST_F(MessageBoxesTest, EnterAnswersOk) {
  for (const Message& message : {kQuestion, kRefusal}) {
    EXPECT_TRUE(Show(message, [](QMessageBox& box) { PressKey(box, Qt::Key_Return); }));
  }
}

TEST_F(MessageBoxesTest, AMessageIsDismissedByEscAndTheFrame) {
  EXPECT_TRUE(Show(kRefusal, [](QMessageBox& box) { PressKey(box, Qt::Key_Escape); }));
  EXPECT_TRUE(Show(kRefusal, [](QMessageBox& box) { box.close(); }));
}

TEST_F(MessageBoxesTest, TheMainWindowShowsThem) {
  App app{State, System, boxes_, Program};
  Main window(app);
  window.show();
  QString text;
  Player.Expect("MessageBox", [&](QWidget& box) {
    text = dynamic_cast<QMessageBox&>(box).text();
    EXPECT_EQ(box.parentWidget(), &window);
    PressKey(box, Qt::Key_Return);
  });
  ChooseMenu(window, "FileClose");
  EXPECT_EQ(text, "Nothing to close!    ");
}

using Translations = std::map<QByteArray, QString>;

/// Knows some of the program's messages in another language, while it lives.
class Translation : public QTranslator {
 public:
  explicit Translation(Translations words) : words_(std::move(words)) {
    QCoreApplication::installTranslator(this);
  }
  ~Translation() override { QCoreApplication::removeTranslator(this); }

  bool isEmpty() const override { return false; }
  QString translate(const char* context, const char* text, const char* /*note*/,
                    int /*count*/) const override {
    if (QByteArray(context) != "Messages") return {};
    const auto found = words_.find(text);
    return found == words_.end() ? QString() : found->second;
  }

 private:
  Translations words_;
};

class TranslatedBoxesTest : public MessageBoxesTest {
 protected:
  /// The text and the title that a person sees.
  QString TextAndTitle(const Message& message) {
    QString seen;
    Show(message, [&](QMessageBox& box) {
      seen = box.text() + "|" + box.windowTitle();
      Press(box, QMessageBox::Ok);
    });
    return seen;
  }
};

TEST_F(TranslatedBoxesTest, TextAndTitleAreTranslated) {
  const Translation german(Translations{{"Nothing to save!    ", "Nichts zu sichern!"},
                                        {"Oops!", QString::fromUtf8("Hoppla \u00FC")}});
  EXPECT_EQ(TextAndTitle(kRefusal), QString::fromUtf8("Nichts zu sichern!|Hoppla \u00FC"));
  EXPECT_EQ(TextAndTitle(messages::ProjectSaved()), "Project saved...    |Tavrel Writer");
}

TEST_F(TranslatedBoxesTest, ATextIsTranslatedWithItsLineEndsAndBlanks) {
  const Translation german(Translations{
      {"Closing the document does not save it,    \r\nso any changes will be lost. Continue?    ",
       "A\r\nB"}});
  EXPECT_EQ(TextAndTitle(kQuestion), "A\nB|Tavrel Writer");
}

TEST_F(TranslatedBoxesTest, WhatIsFilledInStandsInTheTranslation) {
  const Translation german(Translations{{"Overwrite pages%1 to%2?    ", "Bis%2, von%1?"},
                                        {"Drive %1 not available!  ", "Laufwerk %1 fehlt"}});
  EXPECT_EQ(TextAndTitle(messages::PlanOverwritesPages(2)), "Bis 27, von 2?|Save");
  EXPECT_EQ(TextAndTitle(messages::DriveNotAvailable("D:")), "Laufwerk D: fehlt|Warning");
}

TEST_F(TranslatedBoxesTest, ANameWithAPercentSignStaysAsItIs) {
  EXPECT_EQ(TextAndTitle(messages::DeleteFolderQuestion("/%1/%2/100%")),
            "Are you sure you want to delete...\n/%1/%2/100%|Please confirm");
  const Translation german(Translations{{"Are you sure you want to delete...\r\n%1", "%1 entfernen?"}});
  EXPECT_EQ(TextAndTitle(messages::DeleteFolderQuestion("/%1/%2/100%")),
            "/%1/%2/100% entfernen?|Please confirm");
}

TEST_F(TranslatedBoxesTest, WhatIsFilledInIsNotTranslated) {
  const Translation german(Translations{{"Oops!", "Hoppla!"}});
  EXPECT_EQ(TextAndTitle(messages::DriveNotAvailable("Oops!")), "Drive Oops! not available!  |Warning");
}

}  // namespace
}  // namespace tavrel::test
