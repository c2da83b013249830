#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/control.h"

namespace tarnwell::forms {

// What a notification of a list is about.
enum class ListChange { kNone, kItems, kInserted, kRemoved, kSelected };

// What list boxes and combo boxes share: items of which at most one is selected. Places are
// 0-based, kNone for nothing.
class ItemList : public Control {
 public:
  static constexpr int kNone = -1;

  ItemList(Container& parent, std::string_view name, std::string_view spoken_name)
      : Control(parent, name) {
    SetSpokenName(spoken_name);
  }

  const std::vector<std::string>& items() const { return items_; }
  void SetItems(std::vector<std::string> items);  // and nothing selected
  // In front of that item, or as a new last one. What is selected stays selected.
  void InsertItem(int index, std::string_view text);
  void RemoveItem(int index);

  int selected() const { return selected_; }
  std::string text() const;
  void Select(int index);

  // A person selects an item.
  void Pick(int index);
  std::function<void()> on_pick;

  // For a listener to OnChanged, while it is told; an item was inserted or removed at the place.
  ListChange change() const { return change_; }
  int changed_place() const { return changed_place_; }

 protected:
  bool Has(int index) const { return index >= 0 && index < static_cast<int>(items_.size()); }

 private:
  void Tell(ListChange change, int place = kNone);

  std::vector<std::string> items_;
  int selected_ = kNone;
  ListChange change_ = ListChange::kNone;
  int changed_place_ = kNone;
};

}  // namespace tarnwell::forms
