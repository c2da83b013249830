#pragma once

#include <functional>

#include "forms/choice.h"
#include "forms/command.h"
#include "forms/context.h"
#include "forms/panel.h"
#include "planner/calendar_options.h"

namespace tarnwell::planner {

// The panel "Calendar Options": a choice applies at once, "&Close" stores all four.
class CalendarOptionsPanel {
 public:
  CalendarOptionsPanel(forms::Container& parent, forms::Context& context);

  forms::Panel panel;
  forms::Panel weekday_frame{panel, "Frame1", "Start Week With"};
  forms::Panel week_numbers_frame{panel, "Frame2", "Display the Week Numbers"};
  forms::Panel months_frame{panel, "Frame3", "Number of Months to Display"};
  forms::Panel today_frame{panel, "Frame4", "Display Today's Date"};
  forms::OptionGroup weekday{
      weekday_frame,
      "Option8",
      {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"}};
  forms::OptionGroup week_numbers{
      week_numbers_frame, "Option9", {"Yes (Display)", "No (Don't Display)"}};
  forms::OptionGroup months{months_frame, "Option10", {"One Month (1)", "Two Months (2)"}};
  forms::OptionGroup mark_today{today_frame, "Option11", {"No", "Yes"}};
  forms::Command close{panel, "Command9", "&Close", {.cancel = true}};

  // Reads the stored options.
  void Load();
  const CalendarOptions& options() const { return options_; }

  std::function<void()> on_change;
  std::function<void()> on_close;

 private:
  void Show();
  void Close();
  void Change(int CalendarOptions::*option, int value);

  forms::Context& context_;
  CalendarOptions options_;
};

}  // namespace tarnwell::planner
