#pragma once

#include <QLineEdit>
#include <QScopedValueRollback>
#include <functional>
#include <optional>
#include <string>

#include "forms/text_selection.h"

namespace tarnwell::desktop {

// The line in which a person types code page 1252, of a field or of a combo box.
class LineEdit : public QLineEdit {
 public:
  // Shows the text and leaves the cursor behind the same characters as before.
  void ShowText(const std::string& text, std::size_t most_typed);
  // Follows what the form asks for, once.
  void ShowSelection(const forms::TextSelection& asked);

  // While `take` runs, what is shown belongs to what a person types and is taken back with it.
  template <typename Take>
  void Typing(Take take) {
    const QScopedValueRollback typing(is_typing_, true);
    take();
  }
  bool is_typing() const { return is_typing_; }

  bool selects_on_entry = false;
  // Where there is one the arrows aren't the line's.
  std::function<void(int step)> on_arrow;
  std::function<void()> on_click;
  // Enter had a meaning here, so the default button doesn't get it.
  bool took_enter = false;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void MarkOnEntry();

  struct Marked {
    int begin;
    int end;
  };
  bool is_typing_ = false;
  std::optional<Marked> asked_;  // since the line was left the last time
  int followed_ = 0;
  bool entered_by_mouse_ = false;
};

}  // namespace tarnwell::desktop
