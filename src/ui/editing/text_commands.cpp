#include "ui/editing/text_commands.h"

#include <QClipboard>
#include <QGuiApplication>

namespace tavrel {
namespace {

constexpr int kSmall = 8;
constexpr int kNormal = 10;
constexpr int kLarge = 12;

}  // namespace

TextCommands::TextCommands(BodyField& body) : body_(body) {
  EditFontNormal_Click();
}

void TextCommands::EditCut_Click() {
  QGuiApplication::clipboard()->clear();
  const QString selected = body_.SelectedText();
  if (selected.isEmpty()) return;
  QGuiApplication::clipboard()->setText(selected);
  body_.ReplaceSelection({});
}

void TextCommands::EditCopy_Click() {
  QGuiApplication::clipboard()->clear();
  QGuiApplication::clipboard()->setText(body_.SelectedText());
}

void TextCommands::EditPaste_Click() {
  body_.ReplaceSelection(QGuiApplication::clipboard()->text());
}

void TextCommands::EditDeleteText_Click() {
  body_.ReplaceSelection({});
}

void TextCommands::EditFontSmall_Click() {
  SetFontSize(kSmall);
}

void TextCommands::EditFontNormal_Click() {
  SetFontSize(kNormal);
}

void TextCommands::EditFontLarge_Click() {
  SetFontSize(kLarge);
}

void TextCommands::SetFontSize(int points) {
  QFont font = body_.font();
  font.setPointSize(points);
  body_.setFont(font);
}

}  // namespace tavrel
