#include "ui/controls/picture_file.h"

#include <QBuffer>
#include <QImageReader>

namespace tavrel {

QPixmap DecodePicture(const QByteArray& bytes) {
  constexpr int kMostPixels = 4096;
  QBuffer buffer;
  buffer.setData(bytes);
  QImageReader reader(&buffer);
  reader.setAutoTransform(true);
  const QSize size = reader.size();
  const bool huge = size.width() > kMostPixels || size.height() > kMostPixels;
  if (huge)
    reader.setScaledSize(size.scaled(kMostPixels, kMostPixels, Qt::KeepAspectRatio).expandedTo({1, 1}));
  return QPixmap::fromImage(reader.read());
}

}  // namespace tavrel
