#include "planner/recurrence_choice.h"

#include "planner/recurrence_messages.h"
#include "text/date_mask.h"
#include "text/date_names.h"

namespace tarnwell::planner {
namespace {

constexpr const char* kDateMask = "mm/dd/yyyy - ddd";

unsigned Unsigned(const forms::TextField& field) {
  return static_cast<unsigned>(NumberIn(field.text()));
}

}  // namespace

RecurrenceChoice::RecurrenceChoice(forms::Form& form, forms::Container& parent, forms::Clock& clock)
    : panel(parent, "SSPanel8"), form_(form), clock_(clock) {
  AddModes();
  month.SetItems({text::kMonthNames.begin(), text::kMonthNames.end()});
  WatchBox(NumberBox::kDays, every_days);
  WatchBox(NumberBox::kWeeks, every_weeks);
  WatchBox(NumberBox::kDayOfMonth, day_of_month);
  WatchBox(NumberBox::kMonths, every_months);
  WatchBox(NumberBox::kDay, day);
  WatchBox(NumberBox::kYears, every_years);
  WatchBox(NumberBox::kOccurrences, occurrences);
  // A click on a rule holds N against ten years even while "End Date:" is in force.
  modes.on_pick = [this](int) { CheckTenYears(); };
  weekday.on_pick = [this](int) { Select(RecurrenceMode::kWeekly); };
  month.on_pick = [this] { Select(RecurrenceMode::kYearly); };
  date_to_change.on_pick = [this](int index) { PickDateToChange(index); };
  calendar.on_pick = [this] { PickDate(*calendar.date()); };
}

void RecurrenceChoice::AddModes() {
  modes.Add(daily, "Option3(0)", "Show every:");
  modes.Add(daily, "Option3(1)", "Weekdays Only (Monday - Friday)");
  modes.Add(weekly, "Option3(2)", "Show every: ");
  modes.Add(monthly, "Option3(3)", "Show on day:");
  modes.Add(yearly, "Option3(4)", {}).SetVisible(false);
  modes.Add(yearly, "Option3(5)", "On this date:");
}

void RecurrenceChoice::WatchBox(NumberBox box, forms::TextField& field) {
  // A number that is typed over the same number chooses its rule too.
  field.on_type = [this, box, &field] {
    field.SetText(AcceptNumber(box, field.text()));
    if (box == NumberBox::kOccurrences) {
      end_kind.Choose(static_cast<int>(EndKind::kEndDateAfter));
      CheckTenYears();
    } else {
      Select(ModeSelectedBy(box));
    }
  };
}

void RecurrenceChoice::Start(text::Date on_screen) {
  modes.Choose(forms::OptionGroup::kNone);
  for (forms::TextField* field :
       {&every_days, &every_weeks, &day_of_month, &every_months, &every_years, &occurrences}) {
    field->SetText("1");
  }
  weekday.Choose(static_cast<int>(text::WeekdayOf(on_screen)));
  month.Select(static_cast<int>(text::MonthOf(on_screen)) - 1);
  day.SetText(std::to_string(text::DayOf(on_screen)));
  end_kind.Choose(static_cast<int>(EndKind::kEndDate));
  date_to_change.Choose(kBeginningDate);
  beginning_date_ = on_screen;
  end_date_ = DefaultEndDate(on_screen);
  calendar.SetToday(clock_.Today());
  ShowDates();
}

void RecurrenceChoice::ChooseEveryDayOfRange() {
  every_days.SetText("1");
  end_kind.Choose(static_cast<int>(EndKind::kEndDate));
  modes.Choose(static_cast<int>(RecurrenceMode::kDaily));
}

RecurrenceMode RecurrenceChoice::mode() const {
  return modes.chosen() == forms::OptionGroup::kNone ? RecurrenceMode::kNone
                                                     : static_cast<RecurrenceMode>(modes.chosen());
}

RecurrenceRequest RecurrenceChoice::Request() const {
  return {.appointment = {},
          .mode = mode(),
          .every_days = NumberIn(every_days.text()),
          .every_weeks = NumberIn(every_weeks.text()),
          .weekday = static_cast<unsigned>(weekday.chosen()),
          .day_of_month = Unsigned(day_of_month),
          .every_months = NumberIn(every_months.text()),
          .month = static_cast<unsigned>(month.selected() + 1),
          .day = Unsigned(day),
          .every_years = NumberIn(every_years.text()),
          .end_kind = end_kind_chosen(),
          .occurrences = NumberIn(occurrences.text()),
          .beginning = beginning_date_,
          .end = end_date_};
}

void RecurrenceChoice::Select(RecurrenceMode mode) {
  modes.Choose(static_cast<int>(mode));
  if (end_kind_chosen() == EndKind::kEndDateAfter) CheckTenYears();
}

void RecurrenceChoice::CheckTenYears() {
  const RecurrenceRequest request = Request();
  const int fitting = OccurrencesWithinTenYears(request);
  if (fitting == request.occurrences) return;
  const auto [title, text] = TenYearsExceeded();
  form_.Message({title, text, forms::Icon::kExclamation});
  occurrences.SetText(std::to_string(fitting));
}

void RecurrenceChoice::PickDateToChange(int index) {
  if (index == kEndDate) end_kind.Choose(static_cast<int>(EndKind::kEndDate));
  ShowDates();
}

void RecurrenceChoice::PickDate(text::Date date) {
  const text::Date today = clock_.Today();
  if (date_to_change.chosen() == kBeginningDate) {
    if (!IsTooLongAgo(date, today)) beginning_date_ = date;
  } else if (date >= LatestEndDate(today)) {
    end_date_ = LatestEndDate(today);
    const auto [title, text] = TenYearsExceeded();
    form_.Message({title, text, forms::Icon::kExclamation});
  } else {
    end_date_ = date;
  }
  ShowDates();
}

// The calendar stands on the date that it would change.
void RecurrenceChoice::ShowDates() {
  beginning.SetCaption(text::FormatDate(beginning_date_, kDateMask));
  end.SetCaption(text::FormatDate(end_date_, kDateMask));
  calendar.SetDate(date_to_change.chosen() == kBeginningDate ? beginning_date_ : end_date_);
}

}  // namespace tarnwell::planner
