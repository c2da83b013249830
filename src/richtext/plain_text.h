// Documents and plain texts. Texts are UTF-8.

#pragma once

#include <string>
#include <string_view>

#include "richtext/rich_document.h"

namespace tarnwell::richtext {

// The text as a person reads it: a line feed behind every paragraph but the last, and behind every
// row of a table; a tab between two cells. Tabs, line breaks ("\n") and page breaks ("\f") as in
// the runs. Markers of lists, pictures and what isn't shown are left out.
std::string PlainText(const RichDocument& document);

// Whether the text holds nothing but blanks, tabs and breaks. Pictures aren't text.
bool IsBlank(const RichDocument& document);

// Whether nobody would miss the document: it is blank and has no picture, no drawing that is only
// kept, and no table.
bool HoldsNothing(const RichDocument& document);

// A paragraph a line; CR LF, LF and CR end a line. The empty text gives no paragraph, and the font
// that is to be written in.
RichDocument FromPlainText(std::string_view utf8);

}  // namespace tarnwell::richtext
