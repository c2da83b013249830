// The tables at the head of a document, from the source of their groups without the outer braces.

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "richtext/format_reader.h"
#include "richtext/rich_document.h"

namespace tarnwell::richtext {

// The code page of text in the first font of that name; `document`'s own where there is none.
int CodePageOfFont(const std::vector<Font>& fonts, const std::string& name, int document);

// `document_code_page` is that of names in fonts whose character set says nothing.
std::vector<Font> ReadFonts(std::string_view body, int document_code_page);

std::vector<std::optional<Color>> ReadColors(std::string_view body);

// Adds the styles of a style sheet; a style based on another begins as that one.
void ReadStyles(std::string_view body, FormatTables& tables);

}  // namespace tarnwell::richtext
