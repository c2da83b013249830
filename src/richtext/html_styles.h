// Formats as the style attributes of HTML.

#pragma once

#include <string>

#include "richtext/rich_document.h"

namespace tarnwell::richtext {

std::string Points(int twips);
std::string CharacterStyle(const CharacterFormat& format);
std::string ParagraphStyle(const ParagraphFormat& format);
std::string CellStyle(const Cell& cell, int left_edge);

}  // namespace tarnwell::richtext
