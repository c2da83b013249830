#include "forms/item_list.h"

#include <algorithm>
#include <utility>

namespace tarnwell::forms {

void ItemList::Tell(ListChange change, int place) {
  // A listener may change the list in its turn.
  const ListChange outer = std::exchange(change_, change);
  const int outer_place = std::exchange(changed_place_, place);
  Changed();
  change_ = outer;
  changed_place_ = outer_place;
}

void ItemList::SetItems(std::vector<std::string> items) {
  selected_ = kNone;
  if (items == items_) return Tell(ListChange::kSelected);
  items_ = std::move(items);
  Tell(ListChange::kItems);
}

void ItemList::InsertItem(int index, std::string_view text) {
  const int place = std::clamp(index, 0, static_cast<int>(items_.size()));
  items_.emplace(items_.begin() + place, text);
  if (selected_ >= place) ++selected_;
  Tell(ListChange::kInserted, place);
}

void ItemList::RemoveItem(int index) {
  if (!Has(index)) return;
  items_.erase(items_.begin() + index);
  if (selected_ == index) {
    selected_ = kNone;
  } else if (selected_ > index) {
    --selected_;
  }
  Tell(ListChange::kRemoved, index);
}

std::string ItemList::text() const {
  return Has(selected_) ? items_[static_cast<std::size_t>(selected_)] : std::string();
}

void ItemList::Select(int index) {
  selected_ = Has(index) ? index : kNone;
  Tell(ListChange::kSelected);
}

void ItemList::Pick(int index) {
  if (!Reachable() || !Has(index)) return;
  Select(index);
  Run(on_pick);
}

}  // namespace tarnwell::forms
