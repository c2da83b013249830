#pragma once

#include <string_view>

namespace tarnwell::text {

// The number that a text begins with; what follows it is ignored. Blanks, tabs and line feeds are
// skipped wherever they stand. A sign, digits, one point and an exponent (E or D) count; a
// thousands comma or a currency sign ends the number. No number gives 0, as does one that is too
// large for a double.
double LeadingNumber(std::string_view text);

}  // namespace tarnwell::text
