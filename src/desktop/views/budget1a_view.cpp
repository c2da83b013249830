#include <QGridLayout>

#include "budget/budget1a.h"
#include "desktop/views/print_view.h"
#include "desktop/views/views.h"
#include "desktop/views/year_sheet_view.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/layout.h"

namespace tarnwell::desktop {
namespace {

// As in the grid above.
constexpr int kTitleShare = 3;
constexpr int kMonthShare = 1;
constexpr int kScrollBar = 14;
constexpr int kLettersOfItems = 60;

void AppendRow(QGridLayout& rows, forms::Label& title,
               forms::ControlArray<forms::Label, budget::kMonths>& months) {
  const int row = rows.rowCount();
  rows.addWidget(Widget(title), row, 0, Qt::AlignRight);
  for (std::size_t i = 0; i < months.size(); ++i) {
    rows.addWidget(Widget(months[i]), row, static_cast<int>(i) + 1, Qt::AlignRight);
  }
}

// Below the months' columns, on a white ground for the red of a balance.
QWidget* Months(budget::Budget1a& form) {
  auto* table = new QWidget;
  auto* rows = new QGridLayout(table);
  rows->setContentsMargins(0, 0, kScrollBar, 0);
  rows->setHorizontalSpacing(0);
  rows->setVerticalSpacing(kHairSpace);
  AppendRow(*rows, form.expenses_title, form.expenses);
  AppendRow(*rows, form.income_title, form.income);
  AppendRow(*rows, form.balance_title, form.balance);
  rows->setColumnStretch(0, kTitleShare);
  for (int i = 1; i <= static_cast<int>(budget::kMonths); ++i) {
    rows->setColumnStretch(i, kMonthShare);
  }
  return Card(table, kTightSpace);
}

QWidget* Choices(forms::Panel& frame, forms::OptionGroup& group) {
  QWidget* options = Row({});
  for (int i = 0; i < group.size(); ++i) Append(options, Widget(group.option(i)));
  return Inline(Widget(frame, options));
}

QWidget* Totals(budget::TotalsPanel& panel, PictureStore& pictures) {
  QWidget* sums = Card(
      Grid({{Widget(panel.expenses_title), Widget(panel.expenses), Widget(panel.expenses_share)},
            {Widget(panel.income_title), Widget(panel.income), Widget(panel.income_share)},
            {Widget(panel.balance_title), Widget(panel.balance), Widget(panel.balance_share)}},
           2),
      kSpace);
  QWidget* list = Column({sums, Widget(panel.hint), Grow(Widget(panel.items, pictures)),
                          Wrapped(Widget(panel.base_note))});
  QWidget* graph = Column(
      {Grow(Widget(panel.chart)), Flow({Choices(panel.kind_frame, panel.kind),
                                        Choices(panel.orientation_frame, panel.orientation)})});
  return Widget(
      panel.panel,
      Column({Grow(Row({Grow(AtMost(list, kLettersOfItems), 2), Grow(graph, 3)}, kWideSpace)),
              Row({Widget(panel.change_base), Spring(), Widget(panel.close)})}));
}

}  // namespace

QWidget* View(budget::Budget1a& form, PictureStore& pictures) {
  return YearSheetPage(form, pictures, YearSheetView(form, pictures, Months(form)),
                       PrintView(form.print, {Widget(form.print_graph)}),
                       {Totals(form.year_totals, pictures),
                        Widget(form.preparing, Row({Widget(form.cancel_print), Spring()}))});
}

}  // namespace tarnwell::desktop
