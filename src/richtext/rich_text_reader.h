// Stored bytes to a document. docs/formats/rich-text.md describes what is understood.

#pragma once

#include <string_view>

#include "richtext/rich_document.h"

namespace tarnwell::richtext {

// Never fails: a damaged or broken-off file gives what can be read of it, and bytes that aren't RTF
// are plain text in code page 1252, or UTF-8 behind its byte order mark, a paragraph a line.
// Groups nested deeper than 256 are read as one; time and memory grow with the file's size only.
RichDocument ReadRichText(std::string_view bytes);

bool IsRtf(std::string_view bytes);

}  // namespace tarnwell::richtext
