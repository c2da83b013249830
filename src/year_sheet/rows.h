// The rows of a year's sheet as its file has them: one text for each cell, row by row, and nothing
// that marks the end of a row.

#pragma once

#include <string>
#include <vector>

#include "storage/sequential_file.h"

namespace tarnwell::year_sheet {

// The texts of its cells; the column of the rows' numbers isn't among them.
using Row = std::vector<std::string>;
using Rows = std::vector<Row>;

bool IsBlank(const Row& row);

// The cells of the file's next rows; empty texts where it ends early.
Rows ReadRows(storage::SequentialReader& file, int rows, int columns);
void WriteRows(storage::SequentialWriter& file, const Rows& rows);

}  // namespace tarnwell::year_sheet
