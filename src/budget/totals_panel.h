#pragma once

#include <functional>

#include "budget/year_totals.h"
#include "forms/chart.h"
#include "forms/choice.h"
#include "forms/command.h"
#include "forms/grid.h"
#include "forms/label.h"
#include "forms/panel.h"

namespace tarnwell::budget {

// A year's totals: its sums, each item with its percentage, and the chart beside them.
class TotalsPanel {
 public:
  explicit TotalsPanel(forms::Container& parent);

  forms::Panel panel;
  forms::Label expenses_title{panel, "Label10", "Total Expenses: "};
  forms::Label expenses{panel, "Label13"};
  forms::Label expenses_share{panel, "Label16"};
  forms::Label income_title{panel, "Label11", "Total Income: "};
  forms::Label income{panel, "Label14"};
  forms::Label income_share{panel, "Label17"};
  forms::Label balance_title{panel, "Label12", "Balance: "};
  forms::Label balance{panel, "Label15"};
  forms::Label balance_share{panel, "Label18"};
  forms::Label base_note{panel, "Label19"};
  forms::Label hint{panel, "Label9", "Click Item to Highlight in Graph", forms::LabelRole::kNote};
  forms::Grid items{panel, "Grid2", "Totals of the items"};
  forms::Chart chart{panel, "Chart2D1", "Chart of the items"};
  forms::Panel kind_frame{panel, "SSFrame1", "Chart Type"};
  forms::OptionGroup kind{kind_frame, "SSOption1", {"Bar", "Pie", "Stacking"}};
  forms::Panel orientation_frame{panel, "SSFrame2", "Orientation"};
  forms::OptionGroup orientation{orientation_frame, "SSOption2", {"Vertical", "Horizontal"}};
  forms::Command change_base{panel, "Command12", "Ch&ange %"};
  forms::Command close{panel, "Command9", "&Close", {.cancel = true}};

  void Open(int year, YearTotals totals);
  bool is_open() const { return panel.visible(); }
  const YearTotals& totals() const { return totals_; }
  PercentBase base() const { return base_; }

  std::function<void()> on_close;

 private:
  void ShowSums();
  void ShowItems();
  void ShowPercents();
  void Close();
  // Points have only the rows with a total.
  int PointOfRow(int row) const;
  int RowOfPoint(int point) const;

  YearTotals totals_;
  PercentBase base_ = PercentBase::kIncome;
};

}  // namespace tarnwell::budget
