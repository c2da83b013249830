// Every kind of save, disturbed at every system call that it makes. docs/reliability.md has the
// figures.

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdio>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "backup/backup_rig.h"
#include "budget/budget_year.h"
#include "contacts/contact_book.h"
#include "employees/employee_book.h"
#include "images/image_book.h"
#include "leave/leave_year.h"
#include "parts/user_names.h"
#include "planner/calendar_options.h"
#include "planner/day_store.h"
#include "planner/month_sheet.h"
#include "proofing/user_words.h"
#include "record_book/record_store.h"
#include "reliability/repeated_save.h"
#include "settings/backup_place.h"
#include "settings/panel_colors.h"
#include "settings/print_settings.h"
#include "storage/file_names.h"
#include "vehicles/vehicle_files.h"
#include "vehicles/vehicle_sheet.h"
#include "vehicles/vehicle_slots.h"
#include "workarea/archive_names.h"
#include "workarea/document_status.h"
#include "workarea/todo_list.h"
#include "workarea/worksheet_titles.h"
#include "year_sheet/year_copy.h"

namespace tarnwell::testing {
namespace {

namespace file_names = storage::file_names;
using storage::Outcome;
using storage::ProgramFolder;

struct Save {
  const char* name;
  Step step;
  // Brings the text into the files. "old" is what they hold before.
  std::function<Outcome(ProgramFolder&, const std::string& text)> write;
};
std::ostream& operator<<(std::ostream& out, const Save& save) { return out << save.name; }

planner::DayRows RowsOf(const std::string& text) {
  planner::DayRows rows;
  rows.fill({"9:00 AM", text});
  return rows;
}

year_sheet::Rows SheetOf(const std::string& text, std::size_t columns) {
  return year_sheet::Rows(60, year_sheet::Row(columns, text));
}

constexpr leave::LeaveFiles kSickLeave{file_names::SickLeave, file_names::SickLeaveRows};

record_book::BookRecord RecordOf(const record_book::BookLayout& book, const std::string& text) {
  return {std::vector<std::string>(static_cast<std::size_t>(book.entries), text), "/" + text};
}

// Of four records, the last lies in two pages in the contacts' file. Only it is changed.
Outcome WriteRecord(ProgramFolder& folder, const record_book::BookLayout& book, int last,
                    const std::string& text) {
  if (text == "new") return WriteChanged(folder, book, last, RecordOf(book, text));
  for (int record = 2; record <= last; ++record) {
    if (const auto put = WriteNew(folder, book, record, RecordOf(book, text)); !put) return put;
  }
  return {};
}

// As the vehicles' screen saves them.
Outcome WriteVehicle(ProgramFolder& folder, const std::string& text) {
  vehicles::FuelEntry fuel;
  fuel.date.shown = "1/2/2026";
  fuel.previous = "1";
  fuel.current = text;
  vehicles::HistoryEntry entry;
  entry.text = text;
  vehicles::VehicleSheet sheet;
  sheet.fields.fill(text);
  if (const auto put = vehicles::WriteFuel(folder, 1, {fuel}); !put) return put;
  if (const auto put = vehicles::WriteSheet(folder, 1, sheet, "m/d/yyyy"); !put) return put;
  for (const auto kind : {vehicles::HistoryKind::kMaintenance, vehicles::HistoryKind::kRepairs}) {
    const auto put = vehicles::WriteHistory(folder, kind, 1, {entry});
    if (!put) return put;
  }
  return {};
}

const Save kSaves[] = {
    {"SettingsRecord", Step::kWhole,
     [](auto& folder, auto& text) { return settings::WriteBackupPlace(folder, "/media/" + text); }},
    {"ColoursOfAllScreens", Step::kInTurns,
     [](auto& folder, auto& text) {
       const auto color = settings::StoredColor::Number(text == "old" ? 1111111 : 2222222);
       return settings::WritePanelColorForAll(folder, color, [] {});
     }},
    {"PrinterFont", Step::kInTurns,
     [](auto& folder, auto& text) {
       const settings::StoredFont font{text, text == "old" ? 8.0 : 9.0};
       return settings::WritePrinterFont(folder, settings::PrinterFont::kVehicles, font);
     }},
    {"CalendarOptions", Step::kInTurns,
     [](auto& folder, auto& text) {
       const int value = text == "old" ? 0 : 1;
       return planner::WriteCalendarOptions(folder, {value, value, 1 + value, value});
     }},
    {"StatusOfADocument", Step::kWhole,
     [](auto& folder, auto& text) { return workarea::DocumentStatus().Put(folder, 3, text); }},
    {"TitlesOfWorksheets", Step::kInTurns,
     [](auto& folder, auto& text) {
       workarea::NewTitles titles;
       titles.fill(text);
       return workarea::WorksheetTitles().Change(folder, titles);
     }},
    {"Document", Step::kWhole,
     [](auto& folder, auto& text) {
       std::string content;
       for (int i = 0; i < 3000; ++i) content += text;
       return folder.WriteWhole("EmployPolicy0.Fl2", content);
     }},
    {"ToDoList", Step::kWhole,
     [](auto& folder, auto& text) {
       return workarea::WriteToDoList(folder, {{text, "1/2/2026", "", ""}});
     }},
    {"CalendarSheet", Step::kWhole,
     [](auto& folder, auto& text) {
       planner::MonthSheet sheet;
       for (auto& day : sheet.days) day.fill(text);
       return planner::WriteMonthSheet(folder, text::MakeDate(2026, 3, 1), sheet);
     }},
    // Its record lies in two pages.
    {"PlannerDay", Step::kWhole,
     [](auto& folder, auto& text) {
       return planner::WriteDay(folder, text::MakeDate(2026, 1, 4), RowsOf(text));
     }},
    {"TenDaysOfARecurrence", Step::kInTurns,
     [](auto& folder, auto& text) -> Outcome {
       for (unsigned day = 1; day <= 10; ++day) {
         const auto date = text::MakeDate(2026, 1, day);
         if (const auto put = planner::WriteDay(folder, date, RowsOf(text)); !put) return put;
       }
       return {};
     }},
    {"Budget", Step::kWhole,
     [](auto& folder, auto& text) {
       budget::BudgetYear year;
       year.rows = SheetOf(text, budget::kColumns);
       return budget::WriteBudgetYear(folder, 2026, year);
     }},
    {"LeaveAndItsCountOfRows", Step::kInTurns,
     [](auto& folder, auto& text) {
       auto rows = SheetOf(text, leave::kBalance);
       if (text == "old") rows.resize(55);
       return leave::WriteLeaveYear(folder, kSickLeave, 2026, rows);
     }},
    {"NamesOfTheNextYear", Step::kInTurns,
     [](auto& folder, auto& text) {
       return leave::WriteNamesOfNextYear(folder, kSickLeave, 2026, SheetOf(text, leave::kBalance));
     }},
    {"YearCopiedToTheNext", Step::kInTurns,
     [](auto& folder, auto& text) -> Outcome {
       if (text == "new") return year_sheet::CopyYearFile(folder, "2026.Fil", "2027.Fil");
       for (const char* name : {"2026.Fil", "2027.Fil"}) {
         if (const auto put = folder.WriteWhole(name, text + name); !put) return put;
       }
       return {};
     }},
    {"NameInAList", Step::kWhole,
     [](auto& folder, auto& text) {
       return parts::UserNames(folder, {.file = file_names::kToDoNames}).Add(text);
     }},
    {"WordOfTheDictionary", Step::kWhole,
     [](auto& folder, auto& text) { return proofing::UserWords(folder).Add(text); }},
    {"NamedDocumentGoes", Step::kInTurns,
     [](auto& folder, auto& text) -> Outcome {
       workarea::NamedDocuments documents(folder, workarea::ArchiveKind());
       if (text == "new") return documents.Delete("old");
       if (const auto put = folder.WriteWhole(documents.FileOf(text), text); !put) return put;
       return documents.Add(text);
     }},
    {"Contact", Step::kInTurns,
     [](auto& folder, auto& text) {
       return WriteRecord(folder, contacts::ContactBook(), 4, text);
     }},
    {"Employee", Step::kInTurns,
     [](auto& folder, auto& text) {
       return WriteRecord(folder, employees::EmployeeBook(), 5, text);
     }},
    {"DocumentImage", Step::kInTurns,
     [](auto& folder, auto& text) { return WriteRecord(folder, images::ImageBook(), 14, text); }},
    {"ContactGoes", Step::kInTurns,
     [](auto& folder, auto& text) {
       return text == "old" ? WriteRecord(folder, contacts::ContactBook(), 4, text)
                            : DeleteRecord(folder, contacts::ContactBook(), 4, false);
     }},
    {"Vehicle", Step::kInTurns, WriteVehicle},
    {"SlotOfAVehicle", Step::kWhole,
     [](auto& folder, auto& text) { return vehicles::TakeSlot(folder, text).outcome; }},
    {"VehicleGoes", Step::kInTurns,
     [](auto& folder, auto& text) -> Outcome {
       if (text == "new") return vehicles::DeleteVehicle(folder, {1, 1, "old"});
       const auto taken = vehicles::TakeSlot(folder, text);
       return taken.outcome ? WriteVehicle(folder, text) : taken.outcome;
     }},
};

class EverySystemCallTest : public ::testing::TestWithParam<Save> {
 protected:
  void SetUp() override {
    if (!CanTrace()) GTEST_SKIP() << "this machine lets no process be traced";
    ProgramFolder folder(storage::RealFileSystem(), disk_.path());
    ASSERT_TRUE(GetParam().write(folder, "old"));
  }
  RepeatedSave Repeat() {
    const auto work = [this] {
      ProgramFolder folder(storage::RealFileSystem(), disk_.path());
      return GetParam().write(folder, "new") ? RepeatedSave::kSaved : RepeatedSave::kNotSaved;
    };
    return {disk_, work, GetParam().step};
  }
  // For the figures.
  void Count(const char* what, int met) {
    EXPECT_GT(met, 0);
    RecordProperty(what, met);
    if (IsLongRun()) std::printf("%s: %s %d\n", GetParam().name, what, met);
  }

  TemporaryFolder disk_;
};

TEST_P(EverySystemCallTest, AKillLeavesTheOldOrTheNew) {
  const RepeatedSave save = Repeat();
  Count("killed", save.Kill());
  RecordProperty("torn", save.Tear());
}

TEST_P(EverySystemCallTest, ADiskThatRefusesOrBreaksLosesNothingAndIsTold) {
  const RepeatedSave save = Repeat();
  Count("refused, full", save.Refuse(ENOSPC));
  Count("refused, broken", save.Refuse(EIO));
}

TEST_P(EverySystemCallTest, ADiskFullAtAnyByteLosesNothingAndIsTold) {
  // A deletion asks for no room.
  const int met = Repeat().Fill();
  RecordProperty("full", met);
  if (IsLongRun()) std::printf("%s: full %d\n", GetParam().name, met);
}

INSTANTIATE_TEST_SUITE_P(Saves, EverySystemCallTest, ::testing::ValuesIn(kSaves),
                         [](const auto& save) { return std::string(save.param.name); });

// A restore of each of the nine sets.
class EveryRestoreTest : public ::testing::TestWithParam<int> {};

TEST_P(EveryRestoreTest, AKillLeavesAllOfTheOldOrAllOfTheNewFiles) {
  if (!CanTrace()) GTEST_SKIP() << "this machine lets no process be traced";
  BackupRig rig;
  rig.FillCompany();
  ASSERT_EQ(rig.BackUp(GetParam()), backup::BackupEnd::kComplete);
  for (const std::string& name : rig.report.copied) rig.live.Write(name, "newer " + name);
  const RepeatedSave restore(
      rig.live,
      [&] {
        const bool is_back = rig.Restore(GetParam() + 1) == backup::RestoreEnd::kComplete;
        return is_back ? RepeatedSave::kSaved : RepeatedSave::kNotSaved;
      },
      Step::kWhole);
  const int met = restore.Kill();
  EXPECT_GT(met, 0);
  if (IsLongRun()) std::printf("restore %d: killed %d\n", GetParam(), met);
}

INSTANTIATE_TEST_SUITE_P(Sets, EveryRestoreTest,
                         ::testing::Values(0, 2, 26, 32, 36, 38, 40, 44, 46));

}  // namespace
}  // namespace tarnwell::testing
