#include "vehicles/repairs_pane.h"

#include "parts/sheet_rows.h"
#include "storage/sequential_file.h"
#include "text/letters.h"
#include "text/number_mask.h"
#include "vehicles/cell_values.h"

namespace tarnwell::vehicles {
namespace {

constexpr std::size_t kLongestItem = 100;  // characters that can be typed
constexpr std::size_t kLongestEntry = 30;  // likewise
// The blanks behind numbers keep them off the next column.
constexpr const char* kReadingMask = "#,###,###       ";
constexpr const char* kBehindCost = "    ";

std::string ReadingText(std::string_view cell) {
  const std::string typed = text::Trim(cell);
  return typed.empty() ? typed : text::FormatNumber(NumberIn(typed), kReadingMask);
}

std::string CostCell(std::string_view cell) {
  const std::string typed = text::Trim(cell);
  return typed.empty() ? typed : CostText(NumberIn(typed)) + kBehindCost;
}

}  // namespace

RepairsPane::RepairsPane(forms::Container& parent, Tracker& tracker)
    : panel(parent, "SSPanel4"), tracker_(tracker) {
  grid.SetColumns({{.title = "", .share = 0.06, .align = forms::GridAlign::kRight},
                   {.title = "",
                    .share = 0.15,
                    .align = forms::GridAlign::kRight,
                    .editable = true,
                    .numeric = true,
                    .max_length = kLongestEntry},
                   {.title = "Date",
                    .share = 0.14,
                    .align = forms::GridAlign::kCenter,
                    .editable = true,
                    .max_length = kLongestEntry},
                   {.title = "Repairs and Expenditures",
                    .share = 0.5,
                    .editable = true,
                    .max_length = kLongestItem},
                   {.title = "Cost",
                    .share = 0.15,
                    .align = forms::GridAlign::kRight,
                    .editable = true,
                    .numeric = true,
                    .max_length = kLongestEntry}},
                  1);
  ShowUnit();
  grid.on_validate = [this](int row, int column, std::string& text) {
    return TakesCell(row, column, text);
  };
  grid.on_select = [this] { TellTurn(tracker_, grid); };
  grid.on_edit = [this](int row, int column) {
    if (column == kDate) ShowDate(grid, {row, kDate}, {grid.text(row, kDate), {}});
    GrowSheet(grid, kMostHistory);
    tracker_.on_change();
  };
}

void RepairsPane::ShowUnit() { grid.SetTitle(kOdometer, tracker_.words().reading); }

void RepairsPane::Show(const std::vector<HistoryEntry>& entries) {
  const forms::Grid::Batch batch(grid);
  grid.SetRows(1);
  parts::SetSheetRows(grid, RowsToShow(entries.size(), kMostHistory));
  int row = 1;
  for (const HistoryEntry& entry : entries) {
    grid.SetText(row, kOdometer, ReadingText(entry.odometer));
    ShowDate(grid, {row, kDate}, entry.date);
    grid.SetText(row, kText, entry.text);
    grid.SetText(row, kCost, CostCell(entry.cost));
    ++row;
  }
  grid.SetCurrent({1, kOdometer});
}

HistoryEntry RepairsPane::EntryAt(int row) const {
  return {text::Trim(grid.text(row, kOdometer)),
          {grid.text(row, kDate), {}},
          text::Trim(grid.text(row, kText)),
          text::Trim(grid.text(row, kCost))};
}

std::vector<HistoryEntry> RepairsPane::Entries() const {
  std::vector<HistoryEntry> entries;
  for (int row = 1; row < grid.rows(); ++row) {
    if (!parts::IsSheetRowBlank(grid, row)) entries.push_back(EntryAt(row));
  }
  return entries;
}

void RepairsPane::Remove(const HistoryEntry& entry) {
  const HistoryEntry wanted{entry.odometer, {entry.date.shown, {}}, entry.text, entry.cost};
  for (int row = 1; row < grid.rows(); ++row) {
    if (EntryAt(row) == wanted) return parts::DeleteSheetRow(grid, row);
  }
}

bool RepairsPane::TakesCell(int row, int column, std::string& text) {
  const forms::GridPlace place{row, column};
  switch (column) {
    case kOdometer:
      text = TakeReading(tracker_, grid, place, static_cast<float>(NumberIn(text)))
                 ? ReadingText(text)
                 : grid.text(row, column);
      break;
    case kDate:
      TakeDate(tracker_, grid, place, text);
      break;
    case kCost:
      text = CostCell(text);
      break;
    default:
      text = storage::WithoutQuotes(text);
  }
  return true;
}

}  // namespace tarnwell::vehicles
