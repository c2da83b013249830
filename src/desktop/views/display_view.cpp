#include "desktop/views/grid_background_view.h"
#include "desktop/views/print_view.h"
#include "desktop/views/views.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/layout.h"
#include "record_book/display_screen.h"

namespace tarnwell::desktop {
namespace {

constexpr int kLettersOfSearch = 40;
constexpr int kLettersOfDialing = 12;
constexpr QSize kPicture{32, 32};

QWidget* Options(record_book::DisplayScreen& form) {
  QWidget* column = Column({}, kTightSpace);
  for (int i = 0; i < form.options.size(); ++i) Append(column, Widget(form.options.option(i)));
  Append(column, Spring());
  return Widget(form.option_frame, column);
}

QWidget* Links(record_book::DisplayScreen& form, PictureStore& pictures) {
  QWidget* row = Row({OfLetters(Widget(form.links.dialing), kLettersOfDialing)});
  for (auto& [use, picture] : form.links.pictures) {
    QWidget* shown = Widget(*picture, pictures);
    shown->setFixedSize(kPicture);
    Append(row, shown);
  }
  return row;
}

QWidget* Display(record_book::DisplayScreen& form, PictureStore& pictures) {
  QWidget* column = Column({
      Row({Widget(form.shown_option), Spring(), Links(form, pictures)}),
      Row({Grow(AtMost(Widget(form.search_text), kLettersOfSearch)), Primary(Widget(form.search)),
           Widget(form.view_all), Spring()}),
      Row({Grow(Wrapped(Captioned(Widget(form.mode))), 2), Grow(Wrapped(Widget(form.count)))}),
  });
  if (form.headings) Append(column, HeadingsOnly(Widget(*form.headings, pictures)));
  Append(column, Grow(Widget(form.grid, pictures)));
  return column;
}

}  // namespace

QWidget* View(record_book::DisplayScreen& form, PictureStore& pictures) {
  QWidget* sheet = Widget(
      form.sheet, Column({
                      Grow(Row({Options(form), Grow(Display(form, pictures))}, kWideSpace)),
                      Flow({Widget(form.remove_row), WithIcon("print", Widget(form.print_options)),
                            Widget(form.complete_report), WithIcon("exit", Widget(form.exit))},
                           kTightSpace),
                  }));
  QWidget* print =
      PrintView(form.print, {Widget(form.with_telephones), Widget(form.list_columns.option(0)),
                             Widget(form.list_columns.option(1))});
  return Padded(
      Column({Grow(sheet), Grow(print), Grow(AtMost(ExportView(form.exporting), kLettersOfPanel)),
              AtTop(AtMost(GridBackgroundView(form.background, pictures), kLettersOfPanel))},
             0),
      kSpace);
}

}  // namespace tarnwell::desktop
