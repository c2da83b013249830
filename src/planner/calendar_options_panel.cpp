#include "planner/calendar_options_panel.h"

#include "forms/disk_trouble.h"

namespace tarnwell::planner {

CalendarOptionsPanel::CalendarOptionsPanel(forms::Container& parent, forms::Context& context)
    : panel(parent, "SSPanel6", "Calendar Options"), context_(context) {
  panel.SetVisible(false);
  weekday.on_pick = [this](int index) { Change(&CalendarOptions::first_weekday, index + 1); };
  week_numbers.on_pick = [this](int index) { Change(&CalendarOptions::hide_week_numbers, index); };
  months.on_pick = [this](int index) { Change(&CalendarOptions::months, index); };
  mark_today.on_pick = [this](int index) { Change(&CalendarOptions::mark_today, index); };
  close.on_click = [this] { Close(); };
}

void CalendarOptionsPanel::Close() {
  const auto written = WriteCalendarOptions(context_.folder, options_);
  if (!written) {
    forms::TellNotSaved(context_, "The calendar options", written.fault());
    if (!forms::AskToLeaveUnsaved(context_)) return;
  }
  if (on_close) on_close();
}

void CalendarOptionsPanel::Load() {
  options_ = ReadCalendarOptions(context_.folder);
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
