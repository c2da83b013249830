#pragma once

#include <string_view>

#include "richtext/rich_document.h"

namespace tarnwell::richtext {

// Whether the document stays within limits.h with the fragment in it, which is whole itself.
bool HasRoomFor(const RichDocument& document, const RichDocument& fragment);
// The same for typed text in UTF-8, a line feed between two paragraphs.
bool HasRoomFor(const RichDocument& document, std::string_view utf8);

}  // namespace tarnwell::richtext
