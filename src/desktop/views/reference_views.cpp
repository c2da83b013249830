#include "desktop/views/main_screen.h"
#include "desktop/views/views.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/layout.h"
#include "reference/infoadv.h"
#include "reference/toolsandinfo1.h"

namespace tarnwell::desktop {

QWidget* View(reference::InfoAdv& form, PictureStore&) {
  return MainScreenView(form.main_buttons, Column({Widget(form.title), Spring()}));
}

QWidget* View(reference::ToolsandInfo1& form, PictureStore&) {
  QWidget* side = Widget(form.side, Column({WithIcon("people", Widget(form.contacts)),
                                            WithIcon("table", Widget(form.contact_display)),
                                            WithIcon("planner", Widget(form.planner)),
                                            WithIcon("month", Widget(form.calendar)), Spring()}));
  return MainScreenView(form.main_buttons,
                        Column({Widget(form.title), Grow(Row({side, Spring()}))}, kWideSpace));
}

}  // namespace tarnwell::desktop
