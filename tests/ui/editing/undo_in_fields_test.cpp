#include <functional>

#include "ui/editing/undo_test.h"

namespace tavrel::test {
namespace {

/// A field of the main window.
struct FieldCase {
  const char* Name;
  const char* Typed;
  const char* Before;  ///< what page 2 shows there
  const char* Page2;   ///< the record of page 2 once the typing is stored
};

constexpr FieldCase kFields[] = {
    {"Text1", "typed", "Beta words",
     "<title>Two</title><note>n2</note><text>typed</text><link><linktext>a</linktext><linkto>001</linkto>"
     "<linktext>b</linktext><linkto>003</linkto><linktext>c</linktext><linkto>005</linkto></link>"
     "<music>Play</music><music>M1</music>"},
    {"Text3", "typed", "Two",
     "<title>typed</title><note>n2</note><text>Beta words</text><link><linktext>a</linktext>"
     "<linkto>001</linkto><linktext>b</linktext><linkto>003</linkto><linktext>c</linktext>"
     "<linkto>005</linkto></link><music>Play</music><music>M1</music>"},
    {"Text4", "typed", "n2",
     "<title>Two</title><note>typed</note><text>Beta words</text><link><linktext>a</linktext>"
     "<linkto>001</linkto><linktext>b</linktext><linkto>003</linkto><linktext>c</linktext>"
     "<linkto>005</linkto></link><music>Play</music><music>M1</music>"},
    {"Text5", "typed", "a",
     "<title>Two</title><note>n2</note><text>Beta words</text><link><linktext>typed</linktext>"
     "<linkto>001</linkto><linktext>b</linktext><linkto>003</linkto><linktext>c</linktext>"
     "<linkto>005</linkto></link><music>Play</music><music>M1</music>"},
    {"Combo1", "5", "001",
     "<title>Two</title><note>n2</note><text>Beta words</text><link><linktext>a</linktext>"
     "<linkto>005</linkto><linktext>b</linktext><linkto>003</linkto><linktext>c</linktext>"
     "<linkto>005</linkto></link><music>Play</music><music>M1</music>"},
    {"Text6", "typed", "Play",
     "<title>Two</title><note>n2</note><text>Beta words</text><link><linktext>a</linktext>"
     "<linkto>001</linkto><linktext>b</linktext><linkto>003</linkto><linktext>c</linktext>"
     "<linkto>005</linkto></link><music>typed</music><music>M1</music>"},
    {"Combo2", "m3", "M1",
     "<title>Two</title><note>n2</note><text>Beta words</text><link><linktext>a</linktext>"
     "<linkto>001</linkto><linktext>b</linktext><linkto>003</linkto><linktext>c</linktext>"
     "<linkto>005</linkto></link><music>Play</music><music>M3</music>"},
};

/// Typing in one field of page 2, after the step "Clear page 5".
class UndoInFieldsTest : public UndoTest {
 protected:
  void ForEach(const std::function<void()>& check) {
    for (const FieldCase& field : kFields) {
      SCOPED_TRACE(field.Name);
      field_ = &field;
      OpenWorld();
      ClearPage5();
      screen_ = Document() + Fields();
      TypeInto(Window(), field.Name, field.Typed);
      check();
    }
  }

  std::string Typed() {
    auto& field = Find<QWidget>(Window(), field_->Name);
    if (auto* list = qobject_cast<TargetList*>(&field)) return list->Bytes();
    if (auto* body = qobject_cast<BodyField*>(&field)) return body->Bytes();
    return dynamic_cast<LineField&>(field).Bytes();
  }

  /// Presses the key until the field is as it was; nothing else may change meanwhile.
  void TakeBackTyping() {
    const std::string document = Document();
    for (int press = 0; press < kMostPresses && Typed() != field_->Before; ++press) {
      EXPECT_EQ(UndoItem(), "Undo typing");
      PressUndo();
      EXPECT_EQ(Document(), document);
      EXPECT_EQ(Focus(), field_->Name);
    }
    EXPECT_EQ(Typed(), field_->Before);
  }

  void MakeAgain(const std::function<void()>& redo) {
    for (int times = 0; times < kMostPresses && Typed() != field_->Typed; ++times) {
      EXPECT_EQ(RedoItem(), "Redo typing");
      redo();
    }
    EXPECT_EQ(Typed(), field_->Typed);
    EXPECT_EQ(RedoItem(), "Redo (grey)");
    EXPECT_EQ(State.Page(2), kWorldPage2);
  }

  const FieldCase* field_ = nullptr;
  std::string screen_;
};

TEST_F(UndoInFieldsTest, TypingThereIsTakenBackFirstAndThenTheLastCommand) {
  ForEach([this] {
    TakeBackTyping();
    EXPECT_EQ(Document() + Fields(), screen_);
    EXPECT_EQ(Told(), "");
    EXPECT_EQ(UndoItem(), "Undo Clear page 5");
    PressUndo();
    EXPECT_EQ(
        State.Page(5),
        "<title>Five</title><text>Delta</text><link><linktext>Last</linktext><linkto>999</linkto></link>");
    EXPECT_EQ(State.CurrentPage, 5);
    EXPECT_EQ(Told(), "Undone: Clear page 5. The project is as you saved it.");
  });
}

TEST_F(UndoInFieldsTest, TypingTakenBackThereCanBeMadeAgain) {
  ForEach([this] {
    TakeBackTyping();
    MakeAgain([this] { PressRedo(); });
    TakeBackTyping();
    MakeAgain([this] { PressOtherRedo(); });
    for (int times = 0; times < kMostPresses && Typed() != field_->Before; ++times) Choose("EditUndo");
    EXPECT_EQ(Document() + Fields(), screen_);
    MakeAgain([this] { Choose("EditRedo"); });
  });
}

TEST_F(UndoInFieldsTest, InAnotherFieldAllTypingOfThePageIsOneStep) {
  ForEach([this] {
    LineField& other = std::string(field_->Name) == "Text4" ? Title() : Note();
    Click(other);
    EXPECT_EQ(UndoItem(), "Undo Edit page 2");
    PressUndo();
    EXPECT_EQ(Told(), "Undone: Edit page 2");
    EXPECT_EQ(Document() + Fields(), screen_);
    EXPECT_EQ(Focus(), other.objectName().toStdString());
    EXPECT_EQ(UndoItem(), "Undo Clear page 5");
    EXPECT_EQ(RedoItem(), "Redo Edit page 2");
    PressRedo();
    EXPECT_EQ(Told(), "Redone: Edit page 2");
    EXPECT_EQ(State.Page(2), field_->Page2);
    EXPECT_EQ(UndoItem(), "Undo Edit page 2");
  });
}

TEST_F(UndoInFieldsTest, ItIsOneStepWhereNoFieldHasTheFocus) {
  ForEach([this] {
    for (const char* name : {"MSFlexGrid1", "MSFlexGrid2", "Command4"}) {
      SCOPED_TRACE(name);
      Find<QWidget>(Window(), name).setFocus();
      EXPECT_EQ(UndoItem(), "Undo Edit page 2");
      PressUndo();
      EXPECT_EQ(Document() + Fields(), screen_);
      PressRedo();
      EXPECT_EQ(State.Page(2), field_->Page2);
    }
  });
}

TEST_F(UndoInFieldsTest, ItIsOneStepAfterThePageWasLeft) {
  ForEach([this] {
    Show(3);
    EXPECT_EQ(State.Page(2), field_->Page2);
    EXPECT_EQ(UndoItem(), "Undo Edit page 2");
    PressUndo();
    EXPECT_EQ(State.CurrentPage, 2);
    EXPECT_EQ(Document() + Fields(), screen_);
    PressRedo();
    EXPECT_EQ(State.CurrentPage, 2);
    EXPECT_EQ(State.Page(2), field_->Page2);
    PressUndo();
    PressUndo();
    EXPECT_EQ(State.CurrentPage, 5);
    EXPECT_EQ(UndoItem(), "Undo (grey)");
  });
}

}  // namespace
}  // namespace tavrel::test
