#include "forms/control.h"

#include "forms/form.h"

namespace tarnwell::forms {

Control::Control(Container& parent, std::string_view name) : parent_(parent), name_(name) {
  parent.children_.push_back(this);
}

void Control::SetVisible(bool visible) {
  if (visible_ == visible) return;
  visible_ = visible;
  Changed();
}

void Control::SetEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  Changed();
}

void Control::SetToolTip(std::string_view text) {
  tool_tip_ = text;
  Changed();
}

void Control::Focus() {
  if (!Reachable() || focused()) return;
  if (form().MoveFocus(*this)) Run(on_focus);
}

bool Control::focused() const { return form().focus() == this; }

}  // namespace tarnwell::forms
