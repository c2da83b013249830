#pragma once

#include <string>
#include <string_view>

namespace tarnwell::richtext {

// UTF-8 as the text of RTF, in ASCII alone, where \uc is 1. Behind each Unicode escape stands, for
// older readers, the character's nearest form in code page 1252, or "?" if the bytes of the text's
// font are of another code page or the form isn't one character.
// In a font of symbols bytes have another meaning: there every character but the blank is escaped.
std::string EscapeText(std::string_view utf8, int code_page);

// The same for the name of a font, which holds no control words but Unicode escapes.
std::string EscapeName(std::string_view utf8, int code_page);

}  // namespace tarnwell::richtext
