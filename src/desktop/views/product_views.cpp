#include "desktop/views/views.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/layout.h"
#include "shell/about1.h"
#include "shell/splash1.h"

namespace tarnwell::desktop {
namespace {

constexpr QSize kLeastLicenses{480, 160};  // pixels

}  // namespace

QWidget* View(shell::Splash1& form, PictureStore& pictures) {
  return Card(Padded(Row(
      {
          Widget(form.logo, pictures),
          Column(
              {Spring(), Widget(form.product), Widget(form.version), Widget(form.maker), Spring()}),
      },
      kPageSpace)));
}

QWidget* View(shell::About1& form, PictureStore& pictures) {
  return Padded(Column({
      Row({Widget(form.logo, pictures),
           Grow(Column({Spring(), Widget(form.product), Widget(form.version), Widget(form.maker),
                        Spring()}))},
          kPageSpace),
      Row({Grow(Widget(form.data_place)), AtTop(Widget(form.open_folder))}),
      Grow(AtLeast(kLeastLicenses, Widget(form.licenses))),
      Row({Spring(), Primary(Widget(form.close))}),
  }));
}

}  // namespace tarnwell::desktop
