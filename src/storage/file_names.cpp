#include "storage/file_names.h"

#include <algorithm>

#include "storage/program_folder.h"
#include "text/code_page_1252.h"
#include "text/letters.h"

namespace tarnwell::storage::file_names {
namespace {

std::string Numbered(std::string_view stem, int number, std::string_view extension) {
  return std::string(stem).append(std::to_string(number)).append(extension);
}

// In the middle of a name, on the file systems of other machines too.
bool FitsInName(char letter) {
  constexpr std::string_view kForbiddenElsewhere = "*?\"<>|";
  return letter == '.' || (IsPlainFileName({&letter, 1}) &&
                           kForbiddenElsewhere.find(letter) == std::string_view::npos);
}

}  // namespace

std::string Wallpaper(int number) { return Numbered("WP", number, ".jpg"); }

std::string DocumentText(int number) { return Numbered("EmployPolicy", number, ".Fl2"); }
std::string DocumentComments(int number) { return Numbered("EmployComment", number, ".Fl2"); }
std::string DocumentTemplate(int number) { return Numbered("EmployPolicy", number, ".Fl1"); }
std::string Worksheet(int number) { return Numbered("EmployWksht", number, ".Fl2"); }

std::string OfUserName(std::string_view name, std::string_view extension) {
  std::string stem = text::Trim(name);
  if (text::EqualIgnoringCase(text::Right(stem, extension.size()), extension)) {
    stem.resize(stem.size() - extension.size());
  }
  stem.resize(std::min(stem.size(), kLongestName - extension.size()));
  std::ranges::replace_if(
      stem, [](char letter) { return !FitsInName(letter); }, '-');
  // A name that begins with a dot is hidden, or the store's own.
  if (stem.empty() || stem[0] == '.') stem.replace(0, 1, "-");
  while (text::ToUtf8(stem).bytes().size() + extension.size() > kLongestName) stem.pop_back();
  const std::string file = stem + std::string(extension);
  const std::string_view lists[] = {kJobDescriptions, kDisciplinaryActions, kEvaluations, kArchive};
  const bool is_list = std::ranges::any_of(
      lists, [&](std::string_view list) { return text::EqualIgnoringCase(list, file); });
  return is_list ? stem.append("-").append(extension) : file;
}

std::string PlannerYear(int year) { return Numbered(" ", year, ".Cal"); }
std::string BudgetYear(int year) { return Numbered("", year, ".Fil"); }
std::string SickLeave(int year) { return Numbered("", year, ".Sl1"); }
std::string SickLeaveRows(int year) { return Numbered("", year, ".Sl2"); }
std::string Vacation(int year) { return Numbered("", year, ".Vl1"); }
std::string VacationRows(int year) { return Numbered("", year, ".Vl2"); }

std::string CalendarSheet(int year, unsigned month) {
  return Numbered("", year * 100 + static_cast<int>(month), ".Fil");
}

std::string Replaced(std::string_view year_file) { return std::string(year_file) + ".old"; }

std::string VehicleSheet(int slot) { return Numbered("ACar", slot, ".Fil"); }
std::string VehicleMaintenance(int slot) { return Numbered("MCar", slot, ".Fil"); }
std::string VehicleRepairs(int slot) { return Numbered("RCar", slot, ".Fil"); }
std::string VehicleFuel(int slot) { return Numbered("GCar", slot, ".Fil"); }

}  // namespace tarnwell::storage::file_names
