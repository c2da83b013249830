#include "text/date_mask.h"

#include <algorithm>
#include <cstddef>
#include <optional>

#include "text/date_names.h"

namespace tarnwell::text {
namespace {

constexpr std::string_view kHalfOfDay = "AM/PM";

std::string Digits(int number, std::size_t width) {
  std::string digits = std::to_string(number);
  if (digits.size() < width) digits.insert(0, width - digits.size(), '0');
  return digits;
}

class Writer {
 public:
  Writer(const Moment& moment, bool half_days)
      : date_(moment.date),
        hour_(static_cast<int>(moment.time_of_day.count() / 3600)),
        minute_(static_cast<int>(moment.time_of_day.count() / 60 % 60)),
        second_(static_cast<int>(moment.time_of_day.count() % 60)),
        half_days_(half_days) {}

  std::string_view HalfOfDay() const { return hour_ < 12 ? "AM" : "PM"; }

  // How many equal letters make the longest form that a letter has; 0 for any other character.
  static std::size_t LongestForm(char letter) {
    switch (letter) {
      case 'd':
      case 'm':
      case 'y':
        return 4;
      case 'h':
      case 'n':
      case 's':
        return 2;
      default:
        return 0;
    }
  }

  // One part of the mask; empty if there is no form of that width.
  std::optional<std::string> Part(char letter, std::size_t width) const {
    switch (letter) {
      case 'd':
        if (width > 2) return Name(kWeekdayNames[WeekdayOf(date_)], width);
        return Digits(static_cast<int>(DayOf(date_)), width);
      case 'm':
        if (width > 2) return Name(kMonthNames[MonthOf(date_) - 1], width);
        return Digits(static_cast<int>(MonthOf(date_)), width);
      case 'y':
        if (width == 4) return Digits(YearOf(date_), 4);
        if (width == 2) return Digits(YearOf(date_) % 100, 2);
        return std::nullopt;
      case 'h':
        return Digits(half_days_ ? (hour_ + 11) % 12 + 1 : hour_, width);
      case 'n':
        return Digits(minute_, width);
      case 's':
        return Digits(second_, width);
      default:
        return std::nullopt;
    }
  }

 private:
  static std::string Name(std::string_view name, std::size_t width) {
    return std::string(width == kShortNameLength ? name.substr(0, kShortNameLength) : name);
  }

  Date date_;
  int hour_;
  int minute_;
  int second_;
  bool half_days_;
};

std::size_t RunLength(std::string_view mask) {
  const std::size_t end = mask.find_first_not_of(mask.front());
  return end == std::string_view::npos ? mask.size() : end;
}

// Writes the longest form that the mask begins with, and gives its width.
std::size_t WritePart(const Writer& writer, std::string_view mask, std::string& text) {
  const std::size_t run = std::min(RunLength(mask), Writer::LongestForm(mask.front()));
  for (std::size_t width = run; width > 0; --width) {
    if (const std::optional<std::string> part = writer.Part(mask.front(), width)) {
      text += *part;
      return width;
    }
  }
  text += mask.front();
  return 1;
}

bool IsWritable(const Moment& moment) {
  return moment.date.ok() && YearOf(moment.date) >= kFirstYear &&
         YearOf(moment.date) <= kLastYear && moment.time_of_day >= std::chrono::seconds{0} &&
         moment.time_of_day < std::chrono::days{1};
}

}  // namespace

std::string FormatDate(const Moment& moment, std::string_view mask) {
  if (!IsWritable(moment)) return {};
  if (mask == "Long Date") mask = "dddd, mmmm dd, yyyy";
  if (mask == "Short Date") mask = "m/d/yyyy";
  const Writer writer(moment, mask.find(kHalfOfDay) != std::string_view::npos);
  std::string text;
  while (!mask.empty()) {
    if (mask.starts_with(kHalfOfDay)) {
      text += writer.HalfOfDay();
      mask.remove_prefix(kHalfOfDay.size());
    } else {
      mask.remove_prefix(WritePart(writer, mask, text));
    }
  }
  return text;
}

std::string FormatDate(Date date, std::string_view mask) { return FormatDate(Moment{date}, mask); }

}  // namespace tarnwell::text
