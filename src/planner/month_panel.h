#pragma once

#include <vector>

#include "forms/command.h"
#include "forms/grid.h"
#include "forms/panel.h"
#include "planner/month_view.h"
#include "text/date.h"

namespace tarnwell::planner {

// The panel that lists a month.
class MonthPanel {
 public:
  explicit MonthPanel(forms::Container& parent);

  forms::Panel panel;
  forms::Grid grid{panel, "VSGd1", "Month"};
  forms::Command print{panel, "Command6", "Print &Month"};
  forms::Command close{panel, "Command5", "&Close"};

  // Lists the month of that date. A month without rows has one empty row. A month that can't be
  // read leaves the list as it was.
  storage::Outcome Fill(storage::ProgramFolder& folder, text::Date date);
  const std::vector<MonthRow>& rows() const { return rows_; }
  // The first day of the month listed.
  text::Date month() const { return month_; }

 private:
  std::vector<MonthRow> rows_;
  text::Date month_{};
};

}  // namespace tarnwell::planner
