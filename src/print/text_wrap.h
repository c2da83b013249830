#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "forms/pages.h"

namespace tarnwell::print {

// The text as lines that are no wider than `width`: broken at line ends, then at the last blank
// that fits, which is dropped, and inside a word only where the word alone is too wide. Blanks at
// the beginning of the text stay. At least one line, and at least one character a line.
std::vector<std::string> WrapText(forms::TextMetrics& metrics, const forms::Font& font,
                                  std::string_view text, int width);

}  // namespace tarnwell::print
