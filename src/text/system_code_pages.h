// Code pages that are too large to keep as tables of our own, by those of the C library.

#pragma once

#include <string>
#include <string_view>

namespace tarnwell::text {

// Adds the UTF-8 of one character of code page 737 to 869 of DOS or 874, 932, 936, 949, 950, 1258
// or 1361 of Windows: one byte, or the two of an East Asian one. False, and nothing added, if they
// stand for none there or the C library doesn't know the code page.
bool AppendCharacter(int code_page, std::string_view bytes, std::string& utf8);

}  // namespace tarnwell::text
