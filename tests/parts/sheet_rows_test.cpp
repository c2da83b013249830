#include "parts/sheet_rows.h"

#include <gmock/gmock.h>

#include "support/form_rig.h"

namespace tarnwell::parts {
namespace {

using ::testing::ElementsAre;

class SheetRowsTest : public ::testing::Test {
 protected:
  SheetRowsTest() {
    grid.SetColumns({{.title = ""}, {.title = "Item", .editable = true}, {.title = "Date"}}, 1);
    SetSheetRows(grid, 5);
    int row = 0;
    for (const char* item : {"b", "", "a"}) grid.SetText(++row, 1, item);
  }
  // Each row's number and item.
  std::vector<std::string> Rows() const {
    std::vector<std::string> rows;
    for (int row = 1; row < grid.rows(); ++row)
      rows.push_back(grid.text(row, 0) + grid.text(row, 1));
    return rows;
  }

  testing::FormRig rig;
  forms::Grid grid{rig.form, "VSGd1", "Sheet"};
};

TEST_F(SheetRowsTest, RowsMoveAndTheirNumbersStay) {
  grid.SetCurrent({3, 1});
  EXPECT_TRUE(InsertSheetRow(grid, 1));
  EXPECT_THAT(Rows(), ElementsAre("1", "2b", "3", "4a", "5"));
  EXPECT_EQ(FirstBlankCell(grid, 1), 1);
  DeleteSheetRow(grid, 2);
  EXPECT_THAT(Rows(), ElementsAre("1", "2", "3a", "4", "5"));
  EXPECT_TRUE(IsSheetRowBlank(grid, 1));
  EXPECT_FALSE(IsSheetRowBlank(grid, 3));
  ClearSheet(grid);
  EXPECT_THAT(Rows(), ElementsAre("1", "2", "3", "4", "5"));
}

TEST_F(SheetRowsTest, ARowThatWouldFallOutKeepsTheSheetAsItIs) {
  grid.SetText(5, 2, "Mon");
  EXPECT_FALSE(InsertSheetRow(grid, 1));
  EXPECT_THAT(Rows(), ElementsAre("1b", "2", "3a", "4", "5"));
  for (int row = 1; row <= 5; ++row) grid.SetText(row, 1, "x");
  EXPECT_EQ(FirstBlankCell(grid, 1), 0);
  grid.SetCurrent({5, 1});
  DeleteSheetRow(grid, 5);
  EXPECT_EQ(grid.current(), (forms::GridPlace{5, 1}));
  EXPECT_THAT(Rows(), ElementsAre("1x", "2x", "3x", "4x", "5"));
}

TEST_F(SheetRowsTest, SortedRowsHaveBlanksLastEitherWayAndCanStillBeUndone) {
  grid.SetText(2, 2, "only a date");
  grid.EditCell(1, 1, "c");
  SortSheet(grid, 1);
  EXPECT_THAT(Rows(), ElementsAre("1a", "2c", "3", "4", "5"));
  EXPECT_EQ(grid.text(3, 2), "only a date");
  SortSheet(grid, 1);
  EXPECT_THAT(Rows(), ElementsAre("1c", "2a", "3", "4", "5"));
  grid.Undo();
  EXPECT_THAT(Rows(), ElementsAre("1b", "2a", "3", "4", "5"));
  SortSheet(grid, 1, [](const std::string& cell) { return cell == "b" ? "1" : cell; });
  EXPECT_THAT(Rows(), ElementsAre("1b", "2a", "3", "4", "5"));
}

}  // namespace
}  // namespace tarnwell::parts
