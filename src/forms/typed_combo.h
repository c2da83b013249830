#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/control.h"
#include "forms/text_selection.h"

namespace tarnwell::forms {

struct TypedComboStyle {
  std::size_t max_length = 255;      // characters that can be typed
  std::string_view characters = {};  // only these can be typed; empty for all
  bool completes = false;  // the first item that begins with what is typed stands in its place
  std::string_view spoken_name = {};
};

// A line to type in with a list to choose from: a year, a name. The list offers, it doesn't limit.
// What stands in the line holds as taken after Enter, or when it was picked from the list.
class TypedCombo : public Control {
 public:
  static constexpr int kNone = -1;

  TypedCombo(Container& parent, std::string_view name, TypedComboStyle style = {});

  const std::vector<std::string>& items() const { return items_; }
  void SetItems(std::vector<std::string> items);  // and the text stays
  const std::string& text() const { return text_; }
  // By the program. It counts as taken, and may be longer than what can be typed.
  void SetText(std::string_view text);
  // What stood in the line when it was last taken.
  const std::string& taken() const { return taken_; }
  // The item that stands in the line, 0-based; kNone where it is none.
  int selected() const;
  std::size_t max_length() const { return max_length_; }

  // Marks characters and puts the caret behind them, without taking the focus.
  void Select(std::size_t begin, std::size_t end);
  void SelectAll() { Select(0, text_.size()); }
  void PlaceCaret(std::size_t at) { Select(at, at); }
  const TextSelection& selection() const { return selection_; }

  // A person made this the line: cut to its length, without the characters that it doesn't take,
  // completed where the style says so, with the added part marked.
  void Type(std::string_view text);
  void PressEnter();
  // Back to what was taken. False where that stands there already: then Esc isn't for the control.
  bool PressEscape();
  // A person wants to see the list. False keeps it closed.
  bool Open();
  void Pick(int index);
  // Picks the item so many places away, or the first where none stands in the line.
  void PressArrow(int step);

  std::function<void()> on_change;  // after Type only
  std::function<void()> on_take;    // after Enter and after each Pick
  // Before the list opens: to fill it, or to ask first what picking would lose. False keeps it
  // closed.
  std::function<bool()> on_open;

 private:
  std::string Completed(const std::string& typed) const;
  void Take();

  std::size_t max_length_;
  std::string characters_;
  bool completes_;
  std::vector<std::string> items_;
  std::string text_;
  std::string taken_;
  std::string typed_;  // what of the text a person typed
  TextSelection selection_;
};

}  // namespace tarnwell::forms
