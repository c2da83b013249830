#include "desktop/widgets/binding.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/grid_view.h"

namespace tarnwell::desktop {

QWidget* Widget(forms::Grid& grid, PictureStore& pictures) {
  auto* view = new GridView(grid, pictures);
  auto* binding = new Binding(view, grid, [view] { view->Show(); });
  view->on_select =
      binding->Forward([&grid](int row, int column) { grid.SelectCell(row, column); });
  view->on_heading = binding->Forward([&grid](int column) { grid.ClickHeading(column); });
  return view;
}

}  // namespace tarnwell::desktop
