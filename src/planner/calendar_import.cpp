// What the Calendar Developer takes over from the planner and from the To Do list.

#include <algorithm>

#include "forms/disk_trouble.h"
#include "planner/calendar.h"
#include "planner/day_sort.h"
#include "planner/day_store.h"
#include "storage/file_names.h"
#include "storage/sequential_file.h"

namespace tarnwell::planner {
namespace {

enum Source { kDayWithTimes, kDayWithoutTimes, kMonthWithTimes, kMonthWithoutTimes, kToDoItems };

forms::MessageBox TrimQuestion(bool with_times) {
  return {"Import Selection",
          std::string(with_times ? "Time plus " : "") +
              "Appointment/Activity entry from the Daily Planner\n"
              " may be too large to fit into the calandar space provided.\n\n"
              "Please select the following for action desired:\n"
              "Trim Entry:\n"
              "Yes      - To trim entries to fit.\n"
              "No        - To import entries regardless of length\n"
              "Cancel - To exit Import Option without importing any data!",
          forms::Icon::kInformation, forms::Buttons::kYesNoCancel};
}

}  // namespace

void Calendar::Import() {
  const int source = imports.selected();
  imports.Select(forms::ComboBox::kNone);
  if (source == kToDoItems) return ImportToDo();
  ImportPlanner(source >= kMonthWithTimes, source == kDayWithTimes || source == kMonthWithTimes);
}

void Calendar::ImportPlanner(bool month, bool with_times) {
  const forms::Answer answer = Message(TrimQuestion(with_times));
  if (answer != forms::Answer::kYes && answer != forms::Answer::kNo) return;
  const forms::Hourglass hourglass(context_.window);
  PlannerImport how{with_times, static_cast<SortTimeOption>(sort_time.chosen()), {}};
  if (answer == forms::Answer::kYes) {
    how.fit = [this](const std::string& entry) { return sheet_page_.FitToBox(entry); };
  }
  MonthSheet sheet = Written();
  const auto imported = ImportDays(sheet, month, how);
  if (!imported) return;
  if (!imported->found) {
    Message({"Import Daily Planner Appointments",
             "No enteries were found for Import from Daily Planner function!",
             forms::Icon::kInformation});
  } else if (imported->changed) {
    Take(std::move(sheet));
  }
}

std::optional<Imported> Calendar::ImportDays(MonthSheet& sheet, bool month,
                                             const PlannerImport& how) {
  auto fault = storage::Fault::kNone;
  Imported all;
  if (month) {
    const auto days =
        ReadMonth(context_.folder, text::YearOf(loaded_), text::MonthOf(loaded_), &fault);
    const auto count = static_cast<std::size_t>(DaysInMonth(loaded_));
    for (std::size_t i = 0; days && i < std::min(days->size(), count); ++i) {
      if ((*days)[i].saved) all.Add(ImportRows(sheet.days[i], (*days)[i].rows, how));
    }
  } else if (const auto day = ReadDay(context_.folder, loaded_, &fault); day && day->saved) {
    all = ImportRows(sheet.DayOf(loaded_), day->rows, how);
  }
  if (fault == storage::Fault::kNone) return all;
  forms::TellUnreadable(context_, "The Daily Planner", fault);
  return std::nullopt;
}

void Calendar::ImportToDo() {
  constexpr const char* kTitle = "Import To Do List Items";
  const forms::Hourglass hourglass(context_.window);
  storage::SequentialReader list(context_.folder, storage::file_names::kToDoList);
  if (list.is_unreadable()) return forms::TellUnreadable(context_, "The To Do list", list.fault());
  MonthSheet sheet = Written();
  const Imported imported = ImportItems(sheet, loaded_, ReadToDoItems(list));
  if (!imported.found) {
    Message(
        {kTitle, "No To Do List Items for this month have been found!", forms::Icon::kInformation});
    return;
  }
  if (imported.changed) Take(std::move(sheet));
  if (question_.unsaved() && Save() != parts::SaveResult::kSaved) return;
  Message({kTitle, "To Do List Items for this month have been found, entered and saved!",
           forms::Icon::kInformation});
}

// What was typed meanwhile is in it.
void Calendar::Take(MonthSheet sheet) {
  sheet_ = std::move(sheet);
  SetChanges(false, true);
  ShowDay(loaded_);
  Redraw();
}

}  // namespace tarnwell::planner
