#include "backup/backup1.h"
#include "desktop/views/folder_chooser_view.h"
#include "desktop/views/views.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/layout.h"

namespace tarnwell::desktop {
namespace {

constexpr QSize kLeast{640, 440};

}  // namespace

QWidget* View(backup::Backup1& form, PictureStore&) {
  return AtLeast(
      kLeast, Padded(Column({
                  Widget(form.title),
                  Grow(FolderChooserView(form.chooser), 3),
                  Row({Widget(form.free_space), Spring(), Widget(form.new_folder)}),
                  Wrapped(Widget(form.state)),
                  Widget(form.progress),
                  Row({Widget(form.summary), Spring(), Widget(form.show_files)}),
                  Grow(Widget(form.files), 2),
                  Row({Spring(), Primary(Widget(form.make)), Widget(form.stop), Widget(form.exit)}),
              })));
}

}  // namespace tarnwell::desktop
