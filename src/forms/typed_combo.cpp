#include "forms/typed_combo.h"

#include <algorithm>

#include "forms/text_field.h"
#include "text/letters.h"

namespace tarnwell::forms {

TypedCombo::TypedCombo(Container& parent, std::string_view name, TypedComboStyle style)
    : Control(parent, name),
      max_length_(style.max_length),
      characters_(style.characters),
      completes_(style.completes) {
  SetSpokenName(style.spoken_name);
}

void TypedCombo::SetItems(std::vector<std::string> items) {
  items_ = std::move(items);
  Changed();
}

void TypedCombo::SetText(std::string_view text) {
  text_ = taken_ = typed_ = text;
  Changed();
}

int TypedCombo::selected() const {
  const auto found = std::ranges::find(items_, text_);
  return found == items_.end() ? kNone : static_cast<int>(found - items_.begin());
}

void TypedCombo::Select(std::size_t begin, std::size_t end) {
  selection_.Ask(begin, end, text_.size());
  Changed();
}

// Only of what got longer at its end: who erases or mends something wants it so.
std::string TypedCombo::Completed(const std::string& typed) const {
  if (!completes_ || typed.size() <= typed_.size() || !typed.starts_with(typed_)) return typed;
  const auto begins = [&](const std::string& item) {
    return text::EqualIgnoringCase(text::Left(item, typed.size()), typed);
  };
  const auto item = std::ranges::find_if(items_, begins);
  return item == items_.end() ? typed : typed + item->substr(typed.size());
}

void TypedCombo::Type(std::string_view text) {
  if (!Reachable()) return;
  std::string typed(text);
  if (!characters_.empty()) {
    std::erase_if(typed, [&](char c) { return characters_.find(c) == std::string::npos; });
  }
  typed = TypedText(typed, max_length_);
  const std::string before = text_;
  text_ = Completed(typed);
  typed_ = typed;
  Changed();
  if (text_.size() > typed.size()) Select(typed.size(), text_.size());
  if (text_ != before) Run(on_change);
}

void TypedCombo::Take() {
  taken_ = typed_ = text_;
  SelectAll();
  Run(on_take);
}

void TypedCombo::PressEnter() {
  if (!Reachable()) return;
  // A completed name is the item's, in its own capitals.
  const auto same = [&](const std::string& item) { return text::EqualIgnoringCase(item, text_); };
  if (completes_ && selected() == kNone) {
    if (const auto item = std::ranges::find_if(items_, same); item != items_.end()) text_ = *item;
  }
  Take();
}

bool TypedCombo::PressEscape() {
  if (!Reachable() || text_ == taken_) return false;
  SetText(std::string(taken_));
  SelectAll();
  return true;
}

bool TypedCombo::Open() { return Reachable() && (!on_open || on_open()); }

void TypedCombo::Pick(int index) {
  if (!Reachable() || index < 0 || index >= static_cast<int>(items_.size())) return;
  text_ = items_[static_cast<std::size_t>(index)];
  Take();
}

void TypedCombo::PressArrow(int step) {
  if (!Reachable() || items_.empty()) return;
  const int last = static_cast<int>(items_.size()) - 1;
  const int next = selected() == kNone ? 0 : std::clamp(selected() + step, 0, last);
  if (next != selected()) Pick(next);
}

}  // namespace tarnwell::forms
