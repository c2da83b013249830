#include "desktop/views/views.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/layout.h"
#include "shell/startfrm.h"

namespace tarnwell::desktop {
namespace {

QWidget* Center(shell::Startfrm& form, PictureStore& pictures) {
  QWidget* words = Column({
      AtStart(Widget(form.emblem, pictures)),
      Widget(form.welcome),
      Widget(form.product),
      Widget(form.purpose),
      Widget(form.hidden_title),
      Spring(),
      Widget(form.today),
      Primary(Widget(form.begin)),
      Row({Widget(form.full_screen), Widget(form.smaller_screen), Spring(),
           WithIcon("exit", Widget(form.exit))}),
      Widget(form.data_place),
  });
  return Widget(form.center,
                Card(Row({Widget(form.scene, pictures), words}, kPageSpace + kWideSpace)));
}

QWidget* Reminder(shell::Startfrm& form) {
  return Widget(
      form.reminder,
      Column({
          Widget(form.reminder_text),
          Row({Widget(form.reminder_clock), Spring(),
               WithIcon("planner", Widget(form.view_planner)), Widget(form.close_reminder)}),
      }));
}

}  // namespace

QWidget* View(shell::Startfrm& form, PictureStore& pictures) {
  // A little above the exact middle.
  return Padded(
      Column({Spring(9), Centered(Center(form, pictures)), Centered(Reminder(form)), Spring(11)},
             kWideSpace));
}

}  // namespace tarnwell::desktop
