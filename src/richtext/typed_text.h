#pragma once

#include <string>
#include <string_view>

namespace tarnwell::richtext {

// What becomes of a person's text: line ends are "\n", the characters for the end of a line and of
// a paragraph U+2028 and "\n", other control characters but the tab and "\f" go, and malformed
// UTF-8 gives U+FFFD. A line that is longer than kLongestPasted is parted.
std::string TypedText(std::string_view utf8);

// A part of that between two "\n", with U+2028 as the line break that runs hold.
std::string WithLineBreaks(std::string_view part);

}  // namespace tarnwell::richtext
