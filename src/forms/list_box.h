#pragma once

#include <functional>

#include "forms/item_list.h"

namespace tarnwell::forms {

// A list that stands open.
class ListBox : public ItemList {
 public:
  using ItemList::ItemList;

  // A person opens an item: a double click, or Enter on the row.
  void Open(int index) {
    Pick(index);
    if (Reachable() && Has(index) && selected() == index) Run(on_open);
  }
  std::function<void()> on_open;
};

}  // namespace tarnwell::forms
