#include <gmock/gmock.h>

#include <filesystem>
#include <random>
#include <sstream>

#include "storage/file_names.h"
#include "storage/record_file.h"
#include "storage/structure.h"
#include "support/format_page.h"
#include "support/temporary_folder.h"
#include "text/code_page_1252.h"
#include "tools/file_kinds.h"
#include "tools/print_file.h"

namespace tarnwell::tools {
namespace {

using storage::ProgramFolder;
using storage::RealFileSystem;
using tarnwell::testing::FileOf;
using tarnwell::testing::ReadFormatExample;
using tarnwell::testing::TemporaryFolder;
using ::testing::IsEmpty;
namespace file_names = storage::file_names;

std::string Dump(const std::string& folder_path, const std::string& name) {
  ProgramFolder folder(RealFileSystem(), folder_path);
  const FileKind* kind = FindFileKind(name);
  if (!kind) return "unknown kind";
  std::ostringstream out;
  PrintFile(folder, name, *kind, out);
  return out.str();
}

TEST(FileKindsTest, EveryFileOfTheProgramHasOneAndItsPageExists) {
  for (const std::string_view name : {file_names::kGColor1,
                                      file_names::kGColor2,
                                      file_names::kGColor3,
                                      file_names::kGColor4,
                                      file_names::kHinv3,
                                      file_names::kGhinv1,
                                      file_names::kCalendarOptions,
                                      file_names::kPersonPictureFolder,
                                      file_names::kVehiclePictureFolder,
                                      file_names::kImageFolder,
                                      file_names::kImageBackground,
                                      file_names::kDocumentStatus,
                                      file_names::kWorksheetTitles,
                                      file_names::kJobDescriptions,
                                      file_names::kDisciplinaryActions,
                                      file_names::kEvaluations,
                                      file_names::kArchive,
                                      file_names::kToDoList,
                                      file_names::kToDoListGeneralSave,
                                      file_names::kToDoNames,
                                      file_names::kLocation,
                                      file_names::kContacts,
                                      file_names::kContactIndex,
                                      file_names::kContactPictures,
                                      file_names::kEmployees,
                                      file_names::kEmployeeIndex,
                                      file_names::kEmployeePictures,
                                      file_names::kImages,
                                      file_names::kImageIndex,
                                      file_names::kVehicleSlots,
                                      file_names::kUserWords}) {
    const FileKind* kind = FindFileKind(name);
    EXPECT_TRUE(kind && kind->layout != Layout::kDocument) << name;
  }
  for (const std::string& name :
       {file_names::PlannerYear(2026), file_names::BudgetYear(2026), file_names::SickLeave(2026),
        file_names::SickLeaveRows(2026), file_names::Vacation(2026), file_names::VacationRows(2026),
        file_names::CalendarSheet(2026, 3), file_names::VehicleSheet(12),
        file_names::VehicleMaintenance(1), file_names::VehicleRepairs(1),
        file_names::VehicleFuel(1)}) {
    const FileKind* kind = FindFileKind(name);
    EXPECT_TRUE(kind && kind->layout != Layout::kDocument) << name;
  }
  EXPECT_EQ(FindFileKind(file_names::DocumentText(12))->layout, Layout::kDocument);
  EXPECT_EQ(FindFileKind("ledger.db"), nullptr);
  EXPECT_EQ(FindFileKind("2026.Cal"), nullptr) << "a planner year begins with a blank";
  for (const FileKind& kind : AllFileKinds()) {
    if (kind.page.empty()) continue;
    EXPECT_FALSE(ReadFormatExample(std::string(kind.page)).runs.empty()) << kind.pattern;
  }
}

TEST(FileKindsTest, FieldsFillNoMoreThanTheirRecord) {
  for (const FileKind& kind : AllFileKinds()) {
    std::size_t width = 0;
    for (const Field& field : kind.fields) width += field.width * field.count;
    EXPECT_LE(width, static_cast<std::size_t>(kind.record_length)) << kind.pattern;
  }
}

TEST(DumpTest, PrintsTheExamplesOfThePagesInWords) {
  struct Case {
    std::string name;
    const char* page;
    const char* dump;
  };
  const Case cases[] = {
      {" 2026.CAL", "planner-year-file.md",
       " 2026.CAL: planner year, 83650 bytes\n"
       "Monday, March 9, 2026 (record 93)\n"
       "  \"9:00 AM\"  \"Call the bank\"\n"},
      {"CalOpt.fil", "calopt.md",
       "CalOpt.fil: calendar display options, 322 bytes\n"
       "record 14 (months shown, less one): 1\n"
       "record 16 (first day of the week, 1 Sunday): 2\n"
       "record 17 (today's date, 1 shown): 1\n"},
      {"GCOLOR3.FIL", "gcolor3.md",
       "GCOLOR3.FIL: display settings, 1143 bytes\n"
       "record 25 (grid background of the display grids): \"12632256\"\n"
       "record 35 (\"Yes\": smaller-screen display): \"Yes\"\n"
       "record 36 (window height in twips): 11200 (4-byte float)\n"
       "record 37 (window width in twips): 15100 (4-byte float)\n"
       "record 58 (rows without a time, 0 first, 1 last): \"1\"\n"},
      {"HINV3.Fil", "hinv3.md",
       "HINV3.Fil: background of the start screen, 26 bytes\n"
       "record 3 (background of the start screen): 16711680 (4-byte integer)\n"},
      {"TODOActv.FIL", "todoactv.md",
       "TODOActv.FIL: company To Do list, 43 bytes\n"
       "row 1: item \"Pay rent\", to do date \"Mon - Mar 9, 26\"\n"},
      {"2026.Fil", "budget-year.md",
       "2026.Fil: budget year, 26 bytes\n"
       "row 1: item \"Rent\", Jan \"1200.00\", Feb \".50\"\n"},
      {"RAList.Fl2", "ralist.md",
       "RAList.Fl2: titles of worksheets, 43 bytes\n"
       "record 1 (worksheet button): \"Fire Safety\"\n"
       "record 3 (worksheet button): \" \"\n"},
      {"JobHold.Fl5", "jobhold.md",
       "JobHold.Fl5: names of job descriptions, 34 bytes\n"
       "value 1: \"Welder / 03/09/2026\"\n"
       "value 2: \"Zo\u00EB Ash\"\n"},
      {"ArchiveHold.Fla", "archivehold.md",
       "ArchiveHold.Fla: names of archived documents, 85 bytes\n"
       "value 1: \"Cell Phone Use Policy Mar-09-26.Fla\"\n"
       "value 2: \"Independant Contract Agreeme Mar-09-26.Fla\"\n"},
  };
  TemporaryFolder disk;
  for (const auto& [name, page, dump] : cases) {
    disk.Write(name, FileOf(ReadFormatExample(page)));
    EXPECT_EQ(Dump(disk.path(), name), dump);
  }
}

TEST(DumpTest, NamesThePlannersDatesInAllMonths) {
  const std::pair<int, const char*> days[] = {
      {11, "Thursday, January 1, 2026"},      {311, "Saturday, January 31, 2026"},
      {309, "Wednesday, September 30, 2026"}, {321, "Thursday, October 1, 2026"},
      {351, "Saturday, October 31, 2026"},    {361, "Sunday, November 1, 2026"},
      {390, "Monday, November 30, 2026"},     {401, "Tuesday, December 1, 2026"},
      {431, "Thursday, December 31, 2026"},
  };
  storage::StructureWriter day;
  day.FixedText("", 840).FixedText("Full", 10);
  for (const auto& [record, date] : days) {
    TemporaryFolder disk;
    ProgramFolder folder(RealFileSystem(), disk.path());
    storage::RecordFile(folder, " 2026.Cal", 900).PutStructure(record, day.bytes());
    EXPECT_THAT(Dump(disk.path(), " 2026.Cal"), ::testing::HasSubstr(std::string("\n") + date));
  }
}

// Each folder of tests/data/broken/ is named by its defect and holds the file and what is left of
// it in words.
TEST(DumpTest, ABrokenFileLosesOnlyWhatIsBroken) {
  int count = 0;
  for (const auto& defect : std::filesystem::directory_iterator(TARNWELL_TEST_DATA "/broken")) {
    TemporaryFolder disk;
    std::string expected;
    std::string name;
    for (const auto& entry : std::filesystem::directory_iterator(defect)) {
      std::ifstream file(entry.path(), std::ios::binary);
      const std::string content{std::istreambuf_iterator<char>(file), {}};
      const bool is_expectation = entry.path().filename() == "expected.txt";
      if (is_expectation) {
        expected = content;
      } else {
        name = entry.path().filename();
        disk.Write(name, content);
      }
    }
    EXPECT_EQ(Dump(disk.path(), name), expected) << defect.path().filename();
    ++count;
  }
  EXPECT_GT(count, 0);
}

TEST(DumpTest, RandomBytesAsAnyKindOfFileDoNoHarm) {
  std::mt19937 random(1899);
  TemporaryFolder disk;
  for (const FileKind& kind : AllFileKinds()) {
    if (kind.layout == Layout::kDocument) continue;
    std::string name(kind.pattern);
    for (char& letter : name) {
      if (letter == '#' || letter == '+' || letter == '?') letter = '9';
    }
    for (int round = 0; round < 4; ++round) {
      std::string content(random() % 4000, '\0');
      for (char& byte : content) byte = static_cast<char>(random() % (round == 0 ? 3 : 256));
      disk.Write(name, content);
      const std::string dump = Dump(disk.path(), name);
      EXPECT_LT(dump.size(), 200 + 100 * content.size()) << name;
      EXPECT_EQ(text::ToUtf8(text::FromUtf8(text::Utf8(dump))).bytes(), dump) << name;
    }
  }
}

TEST(DumpTest, AMissingFileIsNotMade) {
  TemporaryFolder disk;
  EXPECT_EQ(Dump(disk.path(), "GColor3.Fil"), "");
  EXPECT_THAT(disk.Names(), IsEmpty());
}

}  // namespace
}  // namespace tarnwell::tools
