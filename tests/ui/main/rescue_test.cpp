#include "support/window_test.h"

namespace tavrel::test {
namespace {

using RescueTest = WindowTest;

TEST_F(RescueTest, EverythingTypedIsStoredWhateverHasTheFocus) {
  OpenDocument("Trio.dat", kTrio);
  TypeInto(Title(), "typed title");
  TypeInto(LinkText(), "typed link");
  TypeInto(LinkTarget(), "3");
  Window().StoreTyped();
  EXPECT_EQ(
      State.Pages[1],
      "<title>typed title</title><text>one</text><link><linktext>typed link</linktext><linkto>003</linkto>"
      "</link>");
}

TEST_F(RescueTest, FieldsOfADocumentThatIsGoneAreNotStoredIntoTheNext) {
  OpenDocument("Trio.dat", kTrio);
  Folder.Write("Bad.dat", "\r\n 1001 ,<title>x</title>\r\n");
  OpenExisting("Bad.dat");
  ASSERT_EQ(Program.Failures.size(), 1U);
  Window().StoreTyped();
  EXPECT_EQ(State.Pages[1], "");
}

}  // namespace
}  // namespace tavrel::test
