#include "desktop/widgets/binding.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/grid_view.h"
#include "desktop/widgets/look.h"
#include "desktop/widgets/text.h"

namespace tarnwell::desktop {

QWidget* Widget(forms::Grid& grid, PictureStore& pictures) {
  auto* view = new GridView(grid, pictures);
  auto* binding = new Binding(view, grid, [view] { view->Show(); });
  view->on_select =
      binding->Forward([&grid](int row, int column) { grid.SelectCell(row, column); });
  view->on_rows = binding->Forward([&grid](std::vector<int> rows, forms::GridPlace cursor) {
    grid.SelectRows(std::move(rows), cursor);
  });
  view->on_heading = binding->Forward([&grid](int column) { grid.ClickHeading(column); });
  view->on_type = binding->Forward([&grid](const QString& text) { grid.TypeInCell(ToCore(text)); });
  view->on_end_edit = binding->Forward([&grid] { grid.EndEdit(); });
  view->on_cancel_edit = binding->Forward([&grid] { grid.CancelEdit(); });
  view->on_step = binding->Forward([&grid](forms::GridStep step) { grid.Step(step); });
  view->on_undo = binding->Forward([&grid](bool back) { back ? grid.Undo() : grid.Redo(); });
  return view;
}

QWidget* HeadingsOnly(QWidget* grid) {
  if (auto* view = dynamic_cast<GridView*>(grid)) {
    view->ensurePolished();
    view->horizontalHeader()->ensurePolished();
    view->setFixedHeight(view->horizontalHeader()->sizeHint().height() + 2 * view->frameWidth() +
                         kHairSpace);
    view->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  }
  return grid;
}

}  // namespace tarnwell::desktop
