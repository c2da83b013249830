#include "leave/leave_balance.h"

#include "text/leading_number.h"
#include "text/letters.h"
#include "text/number_mask.h"

namespace tarnwell::leave {
namespace {

constexpr float kTooMany = 1000;  // days
constexpr float kMost = 999.99F;

float DaysOf(const std::string& cell) { return static_cast<float>(text::LeadingNumber(cell)); }

}  // namespace

LeaveBalance ComputeBalance(const std::string& name, std::span<const std::string, 12> months,
                            const std::string& authorized) {
  if (text::Trim(name).empty()) return {};
  float used = 0;
  for (const std::string& month : months) used += DaysOf(month);
  if (used <= 0) return {};
  if (used >= kTooMany) used = kMost;
  LeaveBalance computed{text::FormatNumber(used, kDaysMask), std::nullopt};
  if (!text::Trim(authorized).empty()) {
    computed.balance = text::FormatNumber(DaysOf(authorized) - used, kDaysMask);
  }
  return computed;
}

}  // namespace tarnwell::leave
