#include "backup/backup_sets.h"

#include <algorithm>

#include "storage/file_names.h"
#include "text/letters.h"

namespace tarnwell::backup {
namespace {

namespace file_names = storage::file_names;

constexpr std::string_view kDocumentForms[] = {".hb1", ".hb2", ".hb3"};
constexpr std::string_view kEmployeeForms[] = {".hm#"};
constexpr std::string_view kVehicleForms[] = {".Ab1"};
constexpr std::string_view kPlannerForms[] = {" @.Bb1"};
constexpr std::string_view kBudgetForms[] = {"@.Bup"};
constexpr std::string_view kContactForms[] = {".ZZ#"};
constexpr std::string_view kImageForms[] = {".ZY#"};
constexpr std::string_view kSickLeaveForms[] = {"@.Sp1", "@.Sp2"};
constexpr std::string_view kVacationForms[] = {"@.Vp1", "@.Vp2"};

constexpr std::string_view kEmployeeWhole[] = {file_names::kEmployeeIndex,
                                               file_names::kEmployeePictures};
constexpr std::string_view kContactWhole[] = {file_names::kContactIndex};
constexpr std::string_view kImageWhole[] = {file_names::kImageIndex};

constexpr BackupFile kEmployeeFiles[] = {{file_names::kEmployees, "Name1.hm#", 1002}};
constexpr BackupFile kContactFiles[] = {{file_names::kContacts, "Addbk1.ZZ#", 1190},
                                        {file_names::kContactPictures, "Addbk3.ZZ#", 250}};
constexpr BackupFile kImageFiles[] = {{file_names::kImages, "Photobk3.ZY#", 300}};
constexpr BackupFile kPlannerFiles[] = {{" @.Cal", " @.Bb1", 900}};
constexpr BackupFile kVehicleFiles[] = {{"ACar#.Fil", "Acar.Ab1"},
                                        {"MCar#.Fil", "Mcar.Ab1"},
                                        {"RCar#.Fil", "Rcar.Ab1"},
                                        {"GCar#.Fil", "Gcar.Ab1"}};
constexpr BackupFile kBudgetFiles[] = {{"@.Fil", "@.Bup"}};
constexpr BackupFile kSickLeaveFiles[] = {{"@.Sl1", "@.Sp1"}, {"@.Sl2", "@.Sp2"}};
constexpr BackupFile kVacationFiles[] = {{"@.Vl1", "@.Vp1"}, {"@.Vl2", "@.Vp2"}};

constexpr std::string_view kLocationNotWritable =
    "Unable to access Disk or Disk is Full!\n"
    "Make sure Backup location is Not Write Protected!";
constexpr std::string_view kDiskNotWritable =
    "Unable to access Disk or Disk is Full!\n"
    "Make sure Disk is in Drive and Not Write Protected!";
constexpr std::string_view kNoYear =
    "Unable to find Backup Disk or Location containing requested files!\n"
    "Please insert another backup Disk into selected Drive and Try again.";

constexpr BackupSet kSets[] = {
    {.mode = 0,
     .kind = SetKind::kDocuments,
     .tag = "Employer",
     .info = "DiskInfo.bk1",
     .info_length = 30,
     .forms = kDocumentForms,
     .whole = {},
     .files = {},
     .full = DiskWords::kDocuments,
     .name = "Company Documents",
     .making = "Making User Created Files Backup Disk #",
     .not_writable_title = "Error",
     .not_writable = kLocationNotWritable,
     .deletes = "This utility will first Delete all existing User Created Files",
     .located = "located in The Tarnwell Program!",
     .restoring = "Restoring User Created Files",
     .not_found_title = "Disk Error",
     .not_found = "Unable to find Backup Disk #1 or Backup files!\n"
                  "Please insert Disk #1 into selected Drive and Try again.",
     .unreadable = "Unable to access Disk, Or No User Created Restore Files Were Found on This "
                   "Disk! Make sure Disk is in Drive!"},
    {.mode = 2,
     .kind = SetKind::kRecords,
     .tag = "Home",
     .info = "DiskInfo.hm1",
     .info_length = 15,
     .forms = kEmployeeForms,
     .whole = kEmployeeWhole,
     .files = kEmployeeFiles,
     .full = DiskWords::kRecords,
     .name = "Employee",
     .making = "Making Name Files Backup Disk #",
     .not_writable_title = "Disk Error",
     .not_writable = kDiskNotWritable,
     .deletes = "This utility will first Delete all existing Name files",
     .located = "located in Hollowmere Program!",
     .restoring = "Restoring Name Files",
     .not_found_title = "Disk Error",
     .not_found = "Unable to find Name Files Backup Disk #1 or Backup files!\n"
                  "Please insert Disk #1 into selected Drive and Try again.",
     .unreadable = "Unable to access Disk, Or No Name Restore Files Were Found on This Disk! Make "
                   "sure Disk is in Drive!"},
    {.mode = 26,
     .kind = SetKind::kVehicles,
     .tag = "Auto",
     .info = "DiskInfo.Abk",
     .info_length = 30,
     .forms = kVehicleForms,
     .whole = {},
     .files = kVehicleFiles,
     .full = DiskWords::kDocuments,
     .name = "Vehicle Maintenance",
     .making = "Making Automobile Backup Disk #",
     .not_writable_title = "Error",
     .not_writable = kLocationNotWritable,
     .deletes = "This utility will first Delete all existing Automobile files",
     .located = "located in Tarnwell Program!",
     .restoring = "Restoring Automobile Files",
     .not_found_title = "Restore Error",
     .not_found = "No Automobile Restore Files Were Found on This Disk!",
     .unreadable = "No Automobile Restore Files Were Found on This Disk!"},
    {.mode = 32,
     .kind = SetKind::kRecords,
     .tag = "DPlan",
     .info = "Disk#.Bbk",
     .info_length = 30,
     .forms = kPlannerForms,
     .whole = {},
     .files = kPlannerFiles,
     .full = DiskWords::kRecords,
     .name = "@ Daily Planner",
     .making = "Making Daily Planner Backup Disk #",
     .not_writable_title = "Error",
     .not_writable = kLocationNotWritable,
     .deletes = "This utility will first Delete all existing Daily Planner files",
     .located = "located in Tarnwell Program!",
     .restoring = "Restoring Daily Planner Files",
     .not_found_title = "Disk Error",
     .not_found = "Unable to find Daily Planner Files Backup Disk #1 or Backup files!\n"
                  "Please insert Disk #1 into selected Drive and Try again.",
     .unreadable = "Unable to access Disk, Or No Daily Planner Restore Files Were Found on This "
                   "Disk! Make sure Disk is in Drive!"},
    {.mode = 36,
     .kind = SetKind::kPlain,
     .tag = {},
     .info = {},
     .info_length = 0,
     .forms = kBudgetForms,
     .whole = {},
     .files = kBudgetFiles,
     .full = DiskWords::kRecords,
     .name = "",
     .making = "Making @ Budget Backup Disk #",
     .not_writable_title = {},
     .not_writable = {},
     .deletes = "This utility will first Delete the Selected Year existing Budget files",
     .located = "located in Tarnwell Program!",
     .restoring = "Restoring @ Budget File",
     .not_found_title = "Disk Error",
     .not_found = kNoYear,
     .unreadable = kNoYear},
    {.mode = 38,
     .kind = SetKind::kRecords,
     .tag = "AddressBk",
     .info = "DiskInfo.ZZ1",
     .info_length = 15,
     .forms = kContactForms,
     .whole = kContactWhole,
     .files = kContactFiles,
     .full = DiskWords::kRecords,
     .name = "Address Book",
     .making = "Making Address Book Files Backup Disk #",
     .not_writable_title = "Disk Error",
     .not_writable = kDiskNotWritable,
     .deletes = "This utility will first Delete all existing Address Book files",
     .located = "located in Tarnwell Program!",
     .restoring = "Restoring Address Book Files",
     .not_found_title = "Disk Error",
     .not_found = "Unable to find Address Book Files Backup Disk #1 or Backup files!\n"
                  "Please insert Disk #1 into selected Drive and Try again.",
     .unreadable = "Unable to access Disk, Or No Address Book Restore Files Were Found on This "
                   "Disk! Make sure Disk is in Drive!"},
    {.mode = 40,
     .kind = SetKind::kRecords,
     .tag = "PhotoBk2",
     .info = "DiskInfo.ZY1",
     .info_length = 15,
     .forms = kImageForms,
     .whole = kImageWhole,
     .files = kImageFiles,
     .full = DiskWords::kRecords,
     .name = "Document Images",
     .making = "Making Document Images Files Backup Disk #",
     .not_writable_title = "Disk Error",
     .not_writable = kDiskNotWritable,
     .deletes = "This utility will first Delete all existing Document Images files",
     .located = "located in Sennick Program!",
     .restoring = "Restoring Document Images Files",
     .not_found_title = "Disk Error",
     .not_found = "Unable to find Document Images File Backup Disk #1 or Backup files!\n"
                  "Please insert Disk #1 into selected Drive and Try again.",
     .unreadable = "Unable to access Disk, Or No Document Images Restore Files Were Found on This "
                   "Disk! Make sure Disk is in Drive!"},
    {.mode = 44,
     .kind = SetKind::kPlain,
     .tag = {},
     .info = {},
     .info_length = 0,
     .forms = kSickLeaveForms,
     .whole = {},
     .files = kSickLeaveFiles,
     .full = DiskWords::kRecords,
     .name = "Employee Sick Leave",
     .making = "Making @ Employee Sick Leave Backup Disk #",
     .not_writable_title = {},
     .not_writable = {},
     .deletes = "This utility will first Delete the Selected Year existing Sick Leave files",
     .located = "located in Tarnwell Program!",
     .restoring = "Restoring @ Employee Sick Leave File",
     .not_found_title = "Disk Error",
     .not_found = kNoYear,
     .unreadable = kNoYear},
    {.mode = 46,
     .kind = SetKind::kPlain,
     .tag = {},
     .info = {},
     .info_length = 0,
     .forms = kVacationForms,
     .whole = {},
     .files = kVacationFiles,
     .full = DiskWords::kRecords,
     .name = "Employee Vacation",
     .making = "Making @ Employee Vacation Backup Disk #",
     .not_writable_title = {},
     .not_writable = {},
     .deletes = "This utility will first Delete the Selected Year existing Vacation files",
     .located = "located in Tarnwell Program!",
     .restoring = "Restoring @ Employee Vacation File",
     .not_found_title = "Disk Error",
     .not_found = kNoYear,
     .unreadable = kNoYear},
};

bool AreDigits(std::string_view text) {
  return !text.empty() &&
         std::ranges::all_of(text, [](char letter) { return letter >= '0' && letter <= '9'; });
}

// A form that begins with "." is the end of any name.
bool Fits(std::string_view name, std::string_view form) {
  if (form.starts_with('.')) {
    const std::size_t dot = name.rfind('.');
    if (dot == std::string_view::npos || dot == 0) return false;
    name.remove_prefix(dot);
  }
  if (!form.ends_with('#')) return text::EqualIgnoringCase(name, form);
  form.remove_suffix(1);
  return text::EqualIgnoringCase(text::Left(name, form.size()), form) &&
         name.size() > form.size() && AreDigits(name.substr(form.size()));
}

std::string Replaced(std::string text, char mark, const std::string& by) {
  for (auto place = text.find(mark); place != std::string::npos;
       place = text.find(mark, place + by.size())) {
    text.replace(place, 1, by);
  }
  return text;
}

}  // namespace

std::span<const BackupSet> BackupSets() { return kSets; }

const BackupSet* SetOf(int mode) {
  const auto found = std::ranges::find(kSets, mode - mode % 2, &BackupSet::mode);
  return found == std::end(kSets) ? nullptr : &*found;
}

std::string ForYear(std::string_view words, int year) {
  return Replaced(std::string(words), '@', std::to_string(year));
}

std::string TitleOf(const BackupSet& set, int year) {
  return ForYear(set.name.empty() ? "@ Budget" : set.name, year);
}

std::string Filled(std::string_view name, int year, int number) {
  return Replaced(ForYear(name, year), '#', std::to_string(number));
}

bool IsInfo(const BackupSet& set, std::string_view name) {
  const std::size_t mark = set.info.find('#');
  if (mark == std::string_view::npos) return text::EqualIgnoringCase(name, set.info);
  const std::string_view before = set.info.substr(0, mark);
  const std::string_view behind = set.info.substr(mark + 1);
  return name.size() > before.size() + behind.size() &&
         text::EqualIgnoringCase(text::Left(name, before.size()), before) &&
         text::EqualIgnoringCase(text::Right(name, behind.size()), behind) &&
         AreDigits(name.substr(mark, name.size() - before.size() - behind.size()));
}

bool IsForm(const BackupSet& set, int year, std::string_view name) {
  return std::ranges::any_of(
      set.forms, [&](std::string_view form) { return Fits(name, ForYear(form, year)); });
}

}  // namespace tarnwell::backup
