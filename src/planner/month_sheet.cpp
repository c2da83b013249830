#include "planner/month_sheet.h"

#include <charconv>

#include "storage/file_names.h"
#include "storage/sequential_file.h"
#include "text/leading_number.h"
#include "text/letters.h"

namespace tarnwell::planner {
namespace {

constexpr double kLargestFont = 1000;  // points

std::string FileOf(text::Date month) {
  return storage::file_names::CalendarSheet(text::YearOf(month), text::MonthOf(month));
}

std::string NumberText(double number) {
  std::array<char, 32> digits;
  return {digits.begin(),
          std::to_chars(digits.begin(), digits.end(), number, std::chars_format::fixed).ptr};
}

const char* FlagText(bool flag) { return flag ? "Yes" : "No"; }

bool ReadFlag(const std::string& value, bool usual) {
  const std::string flag = text::UpperCase(text::Trim(value));
  return flag.empty() ? usual : flag == "YES" || flag == "TRUE" || text::LeadingNumber(flag) != 0;
}

forms::Font ReadFont(storage::SequentialReader& file, const forms::Font& usual) {
  forms::Font font = usual;
  const std::string name = text::Trim(file.Next());
  if (!name.empty()) font.name = name;
  const double size = text::LeadingNumber(text::Trim(file.Next()));
  if (size >= 1 && size <= kLargestFont) font.size = size;
  font.bold = ReadFlag(file.Next(), usual.bold);
  font.italic = ReadFlag(file.Next(), usual.italic);
  font.strike = ReadFlag(file.Next(), usual.strike);
  font.underline = ReadFlag(file.Next(), usual.underline);
  const std::string color = text::Trim(file.Next());
  if (!color.empty()) {
    font.color = forms::ColorFromNumber(text::LeadingNumber(color)).value_or(usual.color);
  }
  return font;
}

}  // namespace

text::Date MonthOfSheet(text::Date date) {
  return text::MakeDate(text::YearOf(date), text::MonthOf(date), 1);
}

int DaysInMonth(text::Date date) {
  const std::chrono::year_month_day_last last{date.year(),
                                              std::chrono::month_day_last{date.month()}};
  return static_cast<int>(static_cast<unsigned>(last.day()));
}

StoredMonthSheet ReadMonthSheet(storage::ProgramFolder& folder, text::Date month,
                                const forms::Font& usual) {
  storage::SequentialReader file(folder, FileOf(month));
  StoredMonthSheet stored;
  if (file.is_unreadable()) stored.fault = file.fault();
  for (DayLines& day : stored.sheet.days) {
    for (std::string& line : day) line = file.Next();
  }
  stored.sheet.font = ReadFont(file, usual);
  return stored;
}

storage::Outcome WriteMonthSheet(storage::ProgramFolder& folder, text::Date month,
                                 const MonthSheet& sheet) {
  storage::SequentialWriter file;
  for (const DayLines& day : sheet.days) {
    for (const std::string& line : day) file.WriteText(line);
  }
  const forms::Font& font = sheet.font;
  file.WriteText(font.name);
  file.WriteText(NumberText(font.size));
  for (const bool flag : {font.bold, font.italic, font.strike, font.underline}) {
    file.WriteText(FlagText(flag));
  }
  file.WriteText(std::to_string(font.color));
  return file.Save(folder, FileOf(month));
}

storage::Outcome DeleteMonthSheet(storage::ProgramFolder& folder, text::Date month) {
  return folder.Delete(FileOf(month));
}

}  // namespace tarnwell::planner
