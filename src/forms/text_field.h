#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "forms/color.h"
#include "forms/control.h"
#include "forms/text_selection.h"

namespace tarnwell::forms {

// What becomes of a person's text: cut to `max_length`, blank for control characters.
std::string TypedText(std::string_view text, std::size_t max_length);

struct TextFieldStyle {
  std::size_t max_length = 255;  // characters that can be typed
  std::string_view spoken_name = {};
  bool select_on_entry = false;  // entering it selects its text, so that typing replaces it
};

// One line of text in code page 1252. What the program sets may be longer than what can be typed.
class TextField : public Control {
 public:
  TextField(Container& parent, std::string_view name, TextFieldStyle style = {})
      : Control(parent, name),
        max_length_(style.max_length),
        select_on_entry_(style.select_on_entry) {
    SetSpokenName(style.spoken_name);
  }

  const std::string& text() const { return text_; }
  void SetText(std::string_view text);
  std::size_t max_length() const { return max_length_; }
  bool select_on_entry() const { return select_on_entry_; }

  // Marks characters and puts the caret behind them, without taking the focus.
  void Select(std::size_t begin, std::size_t end);
  void SelectAll() { Select(0, text_.size()); }
  void PlaceCaret(std::size_t at) { Select(at, at); }
  const TextSelection& selection() const { return selection_; }

  // Can be read, marked, copied and clicked, but not changed; Tab passes it by.
  bool locked() const { return locked_; }
  void SetLocked(bool locked);

  // The row in hand is marked.
  bool marked() const { return marked_; }
  void SetMarked(bool marked);

  // Of the text; empty for the look's own.
  const std::optional<Color>& color() const { return color_; }
  void SetColor(std::optional<Color> color);

  // A person made this the content, as TypedText has it.
  void Type(std::string_view text);
  void PressEnter();
  // Up is -1, Down is 1.
  void PressArrow(int step);
  void Click();

  std::function<void()> on_change;  // after Type only
  std::function<void()> on_type;    // after each Type, one that wrote the same text again too
  std::function<void(int step)> on_arrow;
  std::function<void()> on_enter;
  std::function<void()> on_click;

 private:
  std::string text_;
  std::size_t max_length_;
  bool select_on_entry_;
  TextSelection selection_;
  bool locked_ = false;
  bool marked_ = false;
  std::optional<Color> color_;
};

}  // namespace tarnwell::forms
