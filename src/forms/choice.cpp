#include "forms/choice.h"

namespace tarnwell::forms {

bool Option::chosen() const { return group_.chosen() == index_; }

void Option::Click() {
  if (!Reachable()) return;
  group_.Choose(index_);
  if (group_.on_pick) group_.on_pick(index_);
}

OptionGroup::OptionGroup(Container& parent, std::string_view name,
                         std::initializer_list<std::string_view> captions) {
  for (std::string_view caption : captions) {
    Add(parent, std::string(name) + "(" + std::to_string(size()) + ")", caption);
  }
}

Option& OptionGroup::Add(Container& parent, std::string_view name, std::string_view caption) {
  options_.push_back(std::make_unique<Option>(parent, *this, size(), name, caption));
  return *options_.back();
}

void OptionGroup::Choose(int index) {
  chosen_ = index >= 0 && index < size() ? index : kNone;
  for (auto& option : options_) option->Changed();
}

void CheckBox::SetChecked(bool checked) {
  if (checked_ == checked) return;
  checked_ = checked;
  Changed();
}

void CheckBox::Check(bool checked) {
  if (!Reachable() || checked_ == checked) return;
  SetChecked(checked);
  Run(on_change);
}

void ComboBox::SetItems(std::vector<std::string> items) {
  items_ = std::move(items);
  selected_ = kNone;
  Changed();
}

std::string ComboBox::text() const {
  return selected_ == kNone ? std::string() : items_[static_cast<std::size_t>(selected_)];
}

void ComboBox::Select(int index) {
  selected_ = index >= 0 && index < static_cast<int>(items_.size()) ? index : kNone;
  Changed();
}

void ComboBox::Pick(int index) {
  if (!Reachable() || index < 0 || index >= static_cast<int>(items_.size())) return;
  Select(index);
  Run(on_pick);
}

}  // namespace tarnwell::forms
