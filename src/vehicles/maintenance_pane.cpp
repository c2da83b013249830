#include "vehicles/maintenance_pane.h"

#include "parts/sheet_rows.h"
#include "storage/sequential_file.h"
#include "text/letters.h"
#include "vehicles/cell_values.h"
#include "vehicles/schedule_colors.h"
#include "vehicles/standard_actions.h"

namespace tarnwell::vehicles {
namespace {

constexpr int kRows = static_cast<int>(kScheduleRows);
constexpr int kStandardRows = static_cast<int>(kStandardActions.size());
constexpr std::size_t kLongestAction = 60;    // characters that can be typed
constexpr std::size_t kLongestOdometer = 20;  // likewise

forms::GridColumn Number(double share, bool editable = true) {
  return {.title = "",
          .share = share,
          .align = forms::GridAlign::kRight,
          .editable = editable,
          .numeric = true,
          .max_length = kLongestOdometer};
}

}  // namespace

MaintenancePane::MaintenancePane(forms::Container& parent, Tracker& tracker)
    : panel(parent, "SSPanel3"), tracker_(tracker) {
  BuildGrid();
  note.SetVisible(false);
  calendar.SetVisible(false);
  grid.on_validate = [this](int row, int column, std::string& text) {
    return TakesCell(row, column, text);
  };
  grid.on_edit = [this](int row, int column) { Edited(row, column); };
  grid.on_select = [this] { ShowCalendar(tracker_, calendar, grid, kDate); };
  calendar.on_pick = [this] { PickDay(tracker_, calendar, grid, kDate); };
}

void MaintenancePane::BuildGrid() {
  grid.SetColumns(
      {{.title = "", .share = 0.04, .align = forms::GridAlign::kRight},
       {.title = "\nAction", .share = 0.2, .editable = true, .max_length = kLongestAction},
       Number(0.09),
       Number(0.08),
       Number(0.1),
       Number(0.1),
       Number(0.1),
       Number(0.09, false),
       Number(0.09, false),
       {.title = "", .share = 0.1}},
      1, 2);
  parts::SetSheetRows(grid, kRows);
  ShowUnit();
}

void MaintenancePane::ShowUnit() {
  const std::string unit(tracker_.words().short_unit);
  grid.SetTitle(kDistance, "Interval\n" + unit);
  grid.SetTitle(kMonths, "Interval\nMonths");
  grid.SetTitle(kOdometer, "Last Action\n" + std::string(tracker_.words().reading));
  grid.SetTitle(kDate, "Last Action\nDate");
  grid.SetTitle(kCost, "Last Action\nCost");
  grid.SetTitle(kDistanceLeft, "Remaining\n" + unit);
  grid.SetTitle(kTimeLeft, "Remaining\nTime");
  const std::string whole(tracker_.words().unit);
  note.SetCaption(
      "* - Please refer to your Operator Manual and or to your Warranty Maintenance Logs to obtain "
      "the proper Interval " +
      whole +
      " and Months for the Actions as apply to your vehicle.\nNOTE: The Intervals given here are "
      "for a GUIDE ONLY, your vehicle may require different Interval " +
      whole + " and Months  between actions.");
}

void MaintenancePane::SetCreating(bool creating) {
  note.SetVisible(creating);
  intervals.SetCaption(creating ? "Interval Between Actions*" : "Interval Between Actions");
}

void MaintenancePane::Show(const std::array<ScheduleRow, kScheduleRows>& rows) {
  const forms::Grid::Batch batch(grid);
  grid.SetRows(1);
  parts::SetSheetRows(grid, kRows);
  calendar.SetVisible(false);
  for (int row = 1; row <= kRows; ++row) {
    const ScheduleRow& shown = rows[static_cast<std::size_t>(row - 1)];
    grid.SetText(row, kAction, shown.action);
    grid.SetText(row, kDistance, shown.distance);
    grid.SetText(row, kMonths, shown.months);
    grid.SetText(row, kOdometer, shown.odometer);
    ShowDate(grid, {row, kDate}, shown.date);
    grid.SetText(row, kCost, shown.cost);
  }
}

void MaintenancePane::FillStandard() {
  const forms::Grid::Batch batch(grid);
  for (int row = 1; row <= kStandardRows; ++row) {
    const StandardAction& action = kStandardActions[static_cast<std::size_t>(row - 1)];
    grid.SetText(row, kAction, action.name);
    grid.SetText(row, kDistance, WholeText(std::to_string(action.Distance(tracker_.unit))));
    grid.SetText(row, kMonths, std::to_string(action.months));
  }
}

ScheduleRow MaintenancePane::RowAt(int row) const {
  return {.action = grid.text(row, kAction),
          .distance = grid.text(row, kDistance),
          .months = grid.text(row, kMonths),
          .odometer = grid.text(row, kOdometer),
          .date = {grid.text(row, kDate), {}},
          .cost = grid.text(row, kCost)};
}

std::array<ScheduleRow, kScheduleRows> MaintenancePane::Rows() const {
  std::array<ScheduleRow, kScheduleRows> rows;
  for (int row = 1; row <= kRows; ++row) rows[static_cast<std::size_t>(row - 1)] = RowAt(row);
  return rows;
}

bool MaintenancePane::TakesCell(int row, int column, std::string& text) {
  const forms::GridPlace place{row, column};
  switch (column) {
    case kDistance:
      text = WholeText(text);
      break;
    case kOdometer:
      text = TakeReading(tracker_, grid, place, WholeNumber(text)) ? WholeText(text) : "";
      break;
    case kDate:
      TakeDate(tracker_, grid, place, text);
      break;
    case kCost:
      text = NumberIn(text) <= 0 ? "" : CostText(NumberIn(text));
      break;
    default:
      text = storage::WithoutQuotes(text);
  }
  return true;
}

void MaintenancePane::Edited(int row, int column) {
  if (column == kDate) {
    ShowDate(grid, {row, kDate}, {grid.text(row, kDate), {}});
    ShowCalendar(tracker_, calendar, grid, kDate);
  }
  tracker_.on_change();
  if (column == kAction) return Recompute();
  RecomputeRow(row);
}

void MaintenancePane::Recompute() {
  for (int row = 1; row <= kRows; ++row) {
    if (row <= kStandardRows) {
      grid.SetText(row, kAction, kStandardActions[static_cast<std::size_t>(row - 1)].name);
    }
    grid.SetText(row, kOdometer, WholeText(grid.text(row, kOdometer)));
    grid.SetText(row, kDistance, WholeText(grid.text(row, kDistance)));
    RecomputeRow(row);
  }
}

void MaintenancePane::RecomputeRow(int row) {
  const ActionTimes times = TimesOf(RowAt(row));
  ShowDue(row, times.is_named, DueOf(times, tracker_.odometer, tracker_.today()));
}

void MaintenancePane::ShowDue(int row, bool is_named, const Due& due) {
  const auto paint = [&](int column, bool is_due, bool bold = false) {
    grid.SetStyle(row, column, {is_due ? std::optional(kDueColor) : std::nullopt, is_due && bold});
  };
  grid.SetText(row, kRequired, is_named && due.is_due() ? kActionRequired : "");
  grid.SetText(row, kDistanceLeft, DistanceLeftText(due));
  grid.SetText(row, kTimeLeft, TimeLeftText(due));
  paint(kAction, due.is_due());
  paint(kDistanceLeft, due.by_distance);
  paint(kTimeLeft, due.by_time);
  paint(kRequired, due.is_due(), true);
}

// What stands beside a missing action isn't lost unasked.
bool MaintenancePane::GoesWithBlankRows(bool with_entries, int row) const {
  return text::Trim(grid.text(row, kAction)).empty() &&
         (with_entries || parts::IsSheetRowBlank(grid, row));
}

void MaintenancePane::RemoveBlankRows() {
  if (!grid.EndEdit()) return;
  bool has_entries = false;
  for (int row = kStandardRows + 1; row <= kRows; ++row) {
    has_entries |= GoesWithBlankRows(true, row) && !GoesWithBlankRows(false, row);
  }
  const bool with_entries =
      has_entries &&
      tracker_.form.Confirmed({"Remove Blank Action Rows",
                               "There are rows without an action that hold other entries.\n"
                               "Remove them too?",
                               forms::Icon::kQuestion, forms::Buttons::kYesNo, 2});
  int row = kStandardRows + 1;
  for (int left = kRows - kStandardRows; left > 0; --left) {
    if (GoesWithBlankRows(with_entries, row)) {
      parts::DeleteSheetRow(grid, row);
    } else {
      ++row;
    }
  }
  tracker_.on_change();
  Recompute();
}

}  // namespace tarnwell::vehicles
