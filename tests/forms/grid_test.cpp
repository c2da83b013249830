#include "forms/grid.h"

#include <gmock/gmock.h>

#include "support/form_rig.h"

namespace tarnwell::forms {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

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
  // What the grid told of while `work` ran.
  GridChange ToldOf(const std::function<void()>& work) {
    GridChange told;
    const auto subscription = grid.OnChanged([&] { told.Add(grid.change()); });
    work();
    return told;
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
    EXPECT_FALSE(grid.EditCell(row, column, "x"));
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

TEST_F(GridTest, SortsWithBlankCellsBehindAndEmptyRowsLast) {
  grid.SetRows(7);
  Fill({"", "b", "", "A", "a", ""});
  grid.SetText(1, 2, "0");
  grid.SetText(2, 2, "9.50");
  grid.SetText(4, 2, "10");
  grid.SetText(5, 2, "x");
  const struct {
    int column;
    bool descending;
    std::vector<std::string> items, numbers;
  } kCases[] = {
      {1, false, {"Item", "A", "a", "b", "", "", ""}, {"Jan", "10", "x", "9.50", "0", "", ""}},
      {1, true, {"Item", "b", "A", "a", "", "", ""}, {"Jan", "9.50", "10", "x", "0", "", ""}},
      {2, false, {"Item", "a", "", "b", "A", "", ""}, {"Jan", "x", "0", "9.50", "10", "", ""}},
      {2, true, {"Item", "A", "b", "a", "", "", ""}, {"Jan", "10", "9.50", "x", "0", "", ""}},
  };
  for (const auto& sorted : kCases) {
    grid.Sort(sorted.column, sorted.descending);
    EXPECT_EQ(Column(1), sorted.items);
    EXPECT_EQ(Column(2), sorted.numbers);
    EXPECT_EQ(grid.sort_mark(), (GridSortMark{sorted.column, sorted.descending}));
  }
}

TEST_F(GridTest, WhatARowHasGoesWithIt) {
  grid.SetSelection(GridSelection::kRows);
  Fill({"c", "b", "a"});
  grid.SetStyle(1, 2, {0x0000FF, true});
  grid.EditCell(1, 2, "1");
  grid.SelectRows({3, 1, 3, 9}, {1, 2});
  grid.SetHighlight(1);
  grid.Sort(1, false);
  EXPECT_EQ(grid.style(3, 2), (GridCellStyle{0x0000FF, true}));
  EXPECT_EQ(grid.current(), (GridPlace{3, 2}));
  EXPECT_THAT(grid.selected_rows(), ElementsAre(1, 3));
  EXPECT_EQ(grid.highlight(), 3);
  grid.InsertRow(2);
  EXPECT_THAT(grid.selected_rows(), ElementsAre(1, 4));
  grid.RemoveRow(1);
  EXPECT_THAT(grid.selected_rows(), ElementsAre(3));
  EXPECT_EQ(grid.highlight(), 3);
  grid.Undo();
  EXPECT_EQ(grid.text(3, 2), "");
  grid.RemoveRow(3);
  EXPECT_EQ(grid.highlight(), 0);
  EXPECT_FALSE(grid.CanRedo()) << "its row is gone";
}

TEST_F(GridTest, ARefusedEditHoldsTheCursorWhereverThePersonGoes) {
  int asked = 0;
  grid.on_validate = [&](int row, int column, std::string& text) {
    EXPECT_EQ((GridPlace{row, column}), (GridPlace{2, 1}));
    ++asked;
    grid.SelectCell(3, 1);  // as from the window, while the box that says why is open
    if (text != "good") text = text == "bad" ? "" : text;
    return text == "good";
  };
  const std::function<void()> kWays[] = {[&] { grid.Step(GridStep::kNext); },
                                         [&] { grid.Step(GridStep::kPrevious); },
                                         [&] { grid.Step(GridStep::kUp); },
                                         [&] { grid.Step(GridStep::kDown); },
                                         [&] { grid.SelectCell(3, 2); },
                                         [&] { grid.ClickHeading(1); },
                                         [&] { grid.EndEdit(); },
                                         [&] { grid.Undo(); },
                                         [&] { grid.EditCell(1, 1, "x"); }};
  grid.on_heading = [](int) { ADD_FAILURE() << "the heading was reached"; };
  grid.SelectCell(2, 1);
  selections = 0;
  for (const auto& go : kWays) {
    asked = 0;
    grid.TypeInCell("wrong");
    go();
    EXPECT_EQ(grid.current(), (GridPlace{2, 1}));
    EXPECT_EQ(grid.typed(), "wrong");
    EXPECT_EQ(asked, 1);
  }
  EXPECT_EQ(grid.text(2, 1), "");
  EXPECT_EQ(edited, GridPlace{});
  EXPECT_EQ(selections, 0);
  grid.TypeInCell("bad");
  EXPECT_FALSE(grid.EndEdit());
  EXPECT_EQ(grid.typed(), "") << "the form has emptied it";
  grid.TypeInCell("good");
  grid.Step(GridStep::kDown);
  EXPECT_EQ(grid.text(2, 1), "good");
  EXPECT_EQ(grid.current(), (GridPlace{3, 1}));
  grid.on_validate = nullptr;
  grid.TypeInCell("x");
  grid.CancelEdit();
  EXPECT_TRUE(grid.EndEdit());
  EXPECT_EQ(grid.text(3, 1), "");
}

TEST_F(GridTest, AFormPutsTheCursorBackFromAnEdit) {
  grid.on_edit = [this](int row, int column) {
    grid.SetText(row, column, "");
    grid.SetCurrent({row, column});
  };
  grid.SelectCell(2, 1);
  for (const GridStep step : {GridStep::kNext, GridStep::kDown}) {
    grid.TypeInCell("no");
    grid.Step(step);
    EXPECT_EQ(grid.current(), (GridPlace{2, 1}));
    EXPECT_EQ(grid.text(2, 1), "");
  }
  grid.on_edit = [this](int, int) { grid.SetCurrent({1, 1}); };
  grid.TypeInCell("a");
  grid.SelectCell(3, 2);
  EXPECT_EQ(grid.current(), (GridPlace{1, 1}));
}

TEST_F(GridTest, StepsGoThroughTheCellsThatAPersonCanReach) {
  const struct {
    GridPlace from;
    GridStep step;
    GridPlace to;
  } kCases[] = {
      {{0, 0}, GridStep::kDown, {1, 1}},     {{1, 3}, GridStep::kNext, {2, 1}},
      {{2, 1}, GridStep::kPrevious, {1, 3}}, {{3, 3}, GridStep::kNext, {3, 3}},
      {{1, 1}, GridStep::kPrevious, {1, 1}}, {{3, 2}, GridStep::kDown, {3, 2}},
      {{1, 2}, GridStep::kUp, {1, 2}},       {{2, 2}, GridStep::kUp, {1, 2}},
  };
  for (const auto& [from, step, to] : kCases) {
    grid.SetCurrent(from);
    grid.Step(step);
    EXPECT_EQ(grid.current(), to) << from.row << " " << from.column;
  }
}

TEST_F(GridTest, EditsAreTakenBackAndDoneAgainWithAllThatHangsOnThem) {
  grid.on_validate = [](int, int, std::string& text) { return text != "no"; };
  grid.on_edit = [this](int row, int column) {
    edited = {row, column};
    if (column == 2) grid.SetText(row, 2, grid.text(row, 2) + ".00");
    grid.SetText(row, 3, grid.text(row, 2));
  };
  grid.SetText(1, 1, "no");
  grid.EditCell(1, 1, "a");
  grid.EditCell(2, 2, "5");
  grid.SelectCell(3, 1);
  grid.on_edit = [this](int row, int column) {
    edited = {row, column};
    grid.SetText(row, 3, grid.text(row, 2));
  };
  grid.Undo();
  EXPECT_EQ(edited, (GridPlace{2, 2}));
  EXPECT_EQ(grid.current(), (GridPlace{2, 2}));
  EXPECT_EQ(grid.text(2, 3), "");
  grid.Undo();
  EXPECT_EQ(grid.text(1, 1), "no") << "it stood there before";
  EXPECT_FALSE(grid.CanUndo());
  grid.Undo();
  grid.Redo();
  grid.Redo();
  EXPECT_EQ(grid.text(1, 1), "a");
  EXPECT_EQ(grid.text(2, 3), "5.00");
  grid.Undo();
  grid.EditCell(3, 1, "new");
  EXPECT_FALSE(grid.CanRedo());
}

TEST_F(GridTest, WhatTheProgramWritesIsNotThePersonsToUndo) {
  const std::pair<const char*, std::function<void()>> kFills[] = {
      {"that cell", [this] { grid.SetText(1, 1, "p"); }},
      {"a batch",
       [this] {
         const Grid::Batch batch(grid);
         grid.SetText(2, 2, grid.text(2, 2) + "1");
       }},
      {"a clearing", [this] { grid.ClearCells(); }},
      {"new rows",
       [this] {
         grid.SetRows(1);
         grid.SetRows(4);
       }},
      {"its row", [this] { grid.RemoveRow(1); }},
      {"new columns",
       [this] {
         grid.SetColumns({{.title = "A"}, {.title = "B"}});
       }},
  };
  for (const auto& [name, fill] : kFills) {
    grid.EditCell(1, 1, grid.text(1, 1) + "x");
    ASSERT_TRUE(grid.CanUndo()) << name;
    fill();
    EXPECT_FALSE(grid.CanUndo()) << name;
  }
}

TEST_F(GridTest, OnlyTheLastFiveHundredEditsAreKept) {
  for (int i = 0; i <= 500; ++i) grid.EditCell(1, 2, std::to_string(i));
  int undone = 0;
  for (; grid.CanUndo(); ++undone) grid.Undo();
  EXPECT_EQ(undone, 500);
  EXPECT_EQ(grid.text(1, 2), "0");
}

TEST_F(GridTest, TheRowOfTheCursorOrAnyRowsCanBeMarked) {
  grid.SelectRows({1}, {1, 1});
  EXPECT_THAT(grid.selected_rows(), IsEmpty());
  grid.SetSelection(GridSelection::kRow);
  grid.SelectCell(2, 1);
  EXPECT_THAT(grid.selected_rows(), ElementsAre(2));
  grid.SetSelection(GridSelection::kRows);
  selections = 0;
  grid.SelectRows({3, 1}, {3, 1});
  EXPECT_THAT(grid.selected_rows(), ElementsAre(1, 3));
  EXPECT_EQ(grid.current(), (GridPlace{3, 1}));
  EXPECT_EQ(selections, 1);
  grid.SelectCell(2, 2);
  EXPECT_THAT(grid.selected_rows(), ElementsAre(2));
}

TEST_F(GridTest, ANotificationSaysWhatHasChanged) {
  Fill({"a", "b", "c"});
  const auto cells = [](const GridChange& told) {
    return std::vector{told.cells.first_row, told.cells.last_row, told.cells.first_column,
                       told.cells.last_column};
  };
  GridChange told = ToldOf([this] { grid.SetText(2, 1, "x"); });
  EXPECT_THAT(cells(told), ElementsAre(2, 2, 1, 1));
  EXPECT_FALSE(told.rows || told.cursor || told.marks || told.look || told.columns);
  told = ToldOf([this] { grid.SelectCell(2, 2); });
  EXPECT_TRUE(told.cursor && told.cells.empty() && !told.marks);
  told = ToldOf([this] { grid.InsertRow(2); });
  EXPECT_TRUE(told.rows && !told.columns);
  told = ToldOf([this] { grid.SetLook({0x123456, ""}); });
  EXPECT_TRUE(told.look && told.cells.empty());
  told = ToldOf([this] {
    grid.SetText(2, 1, grid.text(2, 1));
    grid.SetHighlight(0);
    grid.SetEnabled(false);
  });
  EXPECT_TRUE(told.cells.empty() && !told.marks);
}

TEST_F(GridTest, ABatchOfChangesIsToldOnce) {
  int told = 0;
  GridArea area;
  const auto subscription = grid.OnChanged([&] {
    ++told;
    area = grid.change().cells;
  });
  {
    const Grid::Batch batch(grid);
    grid.SetText(3, 1, "c");
    grid.SetText(1, 2, "a");
  }
  EXPECT_EQ(told, 1);
  EXPECT_EQ(area.size(), 6);
}

}  // namespace
}  // namespace tarnwell::forms
