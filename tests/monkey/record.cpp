#include "monkey/record.h"

#include <QCheckBox>
#include <QWidget>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>

#include "ui/controls/body_field.h"
#include "ui/controls/dated_file_list.h"
#include "ui/controls/file_list.h"
#include "ui/controls/folder_list.h"
#include "ui/controls/grid.h"
#include "ui/controls/line_field.h"
#include "ui/controls/tick_box.h"

namespace tavrel::test {
namespace {

std::string Shortened(const std::string& text) {
  constexpr std::size_t kMost = 400;
  return text.size() <= kMost ? text : text.substr(0, kMost) + "... (" + std::to_string(text.size()) + ")";
}

std::size_t FirstDifference(const std::string& a, const std::string& b) {
  std::size_t at = 0;
  while (at < a.size() && at < b.size() && a[at] == b[at]) ++at;
  return at;
}

std::string From(const std::string& text, std::size_t at) {
  constexpr std::size_t kBefore = 60;
  return Shortened(at > kBefore ? "..." + text.substr(at - kBefore) : text);
}

std::string NameOf(const QWidget& control) {
  return control.objectName().toStdString();
}

}  // namespace

std::function<void()> TellHowItCame;

void Break(const std::string& what) {
  std::printf("BROKEN: %s\n", what.c_str());
  if (TellHowItCame) TellHowItCame();
  std::fflush(nullptr);
  std::_Exit(EXIT_FAILURE);
}

void Expect(bool holds, const std::string& what) {
  if (!holds) Break(what);
}

void ExpectSame(const std::string& actual, const std::string& expected, const std::string& what) {
  if (actual == expected) return;
  const std::size_t at = FirstDifference(actual, expected);
  Break(what + " differs at " + std::to_string(at) + "\n  is        [" + From(actual, at) +
        "]\n  should be [" + From(expected, at) + "]");
}

const Event* Record::First(Event::Kind what) const {
  for (const Event& event : Events) {
    if (event.What == what) return &event;
  }
  return nullptr;
}

const Event* Record::Last(Event::Kind what, const std::string& window) const {
  for (auto event = Events.rbegin(); event != Events.rend(); ++event) {
    if (event->What == what && event->Window == window) return &*event;
  }
  return nullptr;
}

const Event* Record::MessageOf(const std::string& beginning) const {
  for (const Event& event : Events) {
    if (event.What == Event::Kind::Message && event.Control.starts_with(beginning)) return &event;
  }
  return nullptr;
}

bool Record::IsRefused(const std::string& beginning) const {
  const Event* message = MessageOf(beginning);
  return message != nullptr && message->Number == 0;
}

std::string BytesOf(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

std::map<std::string, std::string> ValuesIn(const QWidget& window) {
  std::map<std::string, std::string> values;
  for (const LineField* field : window.findChildren<LineField*>()) values[NameOf(*field)] = field->Bytes();
  for (const BodyField* field : window.findChildren<BodyField*>()) values[NameOf(*field)] = field->Bytes();
  for (const QCheckBox* box : window.findChildren<QCheckBox*>())
    values[NameOf(*box)] = std::to_string(static_cast<int>(box->isChecked()));
  for (const TickBox* box : window.findChildren<TickBox*>())
    values[NameOf(*box)] = std::to_string(box->Value());
  for (const DatedFileList* list : window.findChildren<DatedFileList*>())
    values[NameOf(*list)] = list->SelectedFile().string();
  for (const FolderList* list : window.findChildren<FolderList*>())
    values[NameOf(*list)] = list->Path().string();
  for (const Grid* grid : window.findChildren<Grid*>()) values[NameOf(*grid)] = std::to_string(grid->Row());
  for (const FileList* list : window.findChildren<FileList*>()) {
    std::string& names = values[NameOf(*list)];
    for (const auto& file : list->Files()) names += file.string() + "\n";
  }
  return values;
}

}  // namespace tavrel::test
