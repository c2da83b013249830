// Every file name that the program owns. Capitals are as on the disks of old users; ProgramFolder
// finds a file whatever its capitals. docs/formats/ has the pages of the kinds.

#pragma once

#include <string>
#include <string_view>

namespace tarnwell::storage::file_names {

// The store's own files beside the user's; no user's file can have a name that begins so.
inline constexpr std::size_t kLongestName = 255;  // bytes of UTF-8
inline constexpr std::string_view kOwnPrefix = ".tarnwell-";
inline constexpr std::string_view kLock = ".tarnwell-lock";
inline constexpr std::string_view kRedoNote = ".tarnwell-redo";
inline constexpr std::string_view kSavePrefix = ".tarnwell-save-";  // and eight digits
inline constexpr std::string_view kReplacementJournal = ".tarnwell-replacement";
inline constexpr std::string_view kNewPrefix = ".tarnwell-new-";  // likewise
inline constexpr std::string_view kOldPrefix = ".tarnwell-old-";  // likewise

// What was typed on a screen and not saved, and the form's name in the middle.
inline constexpr std::string_view kUnsavedPrefix = "Unsaved-";
inline constexpr std::string_view kUnsavedExtension = ".Fil";

// Settings: colours, display, printer fonts, backgrounds, folders last used.
inline constexpr std::string_view kGColor1 = "GColor1.Fil";
inline constexpr std::string_view kGColor2 = "GColor2.Fil";
inline constexpr std::string_view kGColor3 = "GColor3.Fil";
inline constexpr std::string_view kGColor4 = "GColor4.Fil";
inline constexpr std::string_view kDisplaySettings = kGColor3;
inline constexpr std::string_view kDisplaySettingsBackup = "Gcolor3.hb1";
inline constexpr std::string_view kHinv3 = "HINV3.Fil";
inline constexpr std::string_view kGhinv1 = "GHINV1.Fil";
inline constexpr std::string_view kCalendarOptions = "CalOpt.fil";
inline constexpr std::string_view kPersonPictureFolder = "Gcolor17.Fil";
inline constexpr std::string_view kVehiclePictureFolder = "GColor14.Fil";
inline constexpr std::string_view kImageFolder = "GColor44.Fil";
inline constexpr std::string_view kBackupPlace = "BackupPlace.Fil";
inline constexpr std::string_view kImageBackground = "GColor5.Fil";  // supplied

// Company documents.
inline constexpr std::string_view kDocumentStatus = "Stat1.Fil";
inline constexpr std::string_view kWorksheetTitles = "RAList.Fl2";
inline constexpr std::string_view kDisclaimer = "EmployAction1.Fl2";
inline constexpr std::string_view kRecoveryPlan = "DRPln1.Fl2";
inline constexpr std::string_view kJobDescriptions = "JobHold.Fl5";
inline constexpr std::string_view kDisciplinaryActions = "DiscpHold.Fl6";
inline constexpr std::string_view kEvaluations = "EvalHold.Fl7";
inline constexpr std::string_view kArchive = "ArchiveHold.Fla";

// Company To Do list.
inline constexpr std::string_view kToDoList = "TODOActv.FIL";
inline constexpr std::string_view kToDoListGeneralSave = "TODOActv.Fl2";
inline constexpr std::string_view kToDoNames = "TODONAME.FIL";
inline constexpr std::string_view kLocation = "Location.Fil";

// Business contacts, employees, document images. One record number joins the files of a row.
inline constexpr std::string_view kContacts = "ADDBK1.Fil";
inline constexpr std::string_view kContactIndex = "ADDBK2.Fil";
inline constexpr std::string_view kContactPictures = "ADDBK3.Fil";
inline constexpr std::string_view kEmployees = "Name1.Fil";
inline constexpr std::string_view kEmployeeIndex = "Name2.Fil";
inline constexpr std::string_view kEmployeePictures = "Name3.Fil";
inline constexpr std::string_view kImages = "Photobk3.Fil";
inline constexpr std::string_view kImageIndex = "Photobk4.Fil";

// Vehicles.
inline constexpr std::string_view kVehicleSlots = "CarMnt1.Fil";

// Budget chart on its way to a printed page.
inline constexpr std::string_view kChartPicture = "Chartxxx.jpg";

// Words that the user added to the dictionary.
inline constexpr std::string_view kUserWords = "UserWords.Fil";

// Supplied texts.
inline constexpr std::string_view kDisclaimerText = "Misc1.Fl1";
inline constexpr std::string_view kProgramInformation = "Misc2.Fl1";
inline constexpr std::string_view kGettingStarted = "Misc8.Fl1";
inline constexpr std::string_view kSampleIncidentReport = "Misc57.Fl1";
inline constexpr std::string_view kWorksheetTemplate = "Misc59.Fl1";
inline constexpr std::string_view kRecoveryPlanInformation = "Misc60.Fl1";
inline constexpr std::string_view kRuleSpecifications = "Misc61.Fl1";
inline constexpr std::string_view kRuleReferences = "Misc62.Fl1";
inline constexpr std::string_view kRuleInformation = "Misc63.Fl1";
inline constexpr std::string_view kRecoveryPlanTemplate = "DRPln1.Fl1";
inline constexpr std::string_view kSamplePolicy = "SamplePol.Dat";
inline constexpr std::string_view kMakes = "Makes.Dat";
inline constexpr std::string_view kHelp = "Tarnwell.chm";
// Supplied addresses of web sites, in a folder of their own.
inline constexpr std::string_view kLinksFolder = "links";
inline constexpr std::string_view kStateLinks = "states.txt";
inline constexpr std::string_view kFederalLinks = "federal.txt";
inline constexpr std::string_view kInternetLinks = "internet.txt";
// The pictures behind grids, 1 to 16.
std::string Wallpaper(int number);

// Numbered documents; numbers stand in the name without leading zeros.
std::string DocumentText(int number);
std::string DocumentComments(int number);
std::string DocumentTemplate(int number);
std::string Worksheet(int number);

// The file of something that the user named, such as a report "Ann Lee / 03/09/2026": the name
// without the blanks at its ends, cut to what a file's name can hold, with "-" for each character
// that it can't, and the extension (".Fl5"), unless the name ends in that. Never the file of a list
// of names.
std::string OfUserName(std::string_view name, std::string_view extension);

// Year files. The blank in front of a planner's year is part of its name.
std::string PlannerYear(int year);
std::string BudgetYear(int year);
std::string SickLeave(int year);
std::string SickLeaveRows(int year);
std::string Vacation(int year);
std::string VacationRows(int year);
std::string CalendarSheet(int year, unsigned month);
// Where the year file of that name is kept that a copy from the year before replaced.
std::string Replaced(std::string_view year_file);

// The files of the vehicle in a slot, from 1.
std::string VehicleSheet(int slot);
std::string VehicleMaintenance(int slot);
std::string VehicleRepairs(int slot);
std::string VehicleFuel(int slot);

}  // namespace tarnwell::storage::file_names
