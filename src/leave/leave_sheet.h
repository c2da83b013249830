// The screen of a leave tracker: a row for each employee, the days taken in each month, and what is
// left of the year's. Sick leave and vacation differ in a table only.

#pragma once

#include "leave/leave_year.h"
#include "year_sheet/year_sheet.h"

namespace tarnwell::leave {

struct LeaveStyle {
  std::string_view form_name;
  std::string_view title;  // "Employee Sick Leave Tracker"
  LeaveFiles files;
  std::string_view export_stem;
  std::string_view copied_heading;  // of the text for the clipboard, behind the year
  settings::PanelColor panel_color{};
  int backup_set = 0;  // parts/backup_menu.h
};

class LeaveSheet : public year_sheet::YearSheet {
 public:
  LeaveSheet(forms::Context& context, const LeaveStyle& style);

 protected:
  storage::Fault ReadYear(int year) override;
  storage::Outcome WriteYear(int year) override;
  std::string FileOf(int year) const override { return style_.files.sheet(year); }
  void Recompute(int row) override;
  void InsertRow(int row) override;
  void RemoveRow(int row) override;
  std::vector<forms::GridColumn> MoreColumns() const override;
  void CursorMoved() override;
  void CopyYear() override;
  void ShowTotals() override;
  print::PrintJob Report() override;
  std::string ClipboardText() override;

 private:
  void ComputeRow(int row);
  void CountRows();

  LeaveStyle style_;
};

class SICKLEAVE1 : public LeaveSheet {
 public:
  explicit SICKLEAVE1(forms::Context& context);
};

class Vacation1 : public LeaveSheet {
 public:
  explicit Vacation1(forms::Context& context);
};

}  // namespace tarnwell::leave
