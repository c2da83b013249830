// Pictures that come from elsewhere: in documents, on the clipboard, in the program's folder.
//
// A file is PNG, JPEG or BMP by its first bytes and is read as that alone. Qt would also try its
// other formats, and a drawing (SVG) opens the files that it names.

#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

namespace tarnwell::desktop {

inline constexpr qint64 kMostPicturePixels = 100'000'000;

// "png", "jpeg" or "bmp"; empty for anything else.
QByteArray PictureTypeOf(const QByteArray& file);

// In pixels, from the file's head. Invalid for what is no picture or has more than
// kMostPicturePixels.
QSize PixelsOf(const QByteArray& file);

// Decoded to `most` pixels, or as large as it is where that is less. Null for what has no
// PixelsOf() or can't be read.
QImage Decoded(const QByteArray& file, QSize most);
QImage Decoded(const QByteArray& file);

}  // namespace tarnwell::desktop
