// A screen: controls, handlers and working values, without a widget.

#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/color.h"
#include "forms/context.h"
#include "forms/control.h"
#include "forms/draft.h"
#include "forms/menu.h"

namespace tarnwell::forms {

// The window's close box, or a command of the form itself.
enum class UnloadCause { kCloseBox, kCommand };

class Form : public Container {
 public:
  Form(Context& context, std::string_view name, std::string_view caption);

  // The life of a form, in this order; Activate comes each time the form gets on top.
  virtual void Load() {}
  virtual void Activate() {}
  // False keeps the form.
  virtual bool QueryUnload(UnloadCause) { return true; }
  virtual void Unload() {}
  // The window has a new size, or was maximised or restored.
  virtual void Resized() {}

  // What a person has typed and not saved, as far as the form can give it back after a crash. Asked
  // while it is unsaved(), at any moment between two gestures; nothing may change by it.
  virtual std::optional<Draft> TakeDraft() { return std::nullopt; }
  // Shows that again, as typed and not saved. The form was just shown and the files are those that
  // the draft was typed upon. False where it can't be; what is shown then is as it was loaded.
  virtual bool PutDraft(DraftTexts /*texts*/) { return false; }

  const std::string& name() const { return name_; }
  const std::string& caption() const { return caption_; }
  void SetCaption(std::string_view caption);
  const std::string& status() const { return status_; }  // panel 1 of the status bar
  void SetStatus(std::string_view status);
  // Holds something that isn't on the disk; the window's title says so.
  bool unsaved() const { return unsaved_; }
  void SetUnsaved(bool unsaved);
  const std::optional<Color>& background() const { return background_; }
  void SetBackground(std::optional<Color> color);

  // The menu bar. The menus hang below one item that is never shown itself.
  MenuItem& menus() { return menus_; }
  // What a right-click pops up; nullptr for nothing.
  MenuItem* popup_menu() const { return popup_menu_; }
  // Help page of what is on show: of a panel that has one, else of the screen; 0 for none.
  int help_context() const;

  Control* focus() const { return focus_; }
  // Every control, in the order of their making, those in panels too.
  std::vector<Control*> AllControls() const;
  // By fixed name; nullptr if there is none.
  Control* Find(std::string_view name) const;
  // Both press the command for that key that a person can reach. False where there is none.
  bool PressEscape();
  bool PressEnter();
  // Chooses the menu entry that has the key, such as "Ctrl+S". False where a person can choose
  // none.
  bool PressKey(std::string_view key);

  // A long run is under way: the menus are dead, the form can't be closed, and a person can use
  // only the controls that the run names.
  bool busy() const { return !runs_.empty(); }

  Form& form() override { return *this; }
  bool Reachable() const override { return on_top_; }

  // Caption, status, the unsaved mark, background or focus changed.
  [[nodiscard]] Subscription OnChanged(Notifier::Listener listener) {
    return changed_.Subscribe(std::move(listener));
  }

  // For the form and the panels that it owns.

  // Makes the form busy for its own lifetime. The controls named, and what lies in them, can be
  // used meanwhile. A run inside a run has its own.
  class BusyScope {
   public:
    explicit BusyScope(Form& form, std::vector<const Control*> free = {}) : form_(form) {
      form_.runs_.push_back(std::move(free));
      form_.menus_.SetEnabled(false);
    }
    ~BusyScope() {
      form_.runs_.pop_back();
      form_.menus_.SetEnabled(!form_.busy());
    }
    BusyScope(const BusyScope&) = delete;
    BusyScope& operator=(const BusyScope&) = delete;

   private:
    Form& form_;
  };

  // Shows the box and keeps the answer's code in the program's variables.
  forms::Answer Message(const MessageBox& box);
  bool Confirmed(const MessageBox& box) { return Message(box) == forms::Answer::kYes; }

 protected:
  void SetPopupMenu(MenuItem& menu) { popup_menu_ = &menu; }
  void SetHelpContext(int context) { help_context_ = context; }

  Context& context_;

 private:
  friend class Control;
  friend class Navigator;
  bool LeavesFree(const Control& control) const;
  // False when the control before has sent the focus elsewhere.
  bool MoveFocus(Control& control);

  std::string name_;
  std::string caption_;
  std::string status_;
  bool unsaved_ = false;
  std::optional<Color> background_;
  MenuItem menus_{"", ""};
  MenuItem* popup_menu_ = nullptr;
  Control* focus_ = nullptr;
  int help_context_ = 0;
  bool on_top_ = false;
  std::vector<std::vector<const Control*>> runs_;  // what each leaves free, the innermost last
  bool leaving_ = false;                           // a control's `on_leave` runs
  Notifier changed_;
};

}  // namespace tarnwell::forms
