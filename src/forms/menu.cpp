#include "forms/menu.h"

#include <algorithm>

namespace tarnwell::forms {

MenuItem& MenuItem::AddEntry(std::string_view name, std::string_view caption, Handler on_click) {
  MenuItem& entry = AddSubmenu(name, caption);
  entry.on_click_ = std::move(on_click);
  return entry;
}

MenuItem& MenuItem::AddSubmenu(std::string_view name, std::string_view caption) {
  items_.push_back(std::make_unique<MenuItem>(name, caption));
  items_.back()->parent_ = this;
  return *items_.back();
}

void MenuItem::AddSeparator() { AddSubmenu({}, {}); }

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
  if (Reachable() && on_click_) on_click_();
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

}  // namespace tarnwell::forms
