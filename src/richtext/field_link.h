#pragma once

#include <string>
#include <string_view>

#include "richtext/rich_document.h"

namespace tarnwell::richtext {

// The address that a run of this field links to, in UTF-8, if it is one of the web or of mail;
// empty if it isn't, or for kNoField.
std::string LinkOf(const RichDocument& document, int field);

// Whether it is an address that a text can be made a link to: of the web or of mail, and of plain
// letters and signs.
bool IsLinkAddress(std::string_view address);

// The words of a field's instruction, such as "PAGE \\* ROMAN".
std::string InstructionText(std::string_view rtf);

}  // namespace tarnwell::richtext
