#pragma once

#include <string>
#include <string_view>

#include "forms/clickable.h"

namespace tarnwell::forms {

struct CommandStyle {
  std::string_view tool_tip = {};
  bool cancel = false;      // Esc on the form presses it
  bool is_default = false;  // Enter presses it where nothing else has a use for the key
};

// A button. "&" in its caption marks the mnemonic, "&&" is a plain ampersand.
class Command : public Clickable {
 public:
  Command(Container& parent, std::string_view name, std::string_view caption,
          CommandStyle style = {})
      : Clickable(parent, name),
        caption_(caption),
        cancel_(style.cancel),
        is_default_(style.is_default) {
    SetToolTip(style.tool_tip);
  }

  const std::string& caption() const { return caption_; }
  void SetCaption(std::string_view caption) {
    caption_ = caption;
    Changed();
  }
  bool cancel() const { return cancel_; }
  void SetCancel(bool cancel) { cancel_ = cancel; }
  bool is_default() const { return is_default_; }

  // One of a row of buttons that stay down: painted in the selected colour and drawn flat.
  bool selected() const { return selected_; }
  void SetSelected(bool selected) {
    selected_ = selected;
    Changed();
  }

  // The pointer over it tells that a click would do nothing at present.
  bool no_drop() const { return no_drop_; }
  void SetNoDrop(bool no_drop) {
    if (no_drop_ == no_drop) return;
    no_drop_ = no_drop;
    Changed();
  }

 private:
  std::string caption_;
  bool cancel_;
  bool is_default_;
  bool selected_ = false;
  bool no_drop_ = false;
};

}  // namespace tarnwell::forms
