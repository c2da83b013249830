#include "desktop/views/recurrence_view.h"

#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/layout.h"

namespace tarnwell::desktop {
namespace {

constexpr int kDigits = 3;
constexpr int kLettersOfRun = 105;
constexpr int kLettersOfRange = 70;

QWidget* NumberBox(forms::TextField& field) { return OfLetters(Widget(field), kDigits); }

QWidget* Weekly(planner::RecurrenceChoice& choice) {
  const auto weekday = [&](int index) { return Widget(choice.weekday.option(index)); };
  return Widget(choice.weekly,
                Column({Row({Widget(choice.modes.option(2)), NumberBox(choice.every_weeks),
                             Widget(choice.weeks_label), Spring()}),
                        Grid({{weekday(0), weekday(1), weekday(2), weekday(3)},
                              {weekday(4), weekday(5), weekday(6)}},
                             3)}));
}

QWidget* Yearly(planner::RecurrenceChoice& choice) {
  return Widget(choice.yearly,
                Column({Row({Widget(choice.modes.option(4)), Widget(choice.modes.option(5)),
                             Widget(choice.month), NumberBox(choice.day), Spring()}),
                        Row({Widget(choice.show_every_label), NumberBox(choice.every_years),
                             Widget(choice.years_label), Spring()})}));
}

QWidget* Rules(planner::RecurrenceChoice& choice) {
  return Column({
      Widget(choice.daily,
             Column({Row({Widget(choice.modes.option(0)), NumberBox(choice.every_days),
                          Widget(choice.days_label), Spring()}),
                     Widget(choice.modes.option(1))})),
      Weekly(choice),
      Widget(choice.monthly, Row({Widget(choice.modes.option(3)), NumberBox(choice.day_of_month),
                                  Widget(choice.of_every_label), NumberBox(choice.every_months),
                                  Widget(choice.months_label), Spring()})),
      Yearly(choice),
      Spring(),
  });
}

QWidget* Range(planner::RecurrenceChoice& choice) {
  return Widget(choice.range,
                Card(Column({
                         Row({Widget(choice.beginning_label), Widget(choice.beginning), Spring()}),
                         Row({Widget(choice.end_kind.option(0)), NumberBox(choice.occurrences),
                              Widget(choice.occurrences_label), Spring()}),
                         Row({Widget(choice.end_kind.option(1)), Widget(choice.end), Spring()}),
                         Widget(choice.calendar_label),
                         Row({Widget(choice.date_to_change.option(0)),
                              Widget(choice.date_to_change.option(1)), Spring()}),
                         AtStart(Widget(choice.calendar)),
                         Wrapped(Widget(choice.note)),
                         Spring(),
                     }),
                     kSpace));
}

}  // namespace

QWidget* RecurrenceView(planner::RecurrencePanel& panel) {
  QWidget* run =
      Widget(panel.run_panel,
             Column({Wrapped(Widget(panel.warning)),
                     Row({Grow(Widget(panel.progress)), Widget(panel.stop)}, kWideSpace)}));
  AtMost(run, kLettersOfRun);
  return Widget(
      panel.panel,
      Column({
          Widget(panel.appointment),
          Widget(panel.choice.panel,
                 Row({Rules(panel.choice), Grow(AtMost(Range(panel.choice), kLettersOfRange))})),
          run,
          Row({Primary(Widget(panel.ok)), Widget(panel.remove), Widget(panel.cancel), Spring()}),
          Spring(),
      }));
}

}  // namespace tarnwell::desktop
