// Pictures of documents in Qt's text.

#pragma once

#include <QByteArray>
#include <QString>
#include <QTextImageFormat>

#include "desktop/widgets/rich_text_formats.h"
#include "richtext/rich_document.h"

namespace tarnwell::desktop {

// The same for the same file.
QString PictureName(const QByteArray& file);

// At the size that the document gives, else the file's own; at most `widest` pixels wide.
QTextImageFormat PictureFormat(const richtext::Picture& picture, const QString& name,
                               const QByteArray& file, const RichTextFormats& formats,
                               double widest);

}  // namespace tarnwell::desktop
