#include "desktop/widgets/binding.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/page_view.h"

namespace tarnwell::desktop {

QWidget* Widget(forms::PagePreview& preview) {
  auto* view = new PageView;
  auto* binding = new Binding(view, preview, [view, &preview] { view->Show(preview); });
  view->on_turn = binding->Forward([&preview](int page) { preview.TurnTo(page); });
  return view;
}

}  // namespace tarnwell::desktop
