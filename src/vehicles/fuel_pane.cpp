#include "vehicles/fuel_pane.h"

#include <optional>
#include <utility>

#include "parts/sheet_rows.h"
#include "storage/sequential_file.h"
#include "text/letters.h"
#include "text/number_mask.h"
#include "vehicles/cell_values.h"
#include "vehicles/fuel_totals.h"

namespace tarnwell::vehicles {
namespace {

constexpr std::size_t kLongestCell = 30;  // characters that can be typed

forms::GridColumn Column(double share, bool editable) {
  return {.title = "",
          .share = share,
          .align = forms::GridAlign::kRight,
          .editable = editable,
          .numeric = true,
          .max_length = kLongestCell};
}

}  // namespace

FuelPane::FuelPane(forms::Container& parent, Tracker& tracker)
    : panel(parent, "SSPanel6"), tracker_(tracker) {
  BuildGrid();
  calendar.SetVisible(false);
  grid.on_validate = [this](int row, int column, std::string& text) {
    return TakesCell(row, column, text);
  };
  grid.on_edit = [this](int row, int column) { Edited(row, column); };
  grid.on_select = [this] { Moved(); };
  calendar.on_pick = [this] { PickDay(tracker_, calendar, grid, kFuelDate); };
  remove.on_click = [this] { Remove(); };
}

void FuelPane::BuildGrid() {
  grid.SetColumns({{.title = "", .share = 0.06, .align = forms::GridAlign::kRight},
                   Column(0.13, true),
                   Column(0.15, true),
                   Column(0.15, true),
                   Column(0.13, false),
                   Column(0.12, true),
                   Column(0.14, false),
                   Column(0.12, true)},
                  1);
  grid.SetTitle(kFuelDate, "\nDate");
  grid.SetTitle(kPrevious, "Previous\nReading");
  grid.SetTitle(kCurrent, "Current\nReading");
  grid.SetTitle(kCost, "\nCost");
  ShowUnit();
}

void FuelPane::ShowUnit() {
  // On two lines, as those beside them.
  const UnitWords& words = tracker_.words();
  for (const auto& [column, heading] :
       {std::pair{kDriven, words.driven}, {kFuel, words.fuel}, {kRate, words.rate}}) {
    std::string lines(heading);
    lines[lines.find(' ')] = '\n';
    grid.SetTitle(column, lines);
  }
  title.SetCaption(words.fuel_title);
}

void FuelPane::Show(const std::vector<FuelEntry>& entries) {
  {
    const forms::Grid::Batch batch(grid);
    grid.SetRows(1);
    parts::SetSheetRows(grid, RowsToShow(entries.size(), kMostFuel));
    int row = 1;
    for (const FuelEntry& entry : entries) {
      ShowDate(grid, {row, kFuelDate}, entry.date);
      grid.SetText(row, kPrevious, entry.previous);
      grid.SetText(row, kCurrent, entry.current);
      grid.SetText(row, kDriven, entry.driven);
      grid.SetText(row, kFuel, entry.fuel);
      grid.SetText(row, kRate, entry.rate);
      grid.SetText(row, kCost, entry.cost);
      ++row;
    }
  }
  calendar.SetVisible(false);
  ShowTotals();
}

FuelEntry FuelPane::RowAt(int row) const {
  return {{grid.text(row, kFuelDate), {}},
          grid.text(row, kPrevious),
          grid.text(row, kCurrent),
          grid.text(row, kDriven),
          grid.text(row, kFuel),
          grid.text(row, kRate),
          grid.text(row, kCost)};
}

std::vector<FuelEntry> FuelPane::Entries() const {
  std::vector<FuelEntry> entries;
  for (int row = 1; row < grid.rows(); ++row) entries.push_back(RowAt(row));
  return entries;
}

bool FuelPane::TakesCell(int row, int column, std::string& text) {
  const forms::GridPlace place{row, column};
  switch (column) {
    case kFuelDate:
      TakeDate(tracker_, grid, place, text);
      break;
    case kPrevious:
    case kCurrent:
      text = TakeReading(tracker_, grid, place, static_cast<float>(NumberIn(text)))
                 ? FuelText(static_cast<FuelColumn>(column), storage::WithoutQuotes(text))
                 : grid.text(row, column);
      break;
    default:
      text = FuelText(static_cast<FuelColumn>(column), storage::WithoutQuotes(text));
  }
  return true;
}

void FuelPane::Edited(int row, int column) {
  if (column == kFuelDate) {
    ShowDate(grid, {row, kFuelDate}, {grid.text(row, kFuelDate), {}});
    if (!grid.text(row, kFuelDate).empty()) grid.SetCurrent({row, kPrevious});
    ShowCalendar(tracker_, calendar, grid, kFuelDate);
  }
  GrowSheet(grid, kMostFuel);
  tracker_.on_change();
  ShowTotals();
}

// What can be computed is so when the cursor comes to it, which then goes on.
void FuelPane::Moved() {
  const auto [row, column] = grid.current();
  ShowCalendar(tracker_, calendar, grid, kFuelDate);
  if (column == kPrevious && row > 1) {
    const std::string above = text::Trim(grid.text(row - 1, kCurrent));
    grid.SetChoices(kPrevious, above.empty() ? std::vector<std::string>() : std::vector{above});
  } else if (column == kPrevious) {
    grid.SetChoices(kPrevious, {});
  }
  if (column == kCurrent) {
    grid.SetChoices(kCurrent, {text::FormatNumber(tracker_.odometer, "#,###,##0")});
  }
  if (column == kDriven) {
    Compute(row, kDriven, DrivenText(grid.text(row, kPrevious), grid.text(row, kCurrent)));
  }
  if (column == kRate) {
    Compute(row, kRate, RateText(grid.text(row, kDriven), grid.text(row, kFuel)));
  }
}

void FuelPane::Compute(int row, FuelColumn column, const std::optional<std::string>& text) {
  if (!text) return;
  if (*text != grid.text(row, column)) {
    grid.SetText(row, column, *text);
    tracker_.on_change();
    ShowTotals();
  }
  grid.SetCurrent({row, column + 1});
}

void FuelPane::ShowTotals() {
  const FuelTotals totals = TotalFuel(Entries());
  driven.SetCaption(totals.DrivenText());
  fuel.SetCaption(totals.FuelText());
  rate.SetCaption(totals.RateText());
  cost.SetCaption(totals.CostText());
}

void FuelPane::Remove() {
  if (!grid.EndEdit()) return;
  const int row = grid.current().row;
  if (row == 0 || parts::IsSheetRowBlank(grid, row)) return;
  grid.SetHighlight(row);
  const bool is_sure = tracker_.form.Confirmed(
      {"Delete Fuel Entry", "Do you really want to delete the highlighted Entry?",
       forms::Icon::kQuestion, forms::Buttons::kYesNo, 2});
  grid.SetHighlight(0);
  if (is_sure) {
    std::vector<FuelEntry> rest = Entries();
    rest[static_cast<std::size_t>(row - 1)] = {};
    on_remove(rest);
  }
  grid.Focus();
}

}  // namespace tarnwell::vehicles
