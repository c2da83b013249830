// Places of a document's text, counted in UTF-8, as places of Qt's text.

#pragma once

#include <QString>
#include <string_view>

namespace tarnwell::desktop {

// The text of a run as Qt's text holds it, each character one for one: breaks are line separators,
// and what would part a block is shown as the replacement character.
QString ShownInBlock(std::string_view utf8);

// Offsets into the same text.
int ToUtf16Offset(std::string_view utf8, int offset);
int ToUtf8Offset(std::string_view utf8, int utf16_offset);

}  // namespace tarnwell::desktop
