#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "forms/control.h"
#include "forms/text_selection.h"

namespace tarnwell::forms {

struct TextBoxStyle {
  std::size_t max_length = 255;  // characters that can be typed; a line end counts two
  std::string_view spoken_name = {};
};

// A plain text of several lines in code page 1252, with CR LF between them: notes and comments.
// What the program sets may be longer than what can be typed, and keeps its own line ends until a
// person changes something.
class TextBox : public Control {
 public:
  TextBox(Container& parent, std::string_view name, TextBoxStyle style = {})
      : Control(parent, name), max_length_(style.max_length) {
    SetSpokenName(style.spoken_name);
  }

  const std::string& text() const { return text_; }
  void SetText(std::string_view text);
  std::size_t max_length() const { return max_length_; }

  // Can be read, marked and copied, but not changed.
  bool locked() const { return locked_; }
  void SetLocked(bool locked);

  // It is the entry in hand.
  bool marked() const { return marked_; }
  void SetMarked(bool marked);

  // Marks characters of text() and puts the caret behind them, without taking the focus.
  void Select(std::size_t begin, std::size_t end);
  void SelectAll() { Select(0, text_.size()); }
  void PlaceCaret(std::size_t at) { Select(at, at); }
  const TextSelection& selection() const { return selection_; }

  // A person made this the content. Any line end becomes CR LF, any other control character a
  // blank. Of what was put in, the end that doesn't fit is left out, never of what stood there
  // already.
  void Type(std::string_view text);
  // False where Enter makes a line, which then is typed.
  bool PressEnter();
  void Click();

  std::function<void()> on_change;  // after Type only
  // True when Enter meant something else and makes no line.
  std::function<bool()> on_enter;
  std::function<void()> on_click;

 private:
  std::string text_;
  std::size_t max_length_;
  TextSelection selection_;
  bool locked_ = false;
  bool marked_ = false;
};

}  // namespace tarnwell::forms
