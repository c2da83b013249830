#pragma once

#include <string>

#include "richtext/rich_document.h"

namespace tarnwell::richtext {

// The document as a whole page of HTML in UTF-8, for the clipboard: formats, lists' markers,
// tables, pictures within the page, links to the web and to mail addresses. What isn't shown is
// left out.
std::string ToHtml(const RichDocument& document);

}  // namespace tarnwell::richtext
