// The amounts in the cells of a year's sheet, which are texts as a mask made them.

#pragma once

#include <string>
#include <string_view>

namespace tarnwell::year_sheet {

struct AmountStyle {
  std::string_view mask;       // of a cell: "####.00"
  double limit = 0;            // the least number that is too large
  std::string_view most;       // stands in the place of one that is: "9999.99"
  std::string_view too_large;  // what a person is told then
};

enum class AmountFault { kNone, kNoNumber, kTooLarge };

// What becomes of a text typed in a cell: the amount that it begins with, rounded as the mask has
// it; the largest one for one that is too large; empty where it isn't above 0.
struct CellAmount {
  std::string text;
  AmountFault fault = AmountFault::kNone;
};
CellAmount AmountOfCell(std::string_view typed, const AmountStyle& style);

// What becomes of a text typed in the Input Box, which takes more: 0 and amounts below it, and
// nothing for an empty cell. A comma ends the text.
struct BoxEntry {
  std::string box;   // stands in the box
  std::string cell;  // stands in the cell
  bool was_too_large = false;
};
BoxEntry NameOfBox(std::string_view typed);
BoxEntry AmountOfBox(std::string_view typed, const AmountStyle& style);

}  // namespace tarnwell::year_sheet
