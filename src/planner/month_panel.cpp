#include "planner/month_panel.h"

#include <algorithm>

namespace tarnwell::planner {

MonthPanel::MonthPanel(forms::Container& parent) : panel(parent, "SSPanel3") {
  panel.SetVisible(false);
  close.SetCancel(true);
  grid.SetColumns({{"Day", 0.156}, {"Time", 0.2}, {"Appointment/Activity", 0.64}});
}

void MonthPanel::Fill(storage::ProgramFolder& folder, text::Date date) {
  month_ = text::MakeDate(text::YearOf(date), text::MonthOf(date), 1);
  rows_ = ListMonth(folder, text::YearOf(date), text::MonthOf(date));
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
}

}  // namespace tarnwell::planner
