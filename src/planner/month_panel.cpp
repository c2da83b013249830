#include "planner/month_panel.h"

#include <algorithm>

namespace tarnwell::planner {

MonthPanel::MonthPanel(forms::Container& parent) : panel(parent, "SSPanel3") {
  panel.SetVisible(false);
  close.SetCancel(true);
  grid.SetColumns({{"Day", 0.156}, {"Time", 0.2}, {"Appointment/Activity", 0.64}});
}

storage::Outcome MonthPanel::Fill(storage::ProgramFolder& folder, text::Date date) {
  auto fault = storage::Fault::kNone;
  auto rows = ListMonth(folder, text::YearOf(date), text::MonthOf(date), &fault);
  if (!rows) return fault;
  rows_ = std::move(*rows);
  month_ = text::MakeDate(text::YearOf(date), text::MonthOf(date), 1);
  panel.SetCaption(MonthTitle(text::YearOf(date), text::MonthOf(date)));
  const forms::Grid::Batch batch(grid);
  grid.SetRows(1);
  grid.SetRows(static_cast<int>(std::max<std::size_t>(rows_.size(), 1)) + 1);
  int place = 0;
  for (const MonthRow& row : rows_) {
    ++place;
    grid.SetText(place, 0, row.day);
    grid.SetText(place, 1, row.time);
    grid.SetText(place, 2, row.entry);
  }
  return {};
}

}  // namespace tarnwell::planner
