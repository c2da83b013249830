#include "desktop/widgets/binding.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/rich_text_view.h"

namespace tarnwell::desktop {

QWidget* Widget(forms::RichTextBox& box) {
  auto* view = new RichTextView(box);
  new Binding(view, box, [view] { view->Show(); });
  return view;
}

}  // namespace tarnwell::desktop
