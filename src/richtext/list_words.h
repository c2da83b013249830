// Items of lists: the group that describes an item, and its marker.

#pragma once

#include <string>
#include <string_view>

#include "richtext/format_reader.h"

namespace tarnwell::richtext {

// The description of a plain bullet, or of a plain number with a full stop.
std::string PlainListDescription(bool numbered);
// Of a small letter with a full stop.
std::string LetterListDescription();

// Whether a "{\*\pn …}" group describes numbers or letters, not bullets.
bool DescribesNumbers(std::string_view description);

// Whether a marker such as "3." or "(b)" counts.
bool IsNumber(std::string_view marker);

// The text of a \pntext or \listtext group, from its source without the outer braces, as UTF-8.
// Well-known bullets of the symbol fonts are given as the characters that they look like.
std::string ReadMarker(std::string_view body, const FormatTables& tables, FormatState state);

}  // namespace tarnwell::richtext
