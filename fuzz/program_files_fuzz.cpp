// Any bytes as any file that the program reads: each reader comes to an end, and what one of them
// reads is the same once it was written. The first byte chooses the reader.

#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

#include "backup/disk_info.h"
#include "budget/budget_year.h"
#include "contacts/contact_book.h"
#include "employees/employee_book.h"
#include "images/image_book.h"
#include "leave/leave_year.h"
#include "memory_file_system.h"
#include "parts/help_book.h"
#include "planner/calendar_options.h"
#include "planner/day_store.h"
#include "planner/month_sheet.h"
#include "planner/todo_import.h"
#include "program/draft_file.h"
#include "proofing/user_words.h"
#include "record_book/name_index.h"
#include "record_book/record_store.h"
#include "reference/link_tables.h"
#include "settings/display_settings.h"
#include "settings/panel_colors.h"
#include "storage/file_names.h"
#include "storage/replacement.h"
#include "vehicles/makes.h"
#include "vehicles/vehicle_files.h"
#include "vehicles/vehicle_sheet.h"
#include "vehicles/vehicle_slots.h"
#include "workarea/document_status.h"
#include "workarea/named_documents.h"
#include "workarea/todo_list.h"
#include "workarea/worksheet_titles.h"

namespace tarnwell {
namespace {

namespace file_names = storage::file_names;
using storage::ProgramFolder;

constexpr const char* kUntouched = "/user/Untouched.Fil";

void Require(bool holds) {
  if (!holds) std::abort();
}

struct Reader {
  std::string file;
  void (*read)(ProgramFolder& folder, std::string_view bytes);
};

void ReadBook(ProgramFolder& folder, const record_book::BookLayout& book) {
  for (const auto& entry : ReadNames(folder, book).entries) {
    Require(entry.record >= 0 && entry.record <= record_book::kOverflowRecord);
  }
  Require(ReadRecord(folder, book, 2).has_value());
  const auto free = FreeRecord(folder, book);
  Require(free && *free >= record_book::kFirstRecord && *free <= record_book::kOverflowRecord);
}

void ReadWords(ProgramFolder& folder, std::string_view bytes) {
  proofing::UserWords words(folder);
  const std::string word(bytes.substr(0, 9));
  Require(words.Add(word) && words.Has(word));
}

void ReadDraft(ProgramFolder&, std::string_view bytes) {
  const auto kept = program::FromBytes(bytes);
  if (!kept) return;
  const std::string written = program::ToBytes(*kept);
  const auto again = program::FromBytes(written);
  Require(again && program::ToBytes(*again) == written);
}

void ReadInfo(ProgramFolder&, std::string_view bytes) {
  for (const int length : {15, 30}) {
    const backup::DiskInfo info = backup::InfoOf(bytes, length);
    const std::string written = backup::InfoBytes(info, length);
    Require(written.size() <= 12u * static_cast<unsigned>(length));
  }
}

void ReadPage(ProgramFolder&, std::string_view bytes) {
  parts::HelpBook book;
  book.AddPage("index.html", bytes);
  book.AddPage("1.html", bytes);
  book.Contents();
  book.Index();
  book.Search(bytes.substr(0, 20));
}

void ReadVehicle(ProgramFolder& folder, std::string_view) {
  const auto sheet = vehicles::ReadSheet(folder, 1, "m/d/yyyy");
  Require(static_cast<bool>(WriteSheet(folder, 1, sheet, "m/d/yyyy")));
}

void ReadToDo(ProgramFolder& folder, std::string_view) {
  storage::SequentialReader items(folder, file_names::kToDoList);
  planner::ReadToDoItems(items);
  const auto list = workarea::ReadToDoList(folder);
  Require(list.rows.size() >= workarea::kToDoRows);
  workarea::ToDoText(list.rows);
}

template <auto kRead>
void JustRead(ProgramFolder& folder, std::string_view) {
  kRead(folder);
}

constexpr leave::LeaveFiles kSickLeave{file_names::SickLeave, file_names::SickLeaveRows};

// What an interrupted run left is settled without touching another file.
void Recover(ProgramFolder& folder, std::string_view) {
  folder.Recover();
  storage::RecoverReplacement(folder);
}

const Reader kReaders[] = {
    {".tarnwell-redo", Recover},
    {".tarnwell-replacement", Recover},
    {"states.txt", JustRead<reference::ReadStateLinks>},
    {"federal.txt", JustRead<reference::ReadFederalLinks>},
    {"internet.txt", JustRead<reference::ReadInternetLinks>},
    {"UserWords.Fil", ReadWords},
    {"Unsaved-WorkArea1.Fil", ReadDraft},
    {"DiskInfo.bk1", ReadInfo},
    {"1000.html", ReadPage},
    {"Makes.Dat", JustRead<vehicles::ReadMakes>},
    {"CarMnt1.Fil", JustRead<vehicles::ReadVehicles>},
    {"ACar1.Fil", ReadVehicle},
    {"MCar1.Fil",
     [](ProgramFolder& folder, std::string_view) {
       vehicles::ReadHistory(folder, vehicles::HistoryKind::kMaintenance, 1, true);
     }},
    {"GCar1.Fil",
     [](ProgramFolder& folder, std::string_view) { vehicles::ReadFuel(folder, 1, true); }},
    {"2026.Fil",
     [](ProgramFolder& folder, std::string_view) {
       Require(budget::ReadBudgetYear(folder, 2026).rows.size() == budget::kItems);
     }},
    {"2026.Sl1",
     [](ProgramFolder& folder, std::string_view) { ReadLeaveYear(folder, kSickLeave, 2026); }},
    {"2026.Sl2",
     [](ProgramFolder& folder, std::string_view) {
       Require(ReadLeaveYear(folder, kSickLeave, 2026).rows.size() <= leave::kMostRows);
     }},
    {"TODOActv.FIL", ReadToDo},
    {" 2026.Cal",
     [](ProgramFolder& folder, std::string_view) {
       Require(planner::ReadMonth(folder, 2026, 1).has_value());
     }},
    {file_names::CalendarSheet(2026, 3),
     [](ProgramFolder& folder, std::string_view) {
       planner::ReadMonthSheet(folder, text::MakeDate(2026, 3, 1), {});
     }},
    {"CalOpt.fil", JustRead<planner::ReadCalendarOptions>},
    {"GColor3.Fil", JustRead<settings::ReadDisplay>},
    {"Stat1.Fil",
     [](ProgramFolder& folder, std::string_view) {
       Require(static_cast<bool>(workarea::DocumentStatus().Read(folder)));
     }},
    {"RAList.Fl2",
     [](ProgramFolder& folder, std::string_view) {
       Require(static_cast<bool>(workarea::WorksheetTitles().Read(folder)));
     }},
    {"JobHold.Fl5",
     [](ProgramFolder& folder, std::string_view) {
       workarea::NamedDocuments documents(folder, {file_names::kJobDescriptions, ".Fl5"});
       Require(static_cast<bool>(documents.Read()));
       for (const std::string& name : documents.Names()) {
         Require(storage::IsPlainFileName(documents.FileOf(name)));
       }
     }},
    {"ADDBK1.Fil",
     [](ProgramFolder& folder, std::string_view) { ReadBook(folder, contacts::ContactBook()); }},
    {"ADDBK2.Fil",
     [](ProgramFolder& folder, std::string_view) { ReadBook(folder, contacts::ContactBook()); }},
    {"Name3.Fil",
     [](ProgramFolder& folder, std::string_view) { ReadBook(folder, employees::EmployeeBook()); }},
    {"Photobk3.Fil",
     [](ProgramFolder& folder, std::string_view) { ReadBook(folder, images::ImageBook()); }},
};

void Check(std::string_view data) {
  if (data.empty()) return;
  const Reader& reader = kReaders[static_cast<unsigned char>(data[0]) % std::size(kReaders)];
  data.remove_prefix(1);
  fuzz::MemoryFileSystem files;
  files.contents["/user/" + reader.file] = std::make_shared<std::string>(data);
  files.contents[kUntouched] = std::make_shared<std::string>("untouched");
  files.contents["/Outside.Fil"] = std::make_shared<std::string>("outside");
  ProgramFolder folder(files, "/user");
  reader.read(folder, data);
  // A journal may name it; then it is there under another name, unless it says that it goes.
  Require(*files.contents.at("/Outside.Fil") == "outside");
  if (reader.read != Recover) Require(*files.contents.at(kUntouched) == "untouched");
}

}  // namespace
}  // namespace tarnwell

extern "C" int LLVMFuzzerTestOneInput(const char* data, std::size_t size) {
  tarnwell::Check({data, size});
  return 0;
}
