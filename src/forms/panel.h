#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/color.h"
#include "forms/control.h"

namespace tarnwell::forms {

// A part of a form that is shown, hidden and disabled as a whole. Its caption, where it has one, is
// its title. A panel without a caption that only groups is a Panel too.
class Panel : public Control, public Container {
 public:
  Panel(Container& parent, std::string_view name, std::string_view caption = {})
      : Control(parent, name), caption_(caption) {}

  Form& form() override { return Control::form(); }
  bool Reachable() const override { return Control::Reachable(); }

  const std::string& caption() const { return caption_; }
  void SetCaption(std::string_view caption) {
    caption_ = caption;
    Changed();
  }

  // Help page while it is on show, instead of the form's; 0 for the form's own.
  int help_context() const { return help_context_; }
  void SetHelpContext(int context) { help_context_ = context; }

  // While the panel is shown it has the place of these. Told before the panel is first shown.
  void Cover(std::vector<Control*> covered) { covered_ = std::move(covered); }
  const std::vector<Control*>& covered() const { return covered_; }

  // Empty for the look's own colour.
  const std::optional<Color>& background() const { return background_; }
  void SetBackground(std::optional<Color> color) {
    background_ = color;
    Changed();
  }

 private:
  void ShownOrHidden(bool shown) override {
    for (Control* control : covered_) Control::Cover(*control, shown);
  }

  std::string caption_;
  int help_context_ = 0;
  std::optional<Color> background_;
  std::vector<Control*> covered_;
};

}  // namespace tarnwell::forms
