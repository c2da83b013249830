#include "planner/day_sort.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <vector>

#include "text/leading_number.h"
#include "text/letters.h"

namespace tarnwell::planner {
namespace {

constexpr std::string_view kSeparator = "zzz";
constexpr std::size_t kPrefixLength = 2;

std::string_view KeyPrefix(std::string_view time, SortTimeOption option) {
  const std::string half_of_day = text::UpperCase(text::Right(time, 2));
  const double hour = text::LeadingNumber(text::Left(time, 2));
  const auto choose = [hour](std::string_view twelve, std::string_view two_digits,
                             std::string_view other) {
    if (hour == 12) return twelve;
    return hour >= 10 ? two_digits : other;
  };
  if (half_of_day == "AM") return choose("ad", "am", "ae");
  if (half_of_day == "PM") return choose("bb", "zz", "pm");
  return choose("ac", "ab", option == SortTimeOption::kLast ? "aa" : "");
}

// The two characters of the prefix are cut off even where the key has none.
DayRow RowOfKey(std::string_view key) {
  const std::size_t separator = key.find(kSeparator);
  DayRow row;
  if (separator > kPrefixLength) row.time = key.substr(kPrefixLength, separator - kPrefixLength);
  row.entry = text::TrimRight(key.substr(separator + kSeparator.size()));
  return row;
}

}  // namespace

std::string TimeSortKey(const DayRow& row, SortTimeOption option) {
  std::string key(KeyPrefix(row.time, option));
  key.append(row.time).append(kSeparator).append(row.entry);
  return key;
}

DayRows SortDay(const DayRows& rows, SortTimeOption option) {
  std::vector<std::string> keys;
  for (const DayRow& row : rows) {
    const DayRow trimmed{text::Trim(row.time), text::Trim(row.entry)};
    if (trimmed != DayRow{}) keys.push_back(TimeSortKey(trimmed, option));
  }
  std::stable_sort(keys.begin(), keys.end(), [](const std::string& a, const std::string& b) {
    return text::CompareIgnoringCase(a, b) < 0;
  });
  DayRows sorted;
  std::transform(keys.begin(), keys.end(), sorted.begin(), RowOfKey);
  return sorted;
}

}  // namespace tarnwell::planner
