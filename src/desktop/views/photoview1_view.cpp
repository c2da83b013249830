#include "desktop/views/entry_screen_view.h"
#include "desktop/views/picture_panel_view.h"
#include "desktop/views/print_view.h"
#include "desktop/views/views.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/layout.h"
#include "desktop/widgets/wallpaper.h"
#include "images/photoview1.h"

namespace tarnwell::desktop {
namespace {

using images::PhotoVIEW1;

constexpr QSize kLeastPicture{300, 200};

QWidget* TopToolbar(PhotoVIEW1& form) {
  QWidget* buttons = Flow({}, kHairSpace);
  for (const auto& area : form.areas) buttons->layout()->addWidget(Low(Widget(*area)));
  buttons->layout()->addWidget(Low(Widget(form.hide_top)));
  return Widget(form.top_toolbar, buttons);
}

QWidget* SideToolbar(PhotoVIEW1& form) {
  return Widget(form.side_toolbar, Column({IconOnly("save", Widget(form.side_save)),
                                           IconOnly("print", Widget(form.side_print)),
                                           IconOnly("picture", Widget(form.side_load)),
                                           IconOnly("clear", Widget(form.side_remove)),
                                           IconOnly("back", Widget(form.hide_side)), Spring()},
                                          kTightSpace));
}

QWidget* ImageView(PhotoVIEW1& form, PictureStore& pictures) {
  QWidget* fields = Fields({{Widget(*form.labels[0]), Widget(*form.fields[0])},
                            {Widget(*form.labels[1]), Widget(*form.fields[1])}});
  QWidget* print_picture =
      Widget(form.print_picture, Row({Widget(form.large), Widget(form.small)}));
  return Column({
      Widget(*form.groups[0], fields),
      Grow(Widget(form.picture_panel,
                  Column({Grow(AtLeast(kLeastPicture, Widget(form.picture, pictures))),
                          Row({Grow(Wrapped(Widget(form.picture_note))), print_picture,
                               Widget(form.show_full), Widget(form.link)})}))),
  });
}

QWidget* SeveralView(PhotoVIEW1& form) {
  return Widget(
      form.several,
      Column({Grow(Row({Grow(Column({Widget(form.all_heading), Grow(Widget(form.all))})),
                        Column({Spring(), Widget(form.add), Widget(form.take_away), Spring()}),
                        Grow(Column({Widget(form.chosen_heading), Grow(Widget(form.chosen))}))})),
              Flow({WithIcon("print", Primary(Widget(form.print_several))),
                    Widget(form.leave_several)})}));
}

QWidget* FullView(PhotoVIEW1& form) {
  return Widget(form.full, Column({Grow(Widget(form.full_picture)),
                                   Flow({Widget(form.larger), Widget(form.smaller),
                                         WithIcon("exit", Widget(form.leave_full))})}));
}

}  // namespace

QWidget* View(PhotoVIEW1& form, PictureStore& pictures) {
  QWidget* screen = Widget(
      form.screen,
      Column({TopToolbar(form),
              Grow(Row({SideToolbar(form), EntryListView(form), Grow(ImageView(form, pictures))})),
              Flow({Primary(Widget(form.save)), Widget(form.change),
                    WithIcon("print", Widget(form.print_file)), Widget(form.choose_several),
                    Widget(form.remove), Widget(form.mode), WithIcon("exit", Widget(form.exit)),
                    Low(Widget(form.restore_top)), Low(Widget(form.restore_side))},
                   kTightSpace)}));
  QWidget* print =
      PrintView(form.print, {Widget(form.copies.option(0)), Widget(form.copies.option(1)),
                             Widget(form.copies.option(2)), Widget(form.copies.option(3)),
                             Widget(form.print_title), Widget(form.print_date)});
  QWidget* page = Padded(Column({Grow(screen), Grow(PicturePanelView(form.pictures, pictures)),
                                 Grow(SeveralView(form)), Grow(FullView(form)), Grow(print)},
                                0),
                         kWideSpace);
  return OnWallpaper(
      form, [&form] { return form.wallpaper(); }, pictures, page);
}

}  // namespace tarnwell::desktop
