// Formatted text on the clipboard and in drags.

#pragma once

#include <QMimeData>
#include <memory>
#include <optional>

#include "richtext/rich_document.h"

namespace tarnwell::desktop {

// As rich text, as HTML and as plain text, so that a word processor and a text field both take it.
std::unique_ptr<QMimeData> ToMime(const richtext::RichDocument& document, const QByteArray& rtf);
std::unique_ptr<QMimeData> ToMime(const richtext::RichDocument& document);

// Of what another program offers, the form that holds the most. Empty if it is plain text only, or
// nothing that text can take in. Of a page that would take long to read it only says that it is
// more than a document has room for.
std::optional<richtext::RichDocument> FromMime(const QMimeData& mime);
bool HoldsText(const QMimeData& mime);

}  // namespace tarnwell::desktop
