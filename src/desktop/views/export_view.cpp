#include "desktop/views/folder_chooser_view.h"
#include "desktop/views/print_view.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/layout.h"

namespace tarnwell::desktop {

QWidget* ExportView(parts::ExportPanel& panel) {
  return Widget(panel.panel,
                Column({
                    Column({Wrapped(Widget(panel.folder_line)), Wrapped(Widget(panel.name_line)),
                            Wrapped(Widget(panel.extra_line)), Wrapped(Widget(panel.replace_line))},
                           kTightSpace),
                    Grow(FolderChooserView(panel.chooser, Widget(panel.name))),
                    Row({Spring(), Primary(Widget(panel.save)), Widget(panel.close)}),
                }));
}

}  // namespace tarnwell::desktop
