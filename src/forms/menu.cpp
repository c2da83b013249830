#include "forms/menu.h"

#include <algorithm>

#include "forms/clickable.h"
#include "forms/panel.h"

namespace tarnwell::forms {
namespace {

// Nothing on its own form hides or disables it.
bool CouldBeUsed(const Control* control) {
  for (; control; control = dynamic_cast<const Panel*>(&control->parent())) {
    if (!control->visible() || !control->enabled()) return false;
  }
  return true;
}

}  // namespace

MenuAction ActionOf(Clickable& command) {
  return {[&command] { command.Click(); }, {&command}};
}

MenuItem& MenuItem::AddEntry(std::string_view name, std::string_view caption, MenuAction action) {
  MenuItem& entry = AddSubmenu(name, caption);
  entry.is_entry_ = true;
  entry.SetAction(std::move(action));
  return entry;
}

MenuItem& MenuItem::AddEntry(std::string_view name, std::string_view caption, Handler on_click) {
  return AddEntry(name, caption, MenuAction{std::move(on_click)});
}

MenuItem& MenuItem::AddCommand(std::string_view name, std::string_view caption,
                               Clickable& command) {
  MenuItem& entry = AddEntry(name, caption, ActionOf(command));
  entry.command_ = &command;
  return entry;
}

MenuItem& MenuItem::AddSubmenu(std::string_view name, std::string_view caption) {
  items_.push_back(std::make_unique<MenuItem>(name, caption));
  items_.back()->parent_ = this;
  return *items_.back();
}

void MenuItem::AddSeparator() { AddSubmenu({}, {}); }

MenuItem& MenuItem::SetKey(std::string_view key) {
  key_ = key;
  return *this;
}

void MenuItem::SetAction(MenuAction action) {
  action_.run = std::move(action.run);
  LiveWith(std::move(action.lives_with));
}

void MenuItem::LiveWith(std::vector<Control*> controls) {
  action_.lives_with = std::move(controls);
  subscriptions_.clear();
  for (Control* control : action_.lives_with) {
    for (; control; control = dynamic_cast<Panel*>(&control->parent())) {
      subscriptions_.push_back(control->OnChanged([this] { changed_.Notify(); }));
    }
  }
  changed_.Notify();
}

bool MenuItem::enabled() const {
  const auto& controls = action_.lives_with;
  return enabled_ && (!is_entry_ || action_.run) &&
         (controls.empty() || std::ranges::any_of(controls, CouldBeUsed));
}

bool MenuItem::visible() const { return visible_ && (!command_ || command_->visible()); }

void MenuItem::SetEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  changed_.Notify();
}

void MenuItem::SetVisible(bool visible) {
  if (visible_ == visible) return;
  visible_ = visible;
  changed_.Notify();
}

void MenuItem::SetChecked(bool checked) {
  if (checked_ == checked) return;
  checked_ = checked;
  changed_.Notify();
}

bool MenuItem::AnyReachable() const {
  return std::ranges::any_of(items_, [](const auto& item) {
    return item->submenu() ? item->AnyReachable() : item->Reachable();
  });
}

void MenuItem::Click() {
  if (Reachable() && action_.run) action_.run();
}

void MenuItem::Open() {
  if (on_open) on_open();
}

MenuItem* MenuItem::Find(std::string_view name) {
  for (auto& item : items_) {
    if (item->name() == name) return item.get();
    if (MenuItem* found = item->Find(name)) return found;
  }
  return nullptr;
}

MenuItem* MenuItem::FindKey(std::string_view key) {
  if (key.empty()) return nullptr;
  for (auto& item : items_) {
    if (item->key_ == key && item->Reachable()) return item.get();
    if (MenuItem* found = item->FindKey(key)) return found;
  }
  return nullptr;
}

}  // namespace tarnwell::forms
