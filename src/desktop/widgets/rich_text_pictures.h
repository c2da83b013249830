// Pictures of documents in Qt's text.

#pragma once

#include <QByteArray>
#include <QTextImageFormat>

#include "desktop/widgets/rich_text_formats.h"
#include "richtext/rich_document.h"

namespace tarnwell::desktop {

// At the size that the document gives, else the file's own; at most `widest` pixels wide. Its name
// is the same for the same file at the same size.
QTextImageFormat PictureFormat(const richtext::Picture& picture, const QByteArray& file,
                               const RichTextFormats& formats, double widest);

}  // namespace tarnwell::desktop
