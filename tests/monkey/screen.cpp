#include "monkey/screen.h"

#include "support/user.h"

namespace tavrel::test {

Screen::Screen(Main& window)
    : Window(window),
      Title(Find<LineField>(window, "Text3")),
      Note(Find<LineField>(window, "Text4")),
      Body(Find<BodyField>(window, "Text1")),
      LinkText(Find<LineField>(window, "Text5")),
      LinkTarget(Find<TargetList>(window, "Combo1")),
      MusicText(Find<LineField>(window, "Text6")),
      MusicLink(Find<TargetList>(window, "Combo2")),
      Links(Find<Grid>(window, "MSFlexGrid1")),
      Pages(Find<Grid>(window, "MSFlexGrid2")) {}

PageFields Screen::Fields() const {
  PageFields fields;
  fields.Title = Title.Bytes();
  fields.Note = Note.Bytes();
  fields.Body = Body.Bytes();
  fields.MusicText = MusicText.Bytes();
  fields.MusicLink = MusicLink.Bytes();
  return fields;
}

Link Screen::Entry() const {
  return {LinkText.Bytes(), LinkTarget.Bytes()};
}

Link Screen::LinkAt(int row) const {
  return {Links.TextMatrix(row, 0), Links.TextMatrix(row, 1)};
}

bool Screen::IsCovered() const {
  return !Body.isVisibleTo(&Window);
}

std::string Screen::Focus() const {
  const QWidget* focus = Window.focusWidget();
  if (focus == nullptr) return "";
  if (focus == &LinkTarget.Field()) return "Combo1";
  if (focus == &MusicLink.Field()) return "Combo2";
  return focus->objectName().toStdString();
}

}  // namespace tavrel::test
