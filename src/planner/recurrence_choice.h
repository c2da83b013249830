#pragma once

#include "forms/choice.h"
#include "forms/date_picker.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/panel.h"
#include "forms/text_field.h"
#include "planner/recurrence.h"
#include "planner/recurrence_input.h"

namespace tarnwell::planner {

constexpr forms::TextFieldStyle NumberBoxStyle(std::string_view spoken_name) {
  return {.max_length = 2, .spoken_name = spoken_name, .select_on_entry = true};
}

// A recurrence request as controls: which rule, how often, from when until when. What is typed or
// picked is put right at once, so the request can be run as it stands.
class RecurrenceChoice {
 public:
  RecurrenceChoice(forms::Form& form, forms::Container& parent, forms::Clock& clock);

  forms::Panel panel;

  forms::Panel daily{panel, "Frame8", "Daily Recurrence"};
  forms::Panel weekly{panel, "Frame9", "Weekly Recurrence"};
  forms::Panel monthly{panel, "Frame10", "Monthly Recurrence"};
  forms::Panel yearly{panel, "Frame11", "Yearly Recurrence"};
  forms::Panel range{panel, "Frame12"};

  forms::OptionGroup modes;  // Option3, in all four frames; the index is the RecurrenceMode

  forms::TextField every_days{daily, "Text4", NumberBoxStyle("Days")};
  forms::Label days_label{daily, "Label4", "day(s)"};

  forms::TextField every_weeks{weekly, "Text5", NumberBoxStyle("Weeks")};
  forms::Label weeks_label{weekly, "Label5", "week(s) on the following day:"};
  forms::OptionGroup weekday{
      weekly,
      "Option5",
      {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"}};

  forms::TextField day_of_month{monthly, "Text6(0)", NumberBoxStyle("Day of the month")};
  forms::Label of_every_label{monthly, "Label6", "of every:"};
  forms::TextField every_months{monthly, "Text6(1)", NumberBoxStyle("Months")};
  forms::Label months_label{monthly, "Label7", "month(s)"};

  forms::ComboBox month{yearly, "Combo2", "Month"};
  forms::TextField day{yearly, "Text9", NumberBoxStyle("Day")};
  forms::Label show_every_label{yearly, "Label8", " Show every:"};
  forms::TextField every_years{yearly, "Text8", NumberBoxStyle("Years")};
  forms::Label years_label{yearly, "Label9", "year(s)"};

  forms::Label beginning_label{range, "Label10", "  Beginning Date:"};
  forms::Label beginning{range, "Text7"};
  forms::OptionGroup end_kind{range, "Option4", {"End Date after:", "End Date:"}};
  forms::TextField occurrences{range, "Text11", NumberBoxStyle("Number of occurrences")};
  forms::Label occurrences_label{range, "Label11", "occurance(s)"};
  forms::Label end{range, "Text10"};
  forms::Label calendar_label{range, "Label12", "Use Calendar to change either date:"};
  forms::OptionGroup date_to_change{range, "Option6", {"Beginning Date", "End Date"}};
  forms::DatePicker calendar{range, "MonthView2", "Date to change"};
  forms::Label note{range, "Label13",
                    "[Note: Recommend - To Keep Files Manageable -    Ending Dates should be "
                    "between 5 to 10 years.]",
                    forms::LabelRole::kNote};

  // All defaults for a recurrence from the day on screen on, and no rule chosen.
  void Start(text::Date on_screen);

  // The whole range day by day: the walk that a removal makes.
  void ChooseEveryDayOfRange();

  RecurrenceMode mode() const;
  // Without the appointment, which isn't chosen here.
  RecurrenceRequest Request() const;

 private:
  enum DateToChange { kBeginningDate, kEndDate };

  void AddModes();
  void WatchBox(NumberBox box, forms::TextField& field);
  void Select(RecurrenceMode mode);
  void CheckTenYears();
  void PickDateToChange(int index);
  void PickDate(text::Date date);
  void ShowDates();
  EndKind end_kind_chosen() const { return static_cast<EndKind>(end_kind.chosen()); }

  forms::Form& form_;
  forms::Clock& clock_;
  text::Date beginning_date_{};
  text::Date end_date_{};
};

}  // namespace tarnwell::planner
