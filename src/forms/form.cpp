#include "forms/form.h"

#include <algorithm>

#include "forms/command.h"
#include "forms/message.h"
#include "forms/panel.h"

namespace tarnwell::forms {
namespace {

void Collect(const Container& container, std::vector<Control*>& controls) {
  for (Control* control : container.children()) {
    controls.push_back(control);
    if (auto* inner = dynamic_cast<Container*>(control)) Collect(*inner, controls);
  }
}

bool PressFirst(const std::vector<Control*>& controls, bool (Command::*has_key)() const) {
  for (Control* control : controls) {
    auto* command = dynamic_cast<Command*>(control);
    if (!command || !(command->*has_key)() || !command->Reachable()) continue;
    command->Click();
    return true;
  }
  return false;
}

}  // namespace

Form::Form(Context& context, std::string_view name, std::string_view caption)
    : context_(context), name_(name), caption_(caption) {}

void Form::SetCaption(std::string_view caption) {
  caption_ = caption;
  changed_.Notify();
}

void Form::SetStatus(std::string_view status) {
  status_ = status;
  changed_.Notify();
}

void Form::SetBackground(std::optional<Color> color) {
  background_ = color;
  changed_.Notify();
}

std::vector<Control*> Form::AllControls() const {
  std::vector<Control*> controls;
  Collect(*this, controls);
  return controls;
}

Control* Form::Find(std::string_view name) const {
  const auto controls = AllControls();
  const auto found = std::ranges::find(controls, name, &Control::name);
  return found == controls.end() ? nullptr : *found;
}

int Form::help_context() const {
  for (Control* control : AllControls()) {
    const auto* panel = dynamic_cast<Panel*>(control);
    if (panel && panel->help_context() != 0 && panel->Reachable()) return panel->help_context();
  }
  return help_context_;
}

bool Form::PressEscape() { return PressFirst(AllControls(), &Command::cancel); }

bool Form::PressEnter() { return PressFirst(AllControls(), &Command::is_default); }

void Form::SetUnsaved(bool unsaved) {
  if (unsaved_ == unsaved) return;
  unsaved_ = unsaved;
  changed_.Notify();
}

bool Form::PressKey(std::string_view key) {
  MenuItem* const entry = Reachable() ? menus_.FindKey(key) : nullptr;
  if (entry == nullptr) return false;
  entry->Click();
  return true;
}

forms::Answer Form::Message(const MessageBox& box) { return ShowMessage(context_, box); }

// A panel around a free control has to be free too.
bool Form::LeavesFree(const Control& control) const {
  return !busy() || std::ranges::any_of(runs_.back(), [&](const Control* free) {
    return free == &control || control.LiesIn(*free) || free->LiesIn(control);
  });
}

bool Form::MoveFocus(Control& control) {
  Control* before = focus_;
  focus_ = &control;
  if (before) before->Changed();
  control.Changed();
  changed_.Notify();
  // What a handler sends the focus on from was never entered, so there is nothing to leave.
  if (before && before->on_leave && !leaving_) {
    leaving_ = true;
    before->on_leave();
    leaving_ = false;
  }
  return focus_ == &control;
}

}  // namespace tarnwell::forms
