#include "forms/control.h"

#include "forms/form.h"
#include "forms/panel.h"

namespace tarnwell::forms {

Control::Control(Container& parent, std::string_view name) : parent_(parent), name_(name) {
  parent.children_.push_back(this);
}

void Control::SetVisible(bool visible) {
  if (shown_ == visible) return;
  shown_ = visible;
  ShownOrHidden(visible);
  Changed();
}

void Control::Cover(Control& control, bool covered) {
  control.covers_ += covered ? 1 : -1;
  control.Changed();
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

bool Control::Reachable() const {
  return visible() && enabled_ && parent_.Reachable() && form().LeavesFree(*this);
}

bool Control::LiesIn(const Control& outer) const {
  const auto* panel = dynamic_cast<const Panel*>(&parent_);
  return panel && (panel == &outer || panel->LiesIn(outer));
}

void Control::Focus() {
  if (!Reachable() || focused()) return;
  if (form().MoveFocus(*this)) Run(on_focus);
}

bool Control::focused() const { return form().focus() == this; }

}  // namespace tarnwell::forms
