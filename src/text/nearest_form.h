#pragma once

#include <string_view>

namespace tarnwell::text {

// What stands, in code page 1252, for a Unicode character that the code page can't hold: a letter
// without its accent, a plain dash, blank or quote. A combining accent and a character without
// width give the empty text; a character without any near form gives "?".
std::string_view NearestForm(char32_t character);

}  // namespace tarnwell::text
