#include "forms/item_list.h"

#include <gmock/gmock.h>

#include "support/form_rig.h"

namespace tarnwell::forms {
namespace {

using ::testing::ElementsAre;

TEST(ItemList, OneItemComesOrGoesAndTheSelectedOneStays) {
  testing::FormRig rig;
  ItemList list(rig.form, "List1", "Names");
  list.SetItems({"b", "d"});
  list.Select(1);
  std::vector<std::pair<ListChange, int>> told;
  const auto subscription =
      list.OnChanged([&] { told.emplace_back(list.change(), list.changed_place()); });
  list.InsertItem(0, "a");
  list.InsertItem(2, "c");
  list.InsertItem(99, "e");
  EXPECT_THAT(list.items(), ElementsAre("a", "b", "c", "d", "e"));
  EXPECT_EQ(list.text(), "d");
  list.RemoveItem(0);
  list.RemoveItem(99);
  EXPECT_EQ(list.text(), "d");
  list.RemoveItem(2);
  EXPECT_EQ(list.selected(), ItemList::kNone);
  EXPECT_THAT(list.items(), ElementsAre("b", "c", "e"));
  using enum ListChange;
  EXPECT_THAT(told,
              ElementsAre(std::pair(kInserted, 0), std::pair(kInserted, 2), std::pair(kInserted, 4),
                          std::pair(kRemoved, 0), std::pair(kRemoved, 2)));
}

}  // namespace
}  // namespace tarnwell::forms
