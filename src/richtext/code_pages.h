// Bytes of a document's text to Unicode.

#pragma once

#include <string>
#include <string_view>

namespace tarnwell::richtext {

// The code page of fonts that hold symbols: a byte but the blank stands for the private character
// F000 + byte.
inline constexpr int kSymbolCodePage = 42;
inline constexpr int kSymbolCharset = 2;

// Adds the UTF-8 of `bytes`. A tab is kept; other control characters are left out. A character past
// 7F of a code page that isn't known, and a place that its code page leaves open, gives "?".
void DecodeBytes(std::string_view bytes, int code_page, std::string& utf8);

// The code page of a font's character set; `document` for the set that says nothing.
int CodePageOfCharset(int charset, int document);

}  // namespace tarnwell::richtext
