#include "desktop/views/print_view.h"
#include "desktop/views/views.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/layout.h"
#include "record_book/picture_pages.h"

namespace tarnwell::desktop {
namespace {

using record_book::PicturePages;

constexpr int kCellSide = 180;  // pixels
constexpr int kLettersOfMonth = 10;

QWidget* Criteria(PicturePages& form) {
  QWidget* lines = Column({}, kTightSpace);
  for (const auto& line : form.lines) Append(lines, Widget(*line));
  return Column({
      Widget(form.display_frame,
             Column({Widget(form.display.option(0)), Widget(form.display.option(1))}, kTightSpace)),
      Widget(form.birthday_frame,
             Column({Widget(form.birthdays.option(0)), Widget(form.birthdays.option(1)),
                     Row({Widget(form.month_label), OfLetters(Widget(form.month), kLettersOfMonth),
                          Widget(form.month_note), Spring()}),
                     AtStart(Widget(form.update))},
                    kTightSpace)),
      Widget(form.lines_frame, lines),
      Spring(),
  });
}

QWidget* Picture(PicturePages& form, PictureStore& pictures) {
  QWidget* picture = Widget(form.picture, pictures);
  picture->setFixedSize(kCellSide, kCellSide);
  return Column({picture, Wrapped(Widget(form.picture_note)), Spring()});
}

}  // namespace

QWidget* View(PicturePages& form, PictureStore& pictures) {
  QWidget* sheet = Widget(
      form.sheet,
      Column({Column({Wrapped(Widget(form.warning)), Wrapped(Widget(form.patience))}, kTightSpace),
              Grow(Row({Scrolled(Criteria(form)),
                        Grow(Column({Row({Widget(form.list_heading), Widget(form.total), Spring()}),
                                     Grow(Widget(form.names))})),
                        Picture(form, pictures)},
                       kWideSpace)),
              Flow({Widget(form.pages), Widget(form.page_label), Primary(Widget(form.preview)),
                    Widget(form.cancel)})}));
  return Padded(Column({Grow(sheet), Grow(PrintView(form.print))}, 0), kSpace);
}

}  // namespace tarnwell::desktop
