// Controls that choose: option buttons in groups, check boxes, drop-down lists.

#pragma once

#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/item_list.h"

namespace tarnwell::forms {

class OptionGroup;

// One button of an OptionGroup.
class Option : public Control {
 public:
  Option(Container& parent, OptionGroup& group, int index, std::string_view name,
         std::string_view caption)
      : Control(parent, name), group_(group), index_(index), caption_(caption) {}

  const std::string& caption() const { return caption_; }
  bool chosen() const;
  void Click();

 private:
  friend class OptionGroup;
  OptionGroup& group_;
  int index_;
  std::string caption_;
};

// Option buttons of which at most one is chosen. A group may spread over several panels.
class OptionGroup {
 public:
  static constexpr int kNone = -1;

  // All options in one container, named name(0), name(1), …
  OptionGroup(Container& parent, std::string_view name,
              std::initializer_list<std::string_view> captions);
  // Without options; Add brings them, wherever they lie.
  OptionGroup() = default;

  Option& Add(Container& parent, std::string_view name, std::string_view caption);

  int size() const { return static_cast<int>(options_.size()); }
  Option& option(int index) { return *options_.at(static_cast<std::size_t>(index)); }

  int chosen() const { return chosen_; }
  // By the program: no handler runs. kNone or an index outside the group chooses nothing.
  void Choose(int index);
  // By a person. Clicking the chosen one runs the handler again.
  void Pick(int index) { option(index).Click(); }

  std::function<void(int index)> on_pick;

 private:
  friend class Option;
  std::vector<std::unique_ptr<Option>> options_;
  int chosen_ = kNone;
};

class CheckBox : public Control {
 public:
  CheckBox(Container& parent, std::string_view name, std::string_view caption)
      : Control(parent, name), caption_(caption) {}

  const std::string& caption() const { return caption_; }
  void SetCaption(std::string_view caption) {
    caption_ = caption;
    Changed();
  }
  bool checked() const { return checked_; }
  void SetChecked(bool checked);
  void Check(bool checked);

  std::function<void()> on_change;  // after Check only

 private:
  std::string caption_;
  bool checked_ = false;
};

// A drop-down list.
class ComboBox : public ItemList {
 public:
  using ItemList::ItemList;
};

}  // namespace tarnwell::forms
