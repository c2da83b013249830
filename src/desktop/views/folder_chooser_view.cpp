#include "desktop/views/folder_chooser_view.h"

#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/layout.h"

namespace tarnwell::desktop {

QWidget* FolderChooserView(parts::FolderChooser& chooser, QWidget* name) {
  QWidget* files = Column({Widget(chooser.files_heading)});
  if (name) Append(files, name);
  Append(files, Grow(Widget(chooser.files)));
  QWidget* folders = Column({Widget(chooser.drives_heading), Widget(chooser.drives),
                             Widget(chooser.folders_heading), Grow(Widget(chooser.folders))});
  return Column({
      Row({Widget(chooser.path_heading), Grow(Wrapped(Widget(chooser.path)))}),
      Grow(Row({Grow(folders), Grow(files)}, kWideSpace)),
  });
}

}  // namespace tarnwell::desktop
