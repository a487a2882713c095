#include "ui/view/screen_picture.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

namespace tavrel {
namespace {

constexpr int kMargin = 3;
constexpr int kScrollBar = 5;
constexpr int kLeastThumb = 3;
constexpr int kLeastLine = 14;
constexpr int kMostLine = 24;

QString Latin1(std::string_view text) {
  return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

/// Paints one screen. Ink and paper are those of the device, whatever colours the desktop has.
class ScreenPainter {
 public:
  ScreenPainter(QImage& picture, const ScreenLook& look) : look_(look), painter_(&picture) {
    painter_.setFont(look.Font);
    painter_.fillRect(picture.rect(), Qt::white);
  }

  void operator()(const NotesMenu& menu) {
    DrawTitle(QStringLiteral("Notes"));
    const std::size_t rows = static_cast<std::size_t>(look_.LinesHeight / look_.LineHeight);
    const std::size_t end = std::min(menu.Entries().size(), menu.Top() + rows);
    for (std::size_t entry = menu.Top(); entry < end; ++entry)
      DrawEntry(menu.Entries()[entry].Title, LineArea(entry - menu.Top()), entry == menu.Current());
    DrawScrollBar(menu.Top(), rows, menu.Entries().size());
  }

  void operator()(const NoteScreen& note) {
    const std::string& title = note.Shown().Title;
    DrawTitle(title.empty() ? QStringLiteral("Note") : Latin1(title));
    const std::size_t rows = static_cast<std::size_t>(look_.LinesHeight / look_.LineHeight);
    const std::size_t end = std::min(note.Lines().size(), note.Top() + rows);
    for (std::size_t line = note.Top(); line < end; ++line) DrawLine(note, line);
    if (note.Shown().IsCut && end == note.Lines().size()) DrawCut(LineArea(end - note.Top()).top());
    DrawScrollBar(note.Top(), rows, note.Lines().size());
  }

  void operator()(const ScreenMessage& message) {
    DrawTitle(Latin1(message.Title));
    painter_.drawText(QRect(kMargin, look_.LineHeight + kMargin, look_.TextWidth, look_.LinesHeight),
                      Qt::AlignCenter | Qt::TextWordWrap, Latin1(message.Sentence));
  }

 private:
  QRect LineArea(std::size_t row) const {
    return {kMargin, look_.LineHeight * (static_cast<int>(row) + 1) + 2, look_.TextWidth, look_.LineHeight};
  }

  void DrawTitle(const QString& title) {
    const QRect area(0, 0, look_.Model.Width, look_.LineHeight);
    if (look_.Model.IsColour) {
      QLinearGradient shade(0, 0, 0, area.height());
      shade.setColorAt(0, QColor(0xF4, 0xF6, 0xF8));
      shade.setColorAt(1, QColor(0xC4, 0xCC, 0xD6));
      painter_.fillRect(area, shade);
    }
    painter_.setPen(Qt::black);
    painter_.drawLine(area.bottomLeft(), area.bottomRight());
    const QString fitting =
        painter_.fontMetrics().elidedText(title, Qt::ElideRight, area.width() - 2 * kMargin);
    painter_.drawText(area, Qt::AlignCenter, fitting);
  }

  void DrawEntry(const std::string& title, const QRect& area, bool is_current) {
    if (is_current)
      painter_.fillRect(QRect(0, area.top(), look_.Model.Width, area.height()),
                        look_.Model.IsColour ? QColor(0x2D, 0x7C, 0xD6) : QColor(Qt::black));
    painter_.setPen(is_current ? Qt::white : Qt::black);
    const int arrow = painter_.fontMetrics().horizontalAdvance('>');
    painter_.drawText(area, Qt::AlignRight | Qt::AlignVCenter, ">");
    const QString fitting =
        painter_.fontMetrics().elidedText(Latin1(title), Qt::ElideRight, area.width() - arrow - kMargin);
    painter_.drawText(area, Qt::AlignLeft | Qt::AlignVCenter, fitting);
  }

  void DrawLine(const NoteScreen& note, std::size_t number) {
    const ScreenLine& line = note.Lines()[number];
    const std::string_view text = std::string_view(note.Shown().Text).substr(line.Start, line.Length);
    const QRect area = LineArea(number - note.Top());
    painter_.setPen(Qt::black);
    painter_.drawText(area, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, Latin1(text));
    if (note.CurrentLink()) DrawCurrentLink(note.Shown().Links[*note.CurrentLink()], line, text, area);
  }

  /// The device underlines only the link that the centre button would follow.
  void DrawCurrentLink(const NoteLink& link, const ScreenLine& line, std::string_view text,
                       const QRect& area) {
    const std::size_t start = std::max(link.Start, line.Start);
    const std::size_t end = std::min(link.Start + link.Length, line.Start + line.Length);
    if (start >= end) return;
    const QFontMetrics metrics = painter_.fontMetrics();
    const int left = area.left() + metrics.horizontalAdvance(Latin1(text.substr(0, start - line.Start)));
    const int right = area.left() + metrics.horizontalAdvance(Latin1(text.substr(0, end - line.Start)));
    const int base = area.center().y() + (metrics.ascent() - metrics.descent()) / 2 + 2;
    painter_.drawLine(left, base, right - 1, base);
  }

  void DrawCut(int top) {
    painter_.setPen(
        QPen(look_.Model.IsColour ? QColor(0xC0, 0x20, 0x20) : QColor(Qt::black), 1, Qt::DashLine));
    painter_.drawLine(0, top, look_.Model.Width, top);
  }

  void DrawScrollBar(std::size_t top, std::size_t rows, std::size_t count) {
    if (count <= rows) return;
    const int height = look_.LinesHeight;
    const auto part = [&](std::size_t rows_before) {
      return static_cast<int>(static_cast<std::size_t>(height) * rows_before / count);
    };
    const QRect bar(look_.Model.Width - kScrollBar, look_.LineHeight + 1, kScrollBar - 1, height - 1);
    painter_.setPen(Qt::black);
    painter_.drawRect(bar);
    const int thumb = std::max(part(rows), kLeastThumb);
    painter_.fillRect(QRect(bar.left(), bar.top() + std::min(part(top), height - thumb), kScrollBar, thumb),
                      Qt::black);
  }

  const ScreenLook& look_;
  QPainter painter_;
};

/// A picture of at most four greys.
QImage InFourGreys(const QImage& picture) {
  QImage greys = picture.convertToFormat(QImage::Format_Grayscale8);
  for (int y = 0; y < greys.height(); ++y) {
    uchar* line = greys.scanLine(y);
    std::transform(line, line + greys.width(), line,
                   [](uchar light) { return static_cast<uchar>((light + 42) / 85 * 85); });
  }
  return greys;
}

}  // namespace

ScreenLook::ScreenLook(const ScreenModel& model)
    : Model(model),
      LineHeight(std::clamp(model.Height / 8, kLeastLine, kMostLine)),
      LinesHeight(model.Height - LineHeight - 2),
      TextWidth(model.Width - kMargin - kScrollBar - 2) {
  Font.setPixelSize(LineHeight * 7 / 10);
  Font.setKerning(false);
  if (!model.IsColour) Font.setStyleStrategy(QFont::NoAntialias);
}

ScreenLayout ScreenLook::Layout() const {
  // A note may be long and is laid out at every key.
  std::array<qreal, 256> widths{};
  const QFontMetricsF metrics(Font);
  for (std::size_t letter = 0; letter < widths.size(); ++letter)
    widths[letter] = metrics.horizontalAdvance(QLatin1Char(static_cast<char>(letter)));
  const auto width_of = [widths](std::string_view text) {
    qreal width = 0;
    for (const char letter : text) width += widths[static_cast<unsigned char>(letter)];
    return static_cast<int>(std::ceil(width));
  };
  return {TextWidth, LinesHeight / LineHeight, width_of};
}

QImage PictureOf(const PodBrowser::Screen& screen, const ScreenLook& look) {
  QImage picture(look.Model.Width, look.Model.Height, QImage::Format_RGB32);
  std::visit(ScreenPainter(picture, look), screen);
  return look.Model.IsColour ? picture : InFourGreys(picture);
}

}  // namespace tavrel
