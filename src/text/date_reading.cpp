#include "text/date_reading.h"

#include <array>
#include <cstddef>

#include "text/date_names.h"
#include "text/letters.h"

namespace tarnwell::text {
namespace {

constexpr std::string_view kDigits = "0123456789";
constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kMarks = "/-,";
constexpr std::string_view kLetters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";

enum class Kind { kNumber, kMonth, kWeekday };

struct Part {
  Kind kind = Kind::kNumber;
  int value = 0;
  std::size_t digits = 0;
};

// A date is at most three numbers or names and a weekday.
struct DateParts {
  std::array<Part, 4> parts;
  std::size_t count = 0;
};

std::string_view TakeRun(std::string_view& rest, std::string_view characters) {
  const std::size_t end = rest.find_first_not_of(characters);
  const std::string_view run = rest.substr(0, end);
  rest.remove_prefix(run.size());
  return run;
}

// The place of the one name that the word is, or is the beginning of.
template <std::size_t N>
std::optional<int> FindName(const std::array<std::string_view, N>& names, std::string_view word) {
  if (word.size() < kShortNameLength) return std::nullopt;
  for (std::size_t i = 0; i < N; ++i) {
    if (word.size() <= names[i].size() && EqualIgnoringCase(names[i].substr(0, word.size()), word))
      return static_cast<int>(i);
  }
  return std::nullopt;
}

std::optional<Part> ReadWord(std::string_view word) {
  if (const std::optional<int> month = FindName(kMonthNames, word)) {
    return Part{Kind::kMonth, *month + 1};
  }
  if (const std::optional<int> weekday = FindName(kWeekdayNames, word)) {
    return Part{Kind::kWeekday, *weekday};
  }
  return std::nullopt;
}

std::optional<Part> ReadNumber(std::string_view digits) {
  if (digits.empty() || digits.size() > 4) return std::nullopt;
  Part part{Kind::kNumber, 0, digits.size()};
  for (const char digit : digits) part.value = part.value * 10 + (digit - '0');
  return part;
}

// Cuts the text into its parts. Between two of them stand blanks and at most one mark.
std::optional<DateParts> Cut(std::string_view text) {
  DateParts cut;
  TakeRun(text, kBlanks);
  while (!text.empty()) {
    if (cut.count == cut.parts.size()) return std::nullopt;
    const std::string_view word = TakeRun(text, kLetters);
    const auto part = word.empty() ? ReadNumber(TakeRun(text, kDigits)) : ReadWord(word);
    if (!part) return std::nullopt;
    cut.parts[cut.count++] = *part;
    if (part->kind == Kind::kMonth && text.starts_with('.')) text.remove_prefix(1);

    TakeRun(text, kBlanks);
    if (!text.empty() && kMarks.find(text.front()) != std::string_view::npos) {
      text.remove_prefix(1);
      TakeRun(text, kBlanks);
      if (text.empty()) return std::nullopt;
    }
  }
  return cut;
}

bool IsBelow(std::string_view digits, int least, int limit) {
  if (digits.empty() || digits.size() > 2) return false;
  const int value = ReadNumber(digits)->value;
  return value >= least && value < limit;
}

// A text like "10:15", "9:05:30 PM".
bool IsClockTime(std::string_view text) {
  const std::string_view hour = TakeRun(text, kDigits);
  int parts = 1;
  for (; text.starts_with(':'); ++parts) {
    text.remove_prefix(1);
    const std::string_view part = TakeRun(text, kDigits);
    if (part.size() != 2 || !IsBelow(part, 0, 60)) return false;
  }
  if (parts < 2 || parts > 3) return false;
  TakeRun(text, kBlanks);
  const std::string_view half = TakeRun(text, kLetters);
  TakeRun(text, kBlanks);
  if (!text.empty()) return false;
  if (half.empty()) return IsBelow(hour, 0, 24);
  return (EqualIgnoringCase(half, "AM") || EqualIgnoringCase(half, "PM")) && IsBelow(hour, 1, 13);
}

// The text without the clock time that it ends in.
std::string_view WithoutClockTime(std::string_view text) {
  const std::size_t colon = text.find(':');
  if (colon == std::string_view::npos) return text;
  const std::size_t before = text.find_last_of(kBlanks, colon);
  if (before == std::string_view::npos || !IsClockTime(text.substr(before + 1))) return text;
  return text.substr(0, before);
}

// `most` parts are a date with its weekday.
void DropWeekday(DateParts& cut, std::size_t most) {
  if (cut.count != most) return;
  if (cut.parts.front().kind == Kind::kWeekday) {
    for (std::size_t i = 1; i < cut.count; ++i) cut.parts[i - 1] = cut.parts[i];
    --cut.count;
  } else if (cut.parts[most - 1].kind == Kind::kWeekday) {
    --cut.count;
  }
}

bool IsWholeYear(const Part& part) {
  return part.kind == Kind::kNumber && part.value >= kFirstYear;
}

std::optional<Date> MakeChecked(const Part& year, const Part& month, const Part& day) {
  int full_year = year.value;
  if (year.digits <= 2) full_year += year.value < 30 ? 2000 : 1900;
  if (full_year < kFirstYear || day.value < 1 || day.value > 31 || month.value < 1) {
    return std::nullopt;
  }
  const Date date =
      MakeDate(full_year, static_cast<unsigned>(month.value), static_cast<unsigned>(day.value));
  return date.ok() ? std::optional(date) : std::nullopt;
}

// Without `year` the text has to have one.
std::optional<Date> Read(std::string_view text, const std::optional<Part>& year) {
  std::optional<DateParts> cut = Cut(WithoutClockTime(text));
  if (!cut) return std::nullopt;
  DropWeekday(*cut, 4);
  if (year) DropWeekday(*cut, 3);
  if (year && cut->count == 2) cut->parts[cut->count++] = *year;
  if (cut->count != 3) return std::nullopt;
  const auto& [first, second, third, unused] = cut->parts;

  const auto is_number = [](const Part& part) { return part.kind == Kind::kNumber; };
  if (!is_number(third)) return std::nullopt;
  if (first.kind == Kind::kMonth && is_number(second)) return MakeChecked(third, first, second);
  if (!is_number(first)) return std::nullopt;
  if (IsWholeYear(first)) {
    return second.kind == Kind::kWeekday ? std::nullopt : MakeChecked(first, second, third);
  }
  if (second.kind == Kind::kMonth) return MakeChecked(third, second, first);
  if (!is_number(second)) return std::nullopt;
  return first.value > 12 ? MakeChecked(third, second, first) : MakeChecked(third, first, second);
}

}  // namespace

std::optional<Date> ReadDate(std::string_view text) { return Read(text, std::nullopt); }

std::optional<Date> ReadDate(std::string_view text, Date today) {
  return Read(text, Part{Kind::kNumber, YearOf(today), 4});
}

Date InCenturyOfWeekday(Date date, std::string_view text) {
  TakeRun(text, kBlanks);
  const auto weekday = FindName(kWeekdayNames, TakeRun(text, kLetters));
  const Date later = date + std::chrono::years(100);
  if (!weekday || !later.ok() || WeekdayOf(date) == static_cast<unsigned>(*weekday)) return date;
  return WeekdayOf(later) == static_cast<unsigned>(*weekday) ? later : date;
}

}  // namespace tarnwell::text
