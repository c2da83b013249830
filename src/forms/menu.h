// Menus as data: the bar of a form, its submenus and entries.

#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/notifier.h"

namespace tarnwell::forms {

class Clickable;
class Control;

// What an entry does, and the controls without which it can't. An entry without a handler is dead.
struct MenuAction {
  std::function<void()> run;
  // It can be chosen while a person could use one of these; always, where there is none.
  std::vector<Control*> lives_with = {};
};

// A command's own.
MenuAction ActionOf(Clickable& command);

// An entry, a submenu or a separator. An entry ignores Click when it, or a menu around it, is
// hidden or disabled.
class MenuItem {
 public:
  using Handler = std::function<void()>;

  MenuItem(std::string_view name, std::string_view caption) : name_(name), caption_(caption) {}
  MenuItem(const MenuItem&) = delete;
  MenuItem& operator=(const MenuItem&) = delete;

  // Adds to this submenu and returns what was added. A name may be empty.
  MenuItem& AddEntry(std::string_view name, std::string_view caption, MenuAction action);
  MenuItem& AddEntry(std::string_view name, std::string_view caption, Handler on_click);
  // The command once more: enabled, hidden with it, and clicked as one.
  MenuItem& AddCommand(std::string_view name, std::string_view caption, Clickable& command);
  MenuItem& AddSubmenu(std::string_view name, std::string_view caption);
  void AddSeparator();

  const std::string& name() const { return name_; }
  const std::string& caption() const { return caption_; }
  bool separator() const { return caption_.empty(); }
  bool submenu() const { return !is_entry_; }
  const std::vector<std::unique_ptr<MenuItem>>& items() const { return items_; }

  // The key that chooses the entry, such as "Ctrl+Shift+Z" or "F7"; empty for none. The menu shows
  // it.
  const std::string& key() const { return key_; }
  MenuItem& SetKey(std::string_view key);

  // Of an entry that others work with, from now on.
  void SetAction(MenuAction action);
  // A submenu too can live with controls.
  void LiveWith(std::vector<Control*> controls);

  bool enabled() const;
  void SetEnabled(bool enabled);
  bool visible() const;
  void SetVisible(bool visible);
  bool checked() const { return checked_; }
  void SetChecked(bool checked);
  // Shows a mark that comes and goes with SetChecked.
  bool checkable() const { return checkable_; }
  void SetCheckable() { checkable_ = true; }

  bool Reachable() const { return visible() && enabled() && (!parent_ || parent_->Reachable()); }
  // A person can choose something below it: a menu of dead entries isn't worth popping up.
  bool AnyReachable() const;
  void Click();
  // The submenu is about to open: the form brings its entries up to date.
  void Open();
  Handler on_open;

  // The entry of that name below this one, or nullptr.
  MenuItem* Find(std::string_view name);
  // Likewise the one that the key chooses, if a person can choose it.
  MenuItem* FindKey(std::string_view key);

  [[nodiscard]] Subscription OnChanged(Notifier::Listener listener) {
    return changed_.Subscribe(std::move(listener));
  }

 private:
  std::string name_;
  std::string caption_;
  std::string key_;
  bool is_entry_ = false;
  MenuAction action_;
  Clickable* command_ = nullptr;             // that the entry is, where it is one
  std::vector<Subscription> subscriptions_;  // to what it lives with, and all around that
  MenuItem* parent_ = nullptr;
  std::vector<std::unique_ptr<MenuItem>> items_;
  bool enabled_ = true;
  bool visible_ = true;
  bool checked_ = false;
  bool checkable_ = false;
  Notifier changed_;
};

}  // namespace tarnwell::forms
