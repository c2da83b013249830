#include "desktop/views/grid_background_view.h"

#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/layout.h"

namespace tarnwell::desktop {
namespace {

constexpr std::size_t kThumbnailsInARow = 4;

QWidget* Thumbnails(parts::GridBackgroundPanel& selector, PictureStore& pictures) {
  QWidget* rows = Column({});
  for (std::size_t first = 0; first < selector.thumbnails.size(); first += kThumbnailsInARow) {
    QWidget* row = Row({});
    for (std::size_t i = first; i < first + kThumbnailsInARow; ++i) {
      Append(row, Widget(selector.thumbnails[i], pictures));
    }
    Append(rows, row);
  }
  return rows;
}

}  // namespace

QWidget* GridBackgroundView(parts::GridBackgroundPanel& selector, PictureStore& pictures) {
  return Widget(selector.panel,
                Column({
                    Grow(Row({Column({Thumbnails(selector, pictures), Spring()}),
                              Grow(Widget(selector.preview, pictures))},
                             kWideSpace)),
                    Widget(selector.note),
                    Row({Primary(Widget(selector.use_marked)), Widget(selector.use_default),
                         Widget(selector.use_color), Spring(), Widget(selector.exit)}),
                }));
}

}  // namespace tarnwell::desktop
