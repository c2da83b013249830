#pragma once

#include <QString>

#include "richtext/rich_document.h"

namespace tarnwell::desktop {

// A piece of a web page or of another program's text, as it comes by the clipboard: fonts, styles,
// colours, alignment, lists, tables, and pictures that are within the page itself. Nothing is
// fetched.
richtext::RichDocument HtmlFragment(const QString& html);

}  // namespace tarnwell::desktop
