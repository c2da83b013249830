#include "desktop/widgets/binding.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/month_calendar.h"

namespace tarnwell::desktop {

QWidget* Widget(forms::DatePicker& picker) {
  auto* calendar = new MonthCalendar;
  auto* binding = new Binding(calendar, picker, [calendar, &picker] {
    calendar->Show(picker.date(), picker.today(), picker.look());
  });
  calendar->on_pick = binding->Forward([&picker](text::Date date) { picker.SelectDay(date); });
  return calendar;
}

}  // namespace tarnwell::desktop
