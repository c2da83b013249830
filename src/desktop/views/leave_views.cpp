#include "desktop/views/print_view.h"
#include "desktop/views/views.h"
#include "desktop/views/year_sheet_view.h"
#include "leave/leave_sheet.h"

namespace tarnwell::desktop {

QWidget* View(leave::LeaveSheet& form, PictureStore& pictures) {
  return YearSheetPage(form, pictures, YearSheetView(form, pictures), PrintView(form.print));
}

}  // namespace tarnwell::desktop
