#include "forms/grid.h"

#include <gmock/gmock.h>

#include "support/form_rig.h"

namespace tarnwell::forms {
namespace {

using ::testing::ElementsAre;

class GridTest : public ::testing::Test {
 protected:
  void SetUp() override {
    grid.SetColumns({{"", 0.05},
                     {.title = "Item", .share = 0.5, .editable = true, .max_length = 5},
                     {.title = "Jan", .editable = true, .numeric = true},
                     {.title = "Used"}},
                    1);
    grid.SetRows(4);
    grid.on_select = [this] { ++selections; };
    grid.on_edit = [this](int row, int column) { edited = {row, column}; };
  }
  std::vector<std::string> Column(int column) {
    std::vector<std::string> texts;
    for (int row = 0; row < grid.rows(); ++row) texts.push_back(grid.text(row, column));
    return texts;
  }
  void Fill(std::vector<std::string> items) {
    for (int row = 1; row < grid.rows(); ++row) {
      grid.SetText(row, 1, items.at(static_cast<std::size_t>(row - 1)));
    }
  }

  testing::FormRig rig;
  Grid grid{rig.form, "VSGd1", "Sheet"};
  int selections = 0;
  GridPlace edited;
};

TEST_F(GridTest, APersonEditsEditableCellsOnly) {
  grid.EditCell(1, 1, "Rent\tlong");
  EXPECT_EQ(grid.text(1, 1), "Rent ");
  EXPECT_EQ(edited, (GridPlace{1, 1}));
  EXPECT_EQ(grid.current(), (GridPlace{1, 1}));
  EXPECT_EQ(selections, 1);
  edited = {};
  for (const auto& [row, column] : {std::pair{0, 1}, {1, 0}, {1, 3}, {4, 1}, {1, 4}, {-1, -1}}) {
    grid.EditCell(row, column, "x");
    EXPECT_EQ(edited, GridPlace{}) << row << " " << column;
  }
  grid.SetEnabled(false);
  grid.EditCell(1, 2, "x");
  grid.SelectCell(2, 2);
  EXPECT_EQ(selections, 1);
}

TEST_F(GridTest, AScreenMaySendTheCursorElsewhereBeforeACellIsEdited) {
  grid.on_select = [this] { grid.SetCurrent({1, 1}); };
  grid.EditCell(2, 2, "5");
  EXPECT_EQ(grid.text(2, 2), "");
  EXPECT_EQ(edited, GridPlace{});
}

TEST_F(GridTest, RowsAreInsertedRemovedAndCutOff) {
  Fill({"a", "b", "c"});
  grid.InsertRow(2);
  EXPECT_THAT(Column(1), ElementsAre("Item", "a", "", "b", "c"));
  grid.SetRows(4);
  EXPECT_THAT(Column(1), ElementsAre("Item", "a", "", "b"));
  grid.SetCurrent({3, 1});
  grid.RemoveRow(1);
  EXPECT_THAT(Column(1), ElementsAre("Item", "", "b"));
  EXPECT_EQ(grid.current(), GridPlace{});
  grid.RemoveRow(0);
  grid.RemoveRow(9);
  grid.ClearCells();
  EXPECT_THAT(Column(1), ElementsAre("Item", "", ""));
  grid.SetRows(-3);
  EXPECT_EQ(grid.rows(), 1);
}

TEST_F(GridTest, SortsByTextOrByNumberAndTakesStylesAlong) {
  Fill({"b", "A", "a"});
  grid.SetText(1, 2, "9.50");
  grid.SetText(2, 2, "10");
  grid.SetText(3, 2, "x");
  grid.SetStyle(1, 2, {0x0000FF, true});
  grid.Sort(1, false);
  EXPECT_THAT(Column(1), ElementsAre("Item", "A", "a", "b"));
  EXPECT_TRUE(grid.style(3, 2).bold);
  grid.Sort(2, true);
  EXPECT_THAT(Column(2), ElementsAre("Jan", "10", "9.50", "x"));
  EXPECT_EQ(grid.style(2, 2).color, 0x0000FF);
}

TEST_F(GridTest, ABatchOfChangesIsToldOnce) {
  int told = 0;
  const auto subscription = grid.OnChanged([&] { ++told; });
  {
    const Grid::Batch batch(grid);
    Fill({"a", "b", "c"});
  }
  EXPECT_EQ(told, 1);
}

}  // namespace
}  // namespace tarnwell::forms
