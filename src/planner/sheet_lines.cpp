#include "planner/sheet_lines.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "text/letters.h"

namespace tarnwell::planner {
namespace {

// Its last words. The last letter alone tells most lines apart.
bool EndsWith(std::string_view line, std::string_view ending) {
  if (ending.empty() || line.size() <= ending.size() || line.back() != ending.back()) return false;
  return line[line.size() - ending.size() - 1] == ' ' && line.ends_with(ending);
}

bool Holds(std::string_view line, std::string_view entry) {
  return line == entry || EndsWith(line, entry);
}

bool HasTime(std::string_view line) {
  return (line.size() > 1 && line[1] == ':') || (line.size() > 2 && line[2] == ':');
}

// A time goes up to the first blank, or to the one behind its AM or PM.
DayRow RowOfLine(std::string_view line) {
  const std::string_view trimmed = Trimmed(line);
  if (!HasTime(trimmed)) return {"", std::string(trimmed)};
  std::size_t end = std::min(trimmed.find(' '), trimmed.size());
  const std::string half_of_day = text::UpperCase(trimmed.substr(end, 3));
  const bool is_word = end + 3 >= trimmed.size() || trimmed[end + 3] == ' ';
  if (is_word && (half_of_day == " AM" || half_of_day == " PM")) end += 3;
  return {std::string(trimmed.substr(0, end)), std::string(Trimmed(trimmed.substr(end)))};
}

}  // namespace

std::string_view Trimmed(std::string_view line) {
  const std::size_t begin = std::min(line.find_first_not_of(' '), line.size());
  return line.substr(begin, line.find_last_not_of(' ') + 1 - begin);
}

Placed PlaceEntry(DayLines& lines, std::string_view entry, std::string_view fitted) {
  const bool is_cut = fitted != entry;
  std::string* shorter = nullptr;
  std::string* blank = nullptr;
  for (std::string& line : lines) {
    const std::string_view known = Trimmed(line);
    if (Holds(known, entry) || (is_cut && Holds(known, fitted))) return Placed::kFound;
    if (!shorter && EndsWith(entry, known)) shorter = &line;
    if (!blank && known.empty()) blank = &line;
  }
  std::string* const place = shorter ? shorter : blank;
  if (!place) return Placed::kNoRoom;
  *place = fitted;
  return Placed::kPlaced;
}

void SortLines(DayLines& lines, SortTimeOption option) {
  std::vector<std::pair<std::string, std::string>> keyed;
  keyed.reserve(lines.size());
  for (std::string& line : lines) {
    if (Trimmed(line).empty()) continue;
    keyed.emplace_back(TimeSortKey(RowOfLine(line), option), std::move(line));
  }
  std::ranges::stable_sort(keyed, [](const auto& a, const auto& b) {
    return text::CompareIgnoringCase(a.first, b.first) < 0;
  });
  lines = {};
  for (std::size_t i = 0; i < keyed.size(); ++i) lines[i] = std::move(keyed[i].second);
}

}  // namespace tarnwell::planner
