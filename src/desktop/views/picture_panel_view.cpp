#include "desktop/views/picture_panel_view.h"

#include "desktop/views/folder_chooser_view.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/layout.h"

namespace tarnwell::desktop {
namespace {

constexpr QSize kPreview{320, 240};

}  // namespace

QWidget* PicturePanelView(parts::PicturePanel& panel, PictureStore& pictures) {
  QWidget* preview = Widget(panel.preview, pictures);
  preview->setFixedSize(kPreview);
  return Widget(
      panel.panel,
      Column({
          Grow(Row({Grow(Column({Grow(FolderChooserView(panel.chooser)), Widget(panel.kinds)})),
                    Column({Widget(panel.preview_heading), preview, Wrapped(Widget(panel.note)),
                            Spring()})},
                   kWideSpace)),
          Flow({Primary(Widget(panel.enter)), Widget(panel.leave), Widget(panel.remove)}),
      }));
}

}  // namespace tarnwell::desktop
