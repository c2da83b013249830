#pragma once

#include <optional>
#include <string_view>

#include "forms/control.h"
#include "text/date.h"

namespace tarnwell::forms {

// How a date picker shows its months.
struct DatePickerLook {
  int months = 1;  // 1 or 2, side by side
  bool week_numbers = false;
  unsigned first_weekday = 0;  // 0 Sunday to 6 Saturday
  bool mark_today = false;

  friend bool operator==(const DatePickerLook&, const DatePickerLook&) = default;
};

// A month calendar with at most one day picked. Days before 1 January 1753 or after 31 December
// 9999 can't be picked.
class DatePicker : public Control {
 public:
  DatePicker(Container& parent, std::string_view name, std::string_view spoken_name)
      : Control(parent, name) {
    SetSpokenName(spoken_name);
  }

  const std::optional<text::Date>& date() const { return date_; }
  void SetDate(std::optional<text::Date> date);
  // The day that a marked today stands for.
  const std::optional<text::Date>& today() const { return today_; }
  void SetToday(std::optional<text::Date> date);

  const DatePickerLook& look() const { return look_; }
  void SetLook(const DatePickerLook& look);

  void SelectDay(text::Date date);
  std::function<void()> on_pick;

 private:
  std::optional<text::Date> date_;
  std::optional<text::Date> today_;
  DatePickerLook look_;
};

}  // namespace tarnwell::forms
