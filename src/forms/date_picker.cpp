#include "forms/date_picker.h"

namespace tarnwell::forms {

void DatePicker::SetDate(std::optional<text::Date> date) {
  date_ = date;
  Changed();
}

void DatePicker::SetToday(std::optional<text::Date> date) {
  if (today_ == date) return;
  today_ = date;
  Changed();
}

void DatePicker::SetLook(const DatePickerLook& look) {
  if (look_ == look) return;
  look_ = look;
  Changed();
}

void DatePicker::SelectDay(text::Date date) {
  if (!Reachable() || !date.ok()) return;
  if (text::YearOf(date) < 1753 || text::YearOf(date) > 9999) return;
  SetDate(date);
  Run(on_pick);
}

}  // namespace tarnwell::forms
