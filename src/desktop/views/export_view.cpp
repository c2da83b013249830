#include "desktop/views/print_view.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/layout.h"

namespace tarnwell::desktop {

QWidget* ExportView(parts::ExportPanel& panel) {
  QWidget* places = Row(
      {
          Grow(Column({Widget(panel.drives_heading), Widget(panel.drives),
                       Widget(panel.folders_heading), Grow(Widget(panel.folders))})),
          Grow(
              Column({Widget(panel.files_heading), Widget(panel.name), Grow(Widget(panel.files))})),
      },
      kWideSpace);
  return Widget(panel.panel,
                Column({
                    Column({Wrapped(Widget(panel.lines[0])), Wrapped(Widget(panel.lines[1])),
                            Wrapped(Widget(panel.lines[3])), Wrapped(Widget(panel.lines[2]))},
                           kTightSpace),
                    Row({Widget(panel.path_heading), Grow(Wrapped(Widget(panel.path)))}),
                    Grow(places),
                    Row({Spring(), Primary(Widget(panel.save)), Widget(panel.close)}),
                }));
}

}  // namespace tarnwell::desktop
