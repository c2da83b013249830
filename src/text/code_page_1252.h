// The one code page of all text inside the core: one character, one byte.

#pragma once

#include <string>
#include <string_view>

#include "text/utf8.h"

namespace tarnwell::text {

// UTF-8 of a text in code page 1252. The five places that the code page leaves open (81, 8D, 8F, 90
// and 9D hexadecimal) stand for the control characters of the same number, so every byte has a
// Unicode character of its own and FromUtf8(ToUtf8(t)) == t for any bytes.
Utf8 ToUtf8(std::string_view text);

// Code page 1252 of a UTF-8 text. A character that the code page can't hold gives its nearest form
// (a letter without its accent, a plain dash, a plain blank), else "?"; a malformed byte sequence
// gives one "?".
std::string FromUtf8(const Utf8& utf8);

}  // namespace tarnwell::text
