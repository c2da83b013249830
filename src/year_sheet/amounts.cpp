#include "year_sheet/amounts.h"

#include "text/leading_number.h"
#include "text/letters.h"
#include "text/number_mask.h"

namespace tarnwell::year_sheet {
namespace {

std::string Masked(std::string_view typed, const AmountStyle& style) {
  return text::FormatNumber(text::LeadingNumber(typed), style.mask);
}

}  // namespace

CellAmount AmountOfCell(std::string_view typed, const AmountStyle& style) {
  std::string amount = Masked(typed, style);
  const double value = text::LeadingNumber(amount);
  if (value <= 0) return {{}, AmountFault::kNoNumber};
  if (value >= style.limit) return {std::string(style.most), AmountFault::kTooLarge};
  return {std::move(amount)};
}

BoxEntry NameOfBox(std::string_view typed) {
  const std::string kept(typed.substr(0, typed.find(',')));
  return {kept, kept};
}

BoxEntry AmountOfBox(std::string_view typed, const AmountStyle& style) {
  BoxEntry entry = NameOfBox(typed);
  if (text::Trim(entry.box).empty()) return {entry.box, {}};
  entry.cell = Masked(entry.box, style);
  if (text::LeadingNumber(entry.cell) < style.limit) return entry;
  return {std::string(style.most), std::string(style.most), true};
}

}  // namespace tarnwell::year_sheet
