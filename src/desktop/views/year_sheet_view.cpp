#include "desktop/views/year_sheet_view.h"

#include "desktop/views/grid_background_view.h"
#include "desktop/views/print_view.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/layout.h"

namespace tarnwell::desktop {
namespace {

constexpr int kLettersOfBox = 40;
constexpr int kLeastLettersOfYears = 11;  // with the arrow of the list
constexpr int kLettersOfLocation = 9;

}  // namespace

QWidget* YearSheetView(year_sheet::YearSheet& form, PictureStore& pictures, QWidget* below) {
  QWidget* years = Widget(form.years);
  years->setMinimumWidth(kLeastLettersOfYears * years->fontMetrics().averageCharWidth());
  QWidget* column = Column({
      Row({Widget(form.year_label), years, Widget(form.box_label),
           Grow(AtMost(Widget(form.box), kLettersOfBox)),
           OfLetters(Widget(form.location), kLettersOfLocation), Spring()}),
      Grow(Widget(form.grid, pictures)),
  });
  if (below) Append(column, below);
  Append(column,
         Flow({Primary(Widget(form.save)), Widget(form.copy_right), Widget(form.delete_row),
               Widget(form.copy_year), Widget(form.totals),
               WithIcon("spelling", Widget(form.spelling)),
               WithIcon("print", Widget(form.print_options)), WithIcon("exit", Widget(form.exit))},
              kTightSpace));
  return Widget(form.sheet, column);
}

QWidget* YearSheetPage(year_sheet::YearSheet& form, PictureStore& pictures, QWidget* sheet,
                       QWidget* print, std::initializer_list<QWidget*> panels) {
  QWidget* in_turn =
      Column({Grow(sheet), Grow(print), Grow(AtMost(ExportView(form.exporting), kLettersOfPanel)),
              AtTop(AtMost(GridBackgroundView(form.background, pictures), kLettersOfPanel))},
             0);
  for (QWidget* panel : panels) Append(in_turn, Grow(panel));
  return Padded(in_turn, kSpace);
}

}  // namespace tarnwell::desktop
