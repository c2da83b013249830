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

}  // namespace tarnwell::forms
