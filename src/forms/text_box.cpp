#include "forms/text_box.h"

#include <algorithm>

namespace tarnwell::forms {
namespace {

std::string WithLineEnds(std::string_view text) {
  std::string lines;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\r' || text[i] == '\n') {
      if (text.substr(i, 2) == "\r\n") ++i;
      lines += "\r\n";
    } else {
      lines += static_cast<unsigned char>(text[i]) < ' ' ? ' ' : text[i];
    }
  }
  return lines;
}

// `typed` without the end of what it has more than `before`, so that it has `most` characters.
std::string Fitting(const std::string& before, std::string typed, std::size_t most) {
  if (typed.size() <= most) return typed;
  const std::size_t shorter = std::min(before.size(), typed.size());
  const auto limit = static_cast<std::ptrdiff_t>(shorter);
  const std::size_t same_head = static_cast<std::size_t>(
      std::mismatch(before.begin(), before.begin() + limit, typed.begin()).first - before.begin());
  std::size_t same_tail = 0;
  while (same_tail < shorter - same_head &&
         before[before.size() - 1 - same_tail] == typed[typed.size() - 1 - same_tail]) {
    ++same_tail;
  }
  const std::size_t put_in = typed.size() - same_head - same_tail;
  const std::size_t kept = put_in - std::min(put_in, typed.size() - most);
  std::string inside = typed.substr(same_head, kept);
  const bool is_line_end_cut = inside.ends_with('\r') && typed[same_head + kept] == '\n';
  if (is_line_end_cut) inside.pop_back();
  return typed.substr(0, same_head) + inside + typed.substr(typed.size() - same_tail);
}

}  // namespace

void TextBox::SetText(std::string_view text) {
  text_ = text;
  Changed();
}

void TextBox::SetLocked(bool locked) {
  if (locked_ == locked) return;
  locked_ = locked;
  Changed();
}

void TextBox::SetMarked(bool marked) {
  if (marked_ == marked) return;
  marked_ = marked;
  Changed();
}

void TextBox::Select(std::size_t begin, std::size_t end) {
  selection_.Ask(begin, end, text_.size());
  Changed();
}

void TextBox::Type(std::string_view text) {
  if (!Reachable() || locked_) return;
  const std::string before = WithLineEnds(text_);
  const std::string typed =
      Fitting(before, WithLineEnds(text), std::max(max_length_, before.size()));
  if (typed == before) return;
  SetText(typed);
  Run(on_change);
}

bool TextBox::PressEnter() {
  if (!Reachable() || locked_) return false;
  return on_enter && on_enter();
}

void TextBox::Click() {
  if (!Reachable()) return;
  Focus();
  Run(on_click);
}

}  // namespace tarnwell::forms
