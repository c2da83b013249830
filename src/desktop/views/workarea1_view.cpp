#include "desktop/views/main_screen.h"
#include "desktop/views/views.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/layout.h"
#include "workarea/workarea1.h"

namespace tarnwell::desktop {

QWidget* View(workarea::WorkArea1& form, PictureStore&) {
  return MainScreenView(
      form.main_buttons,
      Column({Row({Widget(form.area_title), Spring(), Widget(form.date)}), Spring()}));
}

}  // namespace tarnwell::desktop
