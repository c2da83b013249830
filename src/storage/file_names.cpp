#include "storage/file_names.h"

namespace tarnwell::storage::file_names {
namespace {

std::string Numbered(std::string_view stem, int number, std::string_view extension) {
  return std::string(stem).append(std::to_string(number)).append(extension);
}

}  // namespace

std::string Wallpaper(int number) { return Numbered("WP", number, ".jpg"); }

std::string DocumentText(int number) { return Numbered("EmployPolicy", number, ".Fl2"); }
std::string DocumentComments(int number) { return Numbered("EmployComment", number, ".Fl2"); }
std::string DocumentTemplate(int number) { return Numbered("EmployPolicy", number, ".Fl1"); }
std::string Worksheet(int number) { return Numbered("EmployWksht", number, ".Fl2"); }

std::string PlannerYear(int year) { return Numbered(" ", year, ".Cal"); }
std::string BudgetYear(int year) { return Numbered("", year, ".Fil"); }
std::string SickLeave(int year) { return Numbered("", year, ".Sl1"); }
std::string SickLeaveRows(int year) { return Numbered("", year, ".Sl2"); }
std::string Vacation(int year) { return Numbered("", year, ".Vl1"); }
std::string VacationRows(int year) { return Numbered("", year, ".Vl2"); }

std::string CalendarSheet(int year, unsigned month) {
  return Numbered("", year * 100 + static_cast<int>(month), ".Fil");
}

std::string VehicleSheet(int slot) { return Numbered("ACar", slot, ".Fil"); }
std::string VehicleMaintenance(int slot) { return Numbered("MCar", slot, ".Fil"); }
std::string VehicleRepairs(int slot) { return Numbered("RCar", slot, ".Fil"); }
std::string VehicleFuel(int slot) { return Numbered("GCar", slot, ".Fil"); }

}  // namespace tarnwell::storage::file_names
