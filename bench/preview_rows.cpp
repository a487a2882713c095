#include <QComboBox>
#include <QImage>

#include <array>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>

#include "core/document/page_record.h"
#include "core/ipod/device_limits.h"
#include "core/ipod/note_writer.h"
#include "core/preview/note_screen.h"
#include "core/text/numbers.h"
#include "find_child.h"
#include "rows.h"
#include "support/full_size_document.h"
#include "ui/view/pod_view.h"
#include "ui/view/preview_panel.h"
#include "worst.h"

namespace tavrel::bench {
namespace {

constexpr int kRefreshes = 15;
constexpr double kFrame = 1.0 / 60;
constexpr int kPage = 500;

std::string Repeated(std::string_view part, std::size_t length) {
  std::string text;
  while (text.size() < length) text += part;
  text.resize(length);
  return text;
}

struct Shape {
  const char* Name;
  std::string_view Part;  ///< repeated all over the text
  bool HasLinks;          ///< all 49 below the text, besides those in it
};

constexpr std::array<Shape, 6> kShapes = {{{"one long line", "i", false},
                                           {"many short words", "a ", false},
                                           {"sentences", "Words of a note that goes on. ", false},
                                           {"many links", "<a>", true},
                                           {"many line breaks", "\r\n", false},
                                           {"many tags", "<br><p>", false}}};

std::string RecordOf(const Shape& shape, std::size_t length) {
  PageFields fields;
  fields.Title = "Title";
  fields.Body = "." + Repeated(shape.Part, length) + ".";
  for (int link = 1; shape.HasLinks && link <= kLastLink; ++link)
    fields.Links.at(static_cast<std::size_t>(link) - 1) = {"Page " + std::to_string(link), FormatPage(link)};
  return BuildPage(fields, CodePage::Windows1252());
}

std::size_t NoteLength(Global& document, const std::string& record, const PublishOptions& options) {
  document.Page(kPage) = record;
  return NoteText(document, kPage, options).size();
}

/// The longest note of this shape of which a device still shows everything: its last bytes are dots.
std::string FullNote(Global& document, const Shape& shape, const PublishOptions& options) {
  std::size_t length = kShownBytes;
  while (length > 0 && NoteLength(document, RecordOf(shape, length), options) > kShownBytes) --length;
  std::string record = RecordOf(shape, length);
  const std::size_t rest = kShownBytes - NoteLength(document, record, options);
  record.insert(record.find("</text>"), rest, '.');
  if (NoteLength(document, record, options) != kShownBytes)
    throw std::runtime_error("a note to be previewed has another length than it should");
  return record;
}

/// The panel, and the picture into which its device is painted.
class Preview {
 public:
  Preview() {
    test::MakeFullSizeDocument(*document_);
    document_->CurrentPage = kPage;
    FindChild<QComboBox>(panel_, "Scale").setCurrentIndex(2);
  }

  void ChooseModel(int model) {
    FindChild<QComboBox>(panel_, "Model").setCurrentIndex(model);
    picture_ = QImage(device_.size(), QImage::Format_ARGB32_Premultiplied);
  }

  void Take(const Shape& shape) { record_ = FullNote(*document_, shape, panel_.Options()); }

  /// One more letter was typed, and the note is as long as before.
  double TimeRefresh() {
    char& letter = record_[record_.find("<text>") + std::string_view("<text>").size()];
    letter = letter == '.' ? ',' : '.';
    document_->Page(kPage) = record_;
    const double seconds = Seconds([this] {
      panel_.Show(*document_);
      device_.render(&picture_);
    });
    if (!std::holds_alternative<NoteScreen>(device_.Browser().Shown()))
      throw std::runtime_error("the preview does not show the note");
    return seconds;
  }

 private:
  std::unique_ptr<Global> document_ = std::make_unique<Global>();
  PreviewPanel panel_;
  PodView& device_ = FindChild<PodView>(panel_, "Device");
  QImage picture_;
  std::string record_;
};

std::string NameOf(const ScreenModel& model, const Shape& shape) {
  return std::to_string(model.Width) + " x " + std::to_string(model.Height) + ", " + shape.Name;
}

}  // namespace

std::vector<Row> PreviewRows() {
  Preview preview;
  Worst worst;
  for (const Shape& shape : kShapes) {
    preview.Take(shape);
    for (std::size_t model = 0; model < kScreenModels.size(); ++model) {
      preview.ChooseModel(static_cast<int>(model));
      worst.Add(Compare(
                    "preview a note of 4,096 bytes : 60 Hz frame", 1, kRefreshes,
                    [&] { return preview.TimeRefresh(); }, [] { return kFrame; }),
                NameOf(kScreenModels.at(model), shape));
    }
  }
  return {worst.Get()};
}

}  // namespace tavrel::bench
