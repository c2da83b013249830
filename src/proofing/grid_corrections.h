// A spelling check of one column of a grid. The check runs over a copy of the column; what it
// changed is then carried over to the rows by a walk of our own, which finds whole cells and words
// between blanks.

#pragma once

#include <cstddef>
#include <set>
#include <string>
#include <vector>

#include "forms/context.h"
#include "forms/grid.h"
#include "proofing/spelling_session.h"

namespace tarnwell::proofing {

// Puts the corrections into the rows, in code page 1252, one after the other and each in all rows,
// in the capitals of the words that are found. A correction finds a word that has a blank, or an
// end of the row, on either side; of two such words that share a blank only the first. Rows that
// have a text are trimmed and cut to `longest` characters on the way. An entry "TheEnd1", in any
// capitals, ends the list of changes. Words that the check kept stay in these capitals.
void CorrectRows(std::vector<std::string>& rows, std::vector<SpellingChange> changes,
                 std::size_t longest, const std::set<std::string>& kept = {});

// Checks the column's cells below the heading row, with the cursor on the cell that is asked about.
// How many words were changed.
std::size_t CheckSpellingOfColumn(forms::Context& context, forms::Grid& grid, int column,
                                  std::size_t longest);

}  // namespace tarnwell::proofing
