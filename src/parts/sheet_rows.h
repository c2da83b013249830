// The rows of a sheet: a grid that keeps as many of them as it was given. Rows are inserted, taken
// away and sorted inside it; where its first column is fixed, that column numbers them.

#pragma once

#include <vector>

#include "forms/grid.h"

namespace tarnwell::parts {

// Gives the sheet that many rows below the heading; new ones are empty.
void SetSheetRows(forms::Grid& grid, int rows);

// Holds no text but its number; neither does a row that isn't there.
bool IsSheetRowBlank(const forms::Grid& grid, int row);
// The first row whose cell in that column is blank; 0 where there is none.
int FirstBlankCell(const forms::Grid& grid, int column);

// An empty row above that one; the rows from there on move down. False where the last row holds
// something, which would be lost: then nothing has changed.
bool InsertSheetRow(forms::Grid& grid, int row);
// The rows below move up, and the last one is empty.
void DeleteSheetRow(forms::Grid& grid, int row);
// Empties all cells but the rows' numbers.
void ClearSheet(forms::Grid& grid);
// By that column: upwards, or downwards where it was sorted upwards last. Blank cells come last
// either way. Gives the old place of each row, for the first row first.
std::vector<int> SortSheet(forms::Grid& grid, int column, const forms::GridSortKey& key = {});

}  // namespace tarnwell::parts
