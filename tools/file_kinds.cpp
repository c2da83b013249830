#include "tools/file_kinds.h"

#include "text/letters.h"

namespace tarnwell::tools {
namespace {

using enum Layout;

constexpr RecordMeaning kGColor1[] = {
    {10, 13, Form::kText, "panel colour"},
    {14, 14, Form::kText, "grid background of the budget"},
    {15, 15, Form::kText, "budget panel setting"},
    {16, 22, Form::kText, "panel colour"},
    {25, 25, Form::kText, "port of the modem"},
    {26, 26, Form::kText, "\"OFF\": vehicles' date checker is off"},
    {27, 40, Form::kText, "panel colour"},
    {42, 42, Form::kText, "grid background of the work area"},
    {49, 54, Form::kText, "panel colour"},
    {55, 55, Form::kTagged, "document images' top toolbar, 0 hidden"},
    {56, 80, Form::kText, "panel colour"},
};

constexpr RecordMeaning kGColor2[] = {
    {5, 40, Form::kText, "panel colour"},
    {41, 42, Form::kText, "setting of the picture pages"},
};

constexpr RecordMeaning kGColor3[] = {
    {2, 2, Form::kText, "panel colour of the work area"},
    {4, 4, Form::kTagged, "text colour of documents"},
    {8, 8, Form::kText, "panel colour"},
    {11, 16, Form::kText, "guide lines when printing"},
    {17, 17, Form::kText, "panel colour of document images"},
    {19, 19, Form::kText, "text-box colour of document images"},
    {25, 25, Form::kText, "grid background of the display grids"},
    {35, 35, Form::kText, "\"Yes\": smaller-screen display"},
    {36, 36, Form::kTagged, "window height in twips"},
    {37, 37, Form::kTagged, "window width in twips"},
    {40, 40, Form::kText, "vehicles' distance unit, 0 miles, 1 kilometers"},
    {56, 56, Form::kText, "guide lines when printing"},
    {57, 58, Form::kText, "rows without a time, 0 first, 1 last"},
    {59, 59, Form::kText, "guide lines when printing"},
    {91, 105, Form::kText, "panel colour"},
};

constexpr RecordMeaning kGColor4[] = {{18, 29, Form::kTagged, "printer font or its size"}};
constexpr RecordMeaning kHinv3[] = {{3, 3, Form::kTagged, "background of the start screen"}};
constexpr RecordMeaning kGhinv1[] = {
    {10, 10, Form::kTagged, "document images' side toolbars, 0 hidden"}};

constexpr RecordMeaning kCalendarOptions[] = {
    {14, 14, Form::kInteger, "months shown, less one"},
    {15, 15, Form::kInteger, "week numbers, 0 shown, 1 hidden"},
    {16, 16, Form::kInteger, "first day of the week, 1 Sunday"},
    {17, 17, Form::kInteger, "today's date, 1 shown"},
};

constexpr RecordMeaning kDocumentStatus[] = {
    {1, 48, Form::kText, "status of a document"},
    {49, 69, Form::kText, "status of a worksheet"},
};

constexpr RecordMeaning kWorksheetTitles[] = {{1, 20, Form::kText, "worksheet button"}};
constexpr RecordMeaning kVehicleSlots[] = {{1, 30000, Form::kText, "vehicle slot"}};
constexpr RecordMeaning kNameIndex[] = {{2, 20001, Form::kText, "name and record number"}};
constexpr RecordMeaning kPictures[] = {{2, 20001, Form::kTagged, "picture"}};

constexpr RecordMeaning kDiskInfo[] = {
    {1, 1, Form::kText, "backup set"},         {2, 2, Form::kText, "this disk"},
    {3, 3, Form::kText, "next disk"},          {4, 4, Form::kText, "position at its end"},
    {5, 5, Form::kText, "items on this disk"}, {6, 6, Form::kText, "\"T1\": finished"},
};

constexpr Field kContact[] = {
    {40, 1, "business name"},  {40, 1, "first name"},     {40, 2, "address"},
    {40, 1, "city"},           {40, 1, "state"},          {40, 1, "zip"},
    {40, 1, "phone"},          {40, 1, "mobile"},         {40, 1, "fax"},
    {40, 1, "home email"},     {40, 1, "business email"}, {40, 1, "web page"},
    {40, 1, "contact name"},   {40, 1, "job title"},      {40, 2, "contact address"},
    {40, 1, "contact city"},   {40, 1, "contact state"},  {40, 1, "contact zip"},
    {40, 1, "business phone"}, {40, 1, "contact mobile"}, {40, 1, "business fax"},
    {40, 1, "field 23"},       {230, 1, "comments"},
};

constexpr Field kEmployee[] = {
    {21, 1, "last name"},   {21, 1, "first name"}, {30, 2, "address"},   {25, 1, "city"},
    {20, 1, "state"},       {10, 1, "zip"},        {20, 1, "telephone"}, {20, 1, "birthdate"},
    {20, 1, "anniversary"}, {20, 1, "email"},      {30, 1, "position"},  {30, 1, "job title"},
    {30, 1, "hired"},       {30, 1, "ended"},      {30, 1, "other"},     {130, 1, "comments"},
    {20, 24, "reserved"},
};

constexpr Field kImage[] = {{50, 1, "title"}, {50, 1, "date"}, {200, 1, "picture"}};

constexpr std::string_view kToDoColumns[] = {"item", "to do date", "actual date", "spacer",
                                             "next review date"};
constexpr std::string_view kBudgetColumns[] = {"item", "Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                               "Jul",  "Aug", "Sep", "Oct", "Nov", "Dec"};
constexpr std::string_view kLeaveColumns[] = {"employee", "Jan",  "Feb",  "Mar", "Apr", "May",
                                              "Jun",      "Jul",  "Aug",  "Sep", "Oct", "Nov",
                                              "Dec",      "used", "auth", "bal"};
constexpr std::string_view kSheetColumns[] = {"line 1", "line 2", "line 3", "line 4", "line 5",
                                              "line 6", "line 7", "line 8", "line 9", "line 10"};
constexpr std::string_view kHistoryColumns[] = {"odometer", "date", "action", "cost"};
constexpr std::string_view kFuelColumns[] = {"date", "previous", "current", "driven",
                                             "fuel", "rate",     "cost"};

// In the order of their owners; a pattern that another one also fits stands behind it.
constexpr FileKind kKinds[] = {
    {"GColor1.Fil", "colours and backgrounds", kRecords, "gcolor1.md", 20, kGColor1},
    {"GColor2.Fil", "panel colours", kRecords, "gcolor2.md", 20, kGColor2},
    {"GColor3.Fil", "display settings", kRecords, "gcolor3.md", 20, kGColor3},
    {"GColor3.hb1", "backup of the display settings", kRecords, "gcolor3.md", 20, kGColor3},
    {"GColor4.Fil", "printer fonts", kRecords, "gcolor4.md", 40, kGColor4},
    {"Gcolor17.Fil", "picture folder of contacts and employees", kValues, "picture-folders.md"},
    {"GColor14.Fil", "picture folder of vehicles", kValues, "picture-folders.md"},
    {"GColor44.Fil", "picture folder of document images", kValues, "picture-folders.md"},
    {"BackupPlace.Fil", "place of the last backup", kValues, "picture-folders.md"},
    {"GColor5.Fil", "background of document images", kValues, "gcolor5.md"},
    {"HINV3.Fil", "background of the start screen", kRecords, "hinv3.md", 10, kHinv3},
    {"HINV3.hb1", "backup of the start screen's background", kRecords, "hinv3.md", 10, kHinv3},
    {"Test1.hb1", "write test of a backup", kRecords, "hinv3.md", 10, kHinv3},
    {"GHINV1.Fil", "toolbars of document images", kRecords, "ghinv1.md", 10, kGhinv1},

    {"Stat1.Fil", "status of documents", kRecords, "stat1.md", 20, kDocumentStatus},
    {"Stat1.hb1", "backup of the status of documents", kRecords, {}, 20, kDocumentStatus},
    {"RAList.Fl2", "titles of worksheets", kRecords, "ralist.md", 20, kWorksheetTitles},
    {"RAList.hb1", "backup of the titles of worksheets", kRecords, "ralist.md", 20,
     kWorksheetTitles},
    {"JobHold.Fl5", "names of job descriptions", kValues, "jobhold.md"},
    {"JobHold.Hb2", "backup of the names of job descriptions", kValues, "jobhold.md"},
    {"DiscpHold.Fl6", "names of disciplinary actions", kValues, "jobhold.md"},
    {"DiscpHold.Hb2", "backup of the names of disciplinary actions", kValues, "jobhold.md"},
    {"EvalHold.Fl7", "names of evaluations", kValues, "jobhold.md"},
    {"EvalHold.Hb2", "backup of the names of evaluations", kValues, "jobhold.md"},
    {"ArchiveHold.Fla", "names of archived documents", kValues, "archivehold.md"},
    {"ArchiveHold.Hb3", "backup of the names of archived documents", kValues, "archivehold.md"},

    {"TODOActv.FIL", "company To Do list", kRows, "todoactv.md", 0, {}, {}, kToDoColumns},
    {"TODOActv.Fl2", "company To Do list", kRows, "todoactv.md", 0, {}, {}, kToDoColumns},
    {"TODOActv.hb1", "backup of the To Do list", kRows, "todoactv.md", 0, {}, {}, kToDoColumns},
    {"TODONAME.FIL", "To Do item names", kValues, "todoname.md"},
    {"TODONAME.hb1", "backup of the To Do item names", kValues},
    {"Location.Fil", "location marker", kValues},

    {"UserWords.Fil", "words added to the dictionary", kValues, "user-words.md"},

    {" ####.Cal", "planner year", kPlannerDays, "planner-year-file.md", 900},
    {" ####.Bb1", "backup of a planner year", kPlannerDays, "planner-year-file.md", 900},
    {"CalOpt.fil", "calendar display options", kRecords, "calopt.md", 20, kCalendarOptions},
    {"######.Fil", "calendar sheet", kRows, "calendar-sheet.md", 0, {}, {}, kSheetColumns, 31},

    {"####.Fil", "budget year", kRows, "budget-year.md", 0, {}, {}, kBudgetColumns, 500},
    {"####.Bup",
     "backup of a budget year",
     kRows,
     "budget-year.md",
     0,
     {},
     {},
     kBudgetColumns,
     500},

    {"ADDBK1.Fil", "business contacts", kFields, "contacts.md", 1190, {}, kContact},
    {"ADDBK2.Fil", "names of business contacts", kRecords, "record-book.md", 60, kNameIndex},
    {"ADDBK3.Fil", "pictures of business contacts", kRecords, "record-book.md", 250, kPictures},
    {"ADDBK1.ZZ+", "backup of business contacts", kFields, "contacts.md", 1190, {}, kContact},
    {"ADDBK3.ZZ+", "backup of contacts' pictures", kRecords, "record-book.md", 250, kPictures},

    {"Name1.Fil", "employees", kFields, "employees.md", 1002, {}, kEmployee},
    {"Name2.Fil", "names of employees", kRecords, "record-book.md", 60, kNameIndex},
    {"Name3.Fil", "pictures of employees", kRecords, "record-book.md", 250, kPictures},
    {"Name1.hm+", "backup of employees", kFields, "employees.md", 1002, {}, kEmployee},

    {"Photobk3.Fil", "document images", kFields, "images.md", 300, {}, kImage},
    {"Photobk4.Fil", "names of document images", kRecords, "record-book.md", 60, kNameIndex},
    {"Photobk3.ZY+", "backup of document images", kFields, "images.md", 300, {}, kImage},

    {"####.Sl1", "sick leave year", kRows, "leave-year.md", 0, {}, {}, kLeaveColumns},
    {"####.Sp1", "backup of a sick leave year", kRows, {}, 0, {}, {}, kLeaveColumns},
    {"####.Sl2", "row count of a sick leave year", kValues, "leave-year.md"},
    {"####.Sp2", "backup of a sick leave row count", kValues},
    {"####.Vl1", "vacation year", kRows, "leave-year.md", 0, {}, {}, kLeaveColumns},
    {"####.Vp1", "backup of a vacation year", kRows, {}, 0, {}, {}, kLeaveColumns},
    {"####.Vl2", "row count of a vacation year", kValues, "leave-year.md"},
    {"####.Vp2", "backup of a vacation row count", kValues},

    {"CarMnt1.Fil", "vehicle slots", kRecords, "vehicle-slots.md", 150, kVehicleSlots},
    {"CarMnt1.Ab1", "backup of the vehicle slots", kRecords, "vehicle-slots.md", 150,
     kVehicleSlots},
    {"ACar+.Fil", "vehicle sheet", kValues, "vehicle-sheet.md"},
    {"MCar+.Fil", "maintenance history", kRows, "vehicle-history.md", 0, {}, {}, kHistoryColumns},
    {"RCar+.Fil",
     "repairs and expenditures",
     kRows,
     "vehicle-history.md",
     0,
     {},
     {},
     kHistoryColumns},
    {"GCar+.Fil", "fuel tracker", kRows, "vehicle-fuel.md", 0, {}, {}, kFuelColumns},
    {"?Car.Ab1", "backup of the vehicles' sheets or histories", kValues},

    {"DiskInfo.bk1", "backup disk of company documents", kRecords, "backup-sets.md", 30, kDiskInfo},
    {"DiskInfo.Abk", "backup disk of vehicles", kRecords, "backup-sets.md", 30, kDiskInfo},
    {"Disk+.Bbk", "backup disk of the planner", kRecords, "backup-sets.md", 30, kDiskInfo},
    {"DiskInfo.hm1", "backup disk of employees", kRecords, "backup-sets.md", 15, kDiskInfo},
    {"DiskInfo.ZZ1", "backup disk of contacts", kRecords, "backup-sets.md", 15, kDiskInfo},
    {"DiskInfo.ZY1", "backup disk of document images", kRecords, "backup-sets.md", 15, kDiskInfo},

    {"*.Fl1", "supplied text", kDocument},
    {"SamplePol.Dat", "supplied text", kDocument},
    {"Makes.Dat", "supplied makes and models", kDocument},
    {"*.Fl2", "company document", kDocument},
    {"*.Fl5", "job description", kDocument},
    {"*.Fl6", "disciplinary action", kDocument},
    {"*.Fl7", "evaluation", kDocument},
    {"*.Fla", "archived document", kDocument},
    {"*.hb1", "backup of a company document", kDocument},
    {"*.Hb2", "backup of a named document", kDocument},
    {"*.Hb3", "backup of an archived document", kDocument},
    {"*.jpg", "picture", kDocument},
    {"*.xls", "exported spreadsheet", kDocument},
};

bool IsDigit(char letter) { return letter >= '0' && letter <= '9'; }

// Both in capitals.
bool Matches(std::string_view pattern, std::string_view name) {
  if (pattern.empty()) return name.empty();
  const std::string_view rest = pattern.substr(1);
  if (pattern[0] == '*' && Matches(rest, name)) return true;
  if (name.empty()) return false;
  const std::string_view tail = name.substr(1);
  switch (pattern[0]) {
    case '*':
      return Matches(pattern, tail);
    case '?':
      return Matches(rest, tail);
    case '#':
      return IsDigit(name[0]) && Matches(rest, tail);
    case '+':
      return IsDigit(name[0]) && (Matches(pattern, tail) || Matches(rest, tail));
    default:
      return pattern[0] == name[0] && Matches(rest, tail);
  }
}

}  // namespace

std::span<const FileKind> AllFileKinds() { return kKinds; }

const FileKind* FindFileKind(std::string_view name) {
  const std::string folded = text::UpperCase(name);
  for (const FileKind& kind : kKinds) {
    if (Matches(text::UpperCase(kind.pattern), folded)) return &kind;
  }
  return nullptr;
}

}  // namespace tarnwell::tools
