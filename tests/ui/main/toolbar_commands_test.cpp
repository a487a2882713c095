#include <QAction>
#include <QApplication>
#include <QClipboard>

#include <map>

#include "ui/main/toolbar_test.h"

namespace tavrel::test {
namespace {

using Outcome = std::map<std::string, std::string>;

const std::string_view kWalk =
    "\r\n"
    " 1 ,<title>A</title><text>one</text><link><linktext>a</linktext><linkto>002</linkto></link>\r\n"
    " 2 ,<title>B</title><note>n</note><text>two words</text><link><linktext>b</linktext><linkto>001</linkto>"
    "<linktext>c</linktext><linkto>002</linkto><linktext>d</linktext><linkto>003</linkto></link>\r\n"
    " 3 ,<title>C</title><text>three</text>\r\n";

/// A run of the program in which one command is chosen in the midst of work.
class Session : public WindowTest {
 public:
  enum class By { Menu, Button };

  explicit Session(bool typing) {
    OpenDocument("Walk.dat", kWalk);
    ClickRow(PagesGrid(), 3);
    Find<QAction>(Window(), "EditCopyPage").trigger();
    ClickRow(PagesGrid(), 2);
    Body().Select(4, 5);
    ClickRow(LinksGrid(), 2);
    if (typing) TypeInto(LinkText(), "typed");
    QApplication::clipboard()->setText("pasted");
  }

  Outcome Run(const ToolBarButton& button, By way) {
    Outcome outcome;
    if (button.Dialog != nullptr) {
      Player.Expect(button.Dialog, [&outcome](QWidget& dialog) {
        outcome["dialog"] = dialog.objectName().toStdString() + ": " + dialog.windowTitle().toStdString();
        dialog.close();
      });
    }
    if (way == By::Menu) {
      Choose(button.MenuItem);
    } else {
      Click(Window(), button.Name);
      ActivateWindow(Window());
    }
    Describe(outcome);
    return outcome;
  }

 private:
  void TestBody() override {}

  void Describe(Outcome& outcome) {
    const QWidget* focus = Window().focusWidget();
    outcome["focus"] = focus == nullptr ? "nowhere" : focus->objectName().toStdString();
    outcome["caption"] = Window().windowTitle().toStdString();
    outcome["clipboard"] = QApplication::clipboard()->text().toStdString();
    outcome["page clipboard"] = State.PageClipboard;
    outcome["current"] = std::to_string(State.CurrentPage) + "/" + std::to_string(State.CurrentLink);
    outcome["fields"] =
        Title().Bytes() + "|" + Body().Bytes() + "|" + LinkText().Bytes() + "|" + LinkTarget().Bytes();
    for (const std::string& message : Seen(Messages.Shown)) outcome["messages"] += message + "\n";
    for (int row = 1; row <= 4; ++row) {
      outcome["links"] += LinksGrid().TextMatrix(row, 0) + "=" + LinksGrid().TextMatrix(row, 1) + "\n";
      outcome["pages"] += PagesGrid().TextMatrix(row, 1) + "\n" + State.Page(row) + "\n";
    }
    outcome["file"] = State.IsDocumentOpen() ? Save() : "closed";
  }
};

class ToolBarCommandTest : public testing::TestWithParam<ToolBarButton> {
 protected:
  static Outcome Of(Session::By way, bool typing) { return Session(typing).Run(GetParam(), way); }
};

TEST_P(ToolBarCommandTest, DoesWhatItsMenuItemDoes) {
  EXPECT_EQ(Of(Session::By::Button, false), Of(Session::By::Menu, false));
}

TEST_P(ToolBarCommandTest, DoesWhatItsMenuItemDoesWhileALinkIsBeingTyped) {
  const Outcome by_button = Of(Session::By::Button, true);
  EXPECT_EQ(by_button, Of(Session::By::Menu, true));
}

INSTANTIATE_TEST_SUITE_P(Buttons, ToolBarCommandTest, testing::ValuesIn(kToolBar),
                         [](const auto& button) { return std::string(button.param.Name); });

TEST(ToolBarCommandsTest, NoTwoCommandsDoTheSameButCutAndDelete) {
  std::map<Outcome, std::string> seen;
  for (const ToolBarButton& button : kToolBar) {
    const auto [found, is_new] =
        seen.try_emplace(Session(false).Run(button, Session::By::Button), button.Tip);
    EXPECT_TRUE(is_new || found->second == "Cut page") << button.Tip << " does the same as " << found->second;
  }
  EXPECT_EQ(seen.size(), 16U);
}

TEST_F(ToolBarTest, CutPageAndDeletePageTakeThePageOutAndPutItOnThePageClipboard) {
  for (const char* name : {"Image8", "Image15"}) {
    SCOPED_TRACE(name);
    State.PageClipboard.clear();
    OpenDocument("Guide.dat", kGuide);
    ClickRow(PagesGrid(), 2);
    Click(Window(), name);
    EXPECT_EQ(State.PageClipboard,
              "<title>Two</title><text>Beta</text><link><linktext>One</linktext><linkto>001</linkto></link>");
    EXPECT_EQ(Save(),
              "\r\n 1 ,<title>One</title><note>n1</note><text>Alpha</text><link><linktext>Two</linktext>"
              "<linkto>001</linkto><linktext>Five</linktext><linkto>004</linkto></link>\r\n"
              " 4 ,<title>Five</title><text>Gamma</text><link><linktext>Last</linktext><linkto>998</linkto>"
              "</link>\r\n 998 ,<title>Last</title><text>Omega</text>\r\n");
  }
}

}  // namespace
}  // namespace tavrel::test
