#pragma once

#include <QByteArray>
#include <QPixmap>

namespace tavrel {

/// The picture in the bytes of a file; empty if it holds none. A huge one is made smaller while it is read.
QPixmap DecodePicture(const QByteArray& bytes);

}  // namespace tavrel
