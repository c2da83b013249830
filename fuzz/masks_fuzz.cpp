// Any bytes as text, as mask, as number and as date: nothing crashes or grows without bound, and
// what can be read back reads back the same.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

#include "text/code_page_1252.h"
#include "text/date.h"
#include "text/date_mask.h"
#include "text/date_reading.h"
#include "text/leading_number.h"
#include "text/letters.h"
#include "text/number_mask.h"

namespace {

using namespace tarnwell::text;

// A number's digits, its signs and commas, and each place of the mask.
constexpr std::size_t kLongestNumber = 800;

// Each holds a whole date of the years 100 to 9999.
constexpr std::string_view kFullMasks[] = {
    "mm/dd/yyyy",       "mm/dd/yyyy - ddd", "ddd - mm/dd/yyyy",    "mmmm d, yyyy",
    "d mmmm yyyy",      "dd mmmm yyyy",     "dd mmmm, yyyy - ddd", "mmmm dd, yyyy - ddd",
    "mmmm dd, yyyy",    "mmm-dd-yyyy",      "dddd - mmmm d, yyyy", "yyyy/mm/dd",
    "yyyy/mm/dd - ddd", "Long Date",        "Short Date"};

// Each holds a whole date of the years 1930 to 2029.
constexpr std::string_view kShortYearMasks[] = {"mmm-dd-yy", "ddd - mmm d, yy", "mm-dd-yy"};

void Require(bool holds) {
  if (!holds) std::abort();
}

template <typename T>
T Take(std::string_view& bytes) {
  T value{};
  const std::size_t size = bytes.size() < sizeof value ? bytes.size() : sizeof value;
  std::memcpy(&value, bytes.data(), size);
  bytes.remove_prefix(size);
  return value;
}

void CheckText(std::string_view text) {
  Require(FromUtf8(ToUtf8(text)) == text);
  Require(ToUtf8(FromUtf8(Utf8(text))).bytes().size() <= 3 * text.size());
  const std::string upper = UpperCase(text);
  Require(UpperCase(upper) == upper && EqualIgnoringCase(upper, text));
  Require(Trim(Trim(text)) == Trim(text));
  const double number = LeadingNumber(text);
  Require(number - number == 0);
}

void CheckMasks(double number, std::string_view mask) {
  const std::size_t longest = kLongestNumber + 4 * mask.size();
  Require(FormatNumber(number, mask).size() <= longest);
  Require(FormatNumber(static_cast<float>(number), mask).size() <= longest);
  Require(FormatText(mask, mask).size() <= 2 * mask.size());
}

void CheckDate(const Moment& moment, std::string_view mask) {
  Require(FormatDate(moment, mask).size() <= 18 + 4 * mask.size());
  if (FormatDate(moment, "Short Date").empty()) return;
  for (const std::string_view full : kFullMasks) {
    Require(ReadDate(FormatDate(moment, full)) == moment.date);
  }
  if (YearOf(moment.date) < 1930 || YearOf(moment.date) > 2029) return;
  for (const std::string_view full : kShortYearMasks) {
    Require(ReadDate(FormatDate(moment, full)) == moment.date);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const auto number = Take<double>(bytes);
  const auto year = Take<std::int16_t>(bytes);
  const auto month = Take<std::uint8_t>(bytes);
  const auto day = Take<std::uint8_t>(bytes);
  const auto seconds = Take<std::uint16_t>(bytes);

  CheckText(bytes);
  CheckMasks(number, bytes);
  const Date date = MakeDate(year, month % 14u, day % 33u);
  CheckDate({date, std::chrono::seconds{2 * seconds}}, bytes);
  if (const auto read = ReadDate(bytes)) {
    Require(ReadDate(FormatDate(*read, "mm/dd/yyyy")) == read);
  }
  return 0;
}
