#include "forms/text_field.h"

#include <algorithm>

namespace tarnwell::forms {

std::string TypedText(std::string_view text, std::size_t max_length) {
  std::string typed(text.substr(0, max_length));
  std::ranges::replace_if(
      typed, [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
  return typed;
}

void TextField::SetText(std::string_view text) {
  text_ = text;
  Changed();
}

void TextField::Select(std::size_t begin, std::size_t end) {
  selection_.Ask(begin, end, text_.size());
  Changed();
}

void TextField::SetMarked(bool marked) {
  if (marked_ == marked) return;
  marked_ = marked;
  Changed();
}

void TextField::SetLocked(bool locked) {
  if (locked_ == locked) return;
  locked_ = locked;
  Changed();
}

void TextField::SetColor(std::optional<Color> color) {
  if (color_ == color) return;
  color_ = color;
  Changed();
}

void TextField::Type(std::string_view text) {
  if (!Reachable() || locked_) return;
  const std::string typed = TypedText(text, max_length_);
  const bool different = typed != text_;
  SetText(typed);
  if (different) Run(on_change);
  Run(on_type);
}

void TextField::PressEnter() {
  if (Reachable()) Run(on_enter);
}

void TextField::PressArrow(int step) {
  if (Reachable() && on_arrow) on_arrow(step);
}

void TextField::Click() {
  if (!Reachable()) return;
  Focus();
  Run(on_click);
}

}  // namespace tarnwell::forms
