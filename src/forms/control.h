// What every control is: a fixed name, a place in a container, and a state that somebody watches.

#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/notifier.h"

namespace tarnwell::forms {

class Control;
class Form;

// A form, or a panel on it.
class Container {
 public:
  Container() = default;
  Container(const Container&) = delete;
  Container& operator=(const Container&) = delete;
  virtual ~Container() = default;

  virtual Form& form() = 0;
  // A person can use what lies in it: nothing around it is hidden or disabled.
  virtual bool Reachable() const = 0;

  const std::vector<Control*>& children() const { return children_; }

 private:
  friend class Control;
  std::vector<Control*> children_;
};

// Controls are members of the form that owns them and live as long as it does. The members that
// stand for a person's gestures do nothing while the control isn't Reachable().
class Control {
 public:
  Control(Container& parent, std::string_view name);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  // The fixed name, with the index for a member of an array: "Text1(0)".
  const std::string& name() const { return name_; }
  Form& form() const { return parent_.form(); }
  Container& parent() const { return parent_; }

  // Neither hidden nor covered by a panel that has its place.
  bool visible() const { return shown_ && covers_ == 0; }
  // A covered control shows up when its cover goes.
  void SetVisible(bool visible);
  bool enabled() const { return enabled_; }
  void SetEnabled(bool enabled);
  // A person can use it: nothing hides or disables it, its form is on top, and no long run has the
  // form for itself.
  bool Reachable() const;
  // It lies in that control, a panel, or in a panel that does.
  bool LiesIn(const Control& outer) const;

  // Shown when the pointer rests on it; blanks at its ends are part of the fixed text.
  const std::string& tool_tip() const { return tool_tip_; }
  void SetToolTip(std::string_view text);
  // What a screen reader says where the control has no caption of its own.
  const std::string& spoken_name() const { return spoken_name_; }
  void SetSpokenName(std::string_view text) { spoken_name_ = text; }

  // Takes the focus, by a person or by the form. Unless it has the focus already, the control
  // before it runs its `on_leave`, then this one its `on_focus`.
  void Focus();
  bool focused() const;
  std::function<void()> on_focus;
  // The focus has gone to another control of the form. A handler may put it back, or elsewhere;
  // then that other control counts as never entered. A command that is chosen by Enter, by Esc or
  // in a menu leaves the focus where it is, and so does another form that comes on top.
  std::function<void()> on_leave;

  // After any change of state that a view shows.
  [[nodiscard]] Subscription OnChanged(Notifier::Listener listener) {
    return changed_.Subscribe(std::move(listener));
  }

 protected:
  void Changed() { changed_.Notify(); }
  // SetVisible has shown or hidden it, covered or not.
  virtual void ShownOrHidden(bool /*shown*/) {}
  // One cover more or less.
  static void Cover(Control& control, bool covered);
  static void Run(const std::function<void()>& handler) {
    if (handler) handler();
  }

 private:
  friend class Form;
  Container& parent_;
  std::string name_;
  std::string tool_tip_;
  std::string spoken_name_;
  bool shown_ = true;
  int covers_ = 0;
  bool enabled_ = true;
  Notifier changed_;
};

}  // namespace tarnwell::forms
