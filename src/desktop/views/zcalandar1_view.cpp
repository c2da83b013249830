#include "desktop/views/day_rows_widget.h"
#include "desktop/views/grid_background_view.h"
#include "desktop/views/print_view.h"
#include "desktop/views/recurrence_view.h"
#include "desktop/views/views.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/layout.h"
#include "planner/zcalandar1.h"

namespace tarnwell::desktop {
namespace {

// A day's row, in letters: wider, and the eye loses the line.
constexpr int kLettersOfRow = 105;

QWidget* Day(planner::Zcalandar1& form) {
  QWidget* sort_time = Inline(Widget(
      form.sort_frame, Row({Widget(form.sort_time.option(0)), Widget(form.sort_time.option(1))})));
  return Widget(
      form.day,
      Column({
          Wrapped(Widget(form.date_caption)),
          new DayRowsWidget(form),
          Flow({WithIcon("save", Widget(form.save)), WithIcon("clear", Widget(form.clear_entries)),
                WithIcon("spelling", Widget(form.check_spelling)),
                WithIcon("month", Widget(form.view_month)),
                WithIcon("print", Widget(form.print_options)), WithIcon("exit", Widget(form.exit)),
                sort_time}),
          Spring(),
      }));
}

QWidget* Options(forms::Panel& frame, forms::OptionGroup& group) {
  QWidget* options = Column({}, kTightSpace);
  for (int i = 0; i < group.size(); ++i) Append(options, Widget(group.option(i)));
  return Widget(frame, Column({options, Spring()}, 0));
}

QWidget* CalendarOptions(planner::CalendarOptionsPanel& panel) {
  return Widget(panel.panel, Column({
                                 Row({Options(panel.weekday_frame, panel.weekday),
                                      Column({Options(panel.week_numbers_frame, panel.week_numbers),
                                              Options(panel.months_frame, panel.months),
                                              Options(panel.today_frame, panel.mark_today)})}),
                                 Row({Spring(), Widget(panel.close)}),
                             }));
}

QWidget* MonthView(planner::MonthPanel& month, PictureStore& pictures) {
  return Widget(
      month.panel,
      Column({Grow(Widget(month.grid, pictures)),
              Row({WithIcon("print", Widget(month.print)), Spring(), Widget(month.close)})}));
}

QWidget* PagesView(planner::PlannerPages& pages) {
  return PrintView(pages.print, {Widget(pages.columns.option(0)), Widget(pages.columns.option(1))});
}

}  // namespace

QWidget* View(planner::Zcalandar1& form, PictureStore& pictures) {
  QWidget* import_panel = Widget(form.todo_import.panel, Widget(form.todo_import.progress));
  QWidget* in_turn = Column(
      {Grow(AtMost(Day(form), kLettersOfRow)),
       AtTop(AtMost(CalendarOptions(form.calendar_options), kLettersOfRow)),
       Grow(RecurrenceView(form.recurrence)),
       Grow(AtMost(MonthView(form.pages.month, pictures), kLettersOfPanel)),
       Grow(PagesView(form.pages)), Grow(AtMost(ExportView(form.pages.exporting), kLettersOfPanel)),
       AtTop(AtMost(GridBackgroundView(form.background, pictures), kLettersOfPanel)),
       AtTop(import_panel)},
      0);
  // What covers the rows and the calendar takes the whole width.
  QWidget* side = ShownWhile(
      form.picker, [&form] { return form.picker.visible(); },
      Column({Widget(form.picker), Widget(form.clock), Spring()}));
  QWidget* page = Row({side, Grow(in_turn)}, kWideSpace);
  // The 14 rows need the height.
  page->layout()->setContentsMargins(kWideSpace, kSpace, kWideSpace, kSpace);
  return page;
}

}  // namespace tarnwell::desktop
