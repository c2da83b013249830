#include "planner/calendar_options_panel.h"

namespace tarnwell::planner {

CalendarOptionsPanel::CalendarOptionsPanel(forms::Container& parent, storage::ProgramFolder& folder)
    : panel(parent, "SSPanel6", "Calendar Options"), folder_(folder) {
  panel.SetVisible(false);
  weekday.on_pick = [this](int index) { Change(&CalendarOptions::first_weekday, index + 1); };
  week_numbers.on_pick = [this](int index) { Change(&CalendarOptions::hide_week_numbers, index); };
  months.on_pick = [this](int index) { Change(&CalendarOptions::months, index); };
  mark_today.on_pick = [this](int index) { Change(&CalendarOptions::mark_today, index); };
  close.on_click = [this] {
    WriteCalendarOptions(folder_, options_);
    if (on_close) on_close();
  };
}

void CalendarOptionsPanel::Load() {
  options_ = ReadCalendarOptions(folder_);
  Show();
}

void CalendarOptionsPanel::Show() {
  weekday.Choose(static_cast<int>(LookOf(options_).first_weekday));
  week_numbers.Choose(options_.hide_week_numbers);
  months.Choose(options_.months);
  mark_today.Choose(options_.mark_today);
}

void CalendarOptionsPanel::Change(int CalendarOptions::*option, int value) {
  options_.*option = value;
  if (on_change) on_change();
}

}  // namespace tarnwell::planner
