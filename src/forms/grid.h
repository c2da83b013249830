#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/control.h"
#include "forms/grid_cells.h"
#include "forms/grid_history.h"
#include "forms/grid_look.h"
#include "forms/grid_parts.h"

namespace tarnwell::forms {

// Cells of text in rows and columns. Row 0 is the heading row, of the columns' titles. The first
// columns may be fixed: a person neither selects nor edits a cell there. What lies outside is
// empty, and setting it does nothing.
class Grid : public Control {
 public:
  Grid(Container& parent, std::string_view name, std::string_view spoken_name);

  // Drops all rows but the heading, the marks and what could be undone. The first `held_columns`,
  // and the fixed ones in any case, stay at the left when the rest is scrolled sideways.
  void SetColumns(std::vector<GridColumn> columns, int fixed_columns = 0, int held_columns = 0);
  int columns() const { return cells_.columns(); }
  int fixed_columns() const { return fixed_columns_; }
  int held_columns() const { return held_columns_; }
  const GridColumn& column(int index) const { return columns_.at(static_cast<std::size_t>(index)); }
  void SetTitle(int column, std::string_view title);
  // From the next edit on, so `on_select` may set what that one cell offers.
  void SetChoices(int column, std::vector<std::string> choices);

  // The heading row included, so at least 1.
  int rows() const { return cells_.rows() + 1; }
  // New rows are empty; what stands below the last one is dropped. To keep a sheet at a number of
  // rows, call it after InsertRow and RemoveRow.
  void SetRows(int rows);
  // An empty row above that row, or a new last one. The cursor stays where it is.
  void InsertRow(int row);
  void RemoveRow(int row);
  // Empties all cells but the heading.
  void ClearCells();
  // By a column's texts, capitals or not, or its numbers; marks its heading. Either way blank cells
  // come behind the others and empty rows last. Rows that are equal keep their order. The cursor
  // and the marks go with their rows. Fixed columns don't count for whether a row is empty. With a
  // `key` it is what the cells count as, such as the days of dates. Gives the old place of each
  // row, for the first row first.
  std::vector<int> Sort(int column, bool descending, const GridSortKey& key = {});

  const std::string& text(int row, int column) const;
  void SetText(int row, int column, std::string_view text);
  GridCellStyle style(int row, int column) const;
  void SetStyle(int row, int column, const GridCellStyle& style);

  // The cell with the cursor; row 0 for none.
  const GridPlace& current() const { return current_; }
  // Gives up what is being typed in another cell. In on_validate or on_edit it decides where the
  // person goes, even if it names the cell where they are.
  void SetCurrent(GridPlace place);

  // A row painted as in hand, for a question about it; 0 for none.
  int highlight() const { return highlight_; }
  void SetHighlight(int row);
  const std::optional<GridSortMark>& sort_mark() const { return sort_mark_; }
  void SetSortMark(std::optional<GridSortMark> mark);
  GridSelection selection() const { return selection_; }
  void SetSelection(GridSelection selection);
  // Ascending. With GridSelection::kRow it is the cursor's row, with kCell none.
  std::vector<int> selected_rows() const;
  // For GridSelection::kRows.
  void SetSelectedRows(std::vector<int> rows);

  const GridLook& look() const { return look_; }
  void SetLook(const GridLook& look);

  // What a person does. Going anywhere else ends the edit of a cell first; where that is refused
  // the cursor stays and the edit goes on.

  // Goes to a cell, by a click or the keys.
  void SelectCell(int row, int column);
  void Step(GridStep step);
  // Marks these rows and puts the cursor in that cell. For GridSelection::kRows.
  void SelectRows(std::vector<int> rows, GridPlace cursor);
  void ClickHeading(int column);
  // Has typed this in the cell with the cursor, which isn't in it before the edit ends.
  void TypeInCell(std::string_view text);
  // What is typed so far; empty where no cell is being edited.
  const std::optional<std::string>& typed() const { return typed_; }
  // False where it is refused. A form calls it, too, before it saves or leaves.
  bool EndEdit();
  void CancelEdit();
  // All of it at once: goes to the cell, types and ends. For what a person chose elsewhere, such as
  // a day in a calendar, it is better than SetText, for it can be undone.
  bool EditCell(int row, int column, std::string_view text);
  // Takes back or does again an edit of a cell, of the last GridHistory::kMost. It counts as the
  // person's edit, but on_validate isn't asked. What the program writes is never undone: a batch
  // of it, or new rows from the start, leaves nothing to undo.
  void Undo();
  void Redo();
  bool CanUndo() const { return history_.Back(); }
  bool CanRedo() const { return history_.Forward(); }

  std::function<void()> on_select;
  // Asked before an edit stands; it may mend the text. False refuses: the person has that text in
  // the cell still and goes on typing. A form says why, and doesn't unload itself here.
  std::function<bool(int row, int column, std::string& text)> on_validate;
  std::function<void(int row, int column)> on_edit;
  std::function<void(int column)> on_heading;

  // For a listener to OnChanged, while it is told.
  const GridChange& change() const { return change_; }

  // While one lives, changes are told once, at its end. For filling many cells.
  class Batch {
   public:
    explicit Batch(Grid& grid) : grid_(grid) { ++grid_.batches_; }
    ~Batch();
    Batch(const Batch&) = delete;
    Batch& operator=(const Batch&) = delete;

   private:
    Grid& grid_;
  };

 private:
  // What the program's writing is part of at present.
  enum class Taking { kNone, kEdit, kRestore };

  bool HasCell(int row, int column) const;
  bool CanSelect(int row, int column) const;
  bool CanEdit(int row, int column) const;
  GridArea AllCells() const { return {1, rows() - 1, 0, columns() - 1}; }
  void Tell(const GridChange& change);
  void MoveRows(const std::function<int(int)>& to);
  void KeepCurrentInside();
  void Place(GridPlace place);
  void KeepHistoryTrue(int row, int column, std::string_view text);
  void TakeEdit(GridPlace place, std::string_view text);
  bool GoBackTo(GridPlace place);
  void Restore(GridPlace place, const std::string& text);

  std::vector<GridColumn> columns_;
  int fixed_columns_ = 0;
  int held_columns_ = 0;
  GridCells cells_;
  GridPlace current_;
  int placings_ = 0;  // how often the program has put the cursor somewhere
  std::optional<std::string> typed_;
  Taking taking_ = Taking::kNone;
  bool is_asking_ = false;  // on_validate runs
  GridHistory history_;
  int highlight_ = 0;
  std::optional<GridSortMark> sort_mark_;
  GridSelection selection_ = GridSelection::kCell;
  std::vector<int> selected_;
  GridLook look_;
  int batches_ = 0;
  GridChange pending_;  // of the batch
  GridChange change_;
};

}  // namespace tarnwell::forms
