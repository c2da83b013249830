#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/control.h"

namespace tarnwell::forms {

// A list that stands open. `selected` is 0-based, kNone for nothing.
class ListBox : public Control {
 public:
  static constexpr int kNone = -1;

  ListBox(Container& parent, std::string_view name, std::string_view spoken_name)
      : Control(parent, name) {
    SetSpokenName(spoken_name);
  }

  const std::vector<std::string>& items() const { return items_; }
  void SetItems(std::vector<std::string> items) {  // and nothing selected
    items_ = std::move(items);
    Select(kNone);
  }
  int selected() const { return selected_; }
  std::string text() const { return Has(selected_) ? items_[Place(selected_)] : std::string(); }
  void Select(int index) {
    selected_ = Has(index) ? index : kNone;
    Changed();
  }

  // A person selects a row.
  void Pick(int index) {
    if (!Reachable() || !Has(index)) return;
    Select(index);
    Run(on_pick);
  }
  // A person opens it: a double click, or Enter on the row.
  void Open(int index) {
    Pick(index);
    if (Reachable() && Has(index) && selected_ == index) Run(on_open);
  }
  std::function<void()> on_pick;
  std::function<void()> on_open;

 private:
  static std::size_t Place(int index) { return static_cast<std::size_t>(index); }
  bool Has(int index) const { return index >= 0 && Place(index) < items_.size(); }

  std::vector<std::string> items_;
  int selected_ = kNone;
};

}  // namespace tarnwell::forms
