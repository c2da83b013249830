// Arrangements that read from top to bottom and from left to right:
//
//   return Column({
//       Row({Widget(form.date_picker), Grow(DayRows(form))}),
//       Row({Widget(form.save), Spring(), Widget(form.exit)}),
//   });

#pragma once

#include <QWidget>
#include <initializer_list>

#include "desktop/widgets/look.h"

namespace tarnwell::desktop {

// One place in a row or a column. A widget goes in as it is.
struct Cell {
  Cell(QWidget* content) : widget(content) {}  // NOLINT: implicit, so that views read well

  QWidget* widget;  // nullptr for empty space
  int grow = 0;
  Qt::Alignment align = {};
};

// Takes its share of the space that is left over.
Cell Grow(Cell cell, int share = 1);
// Empty space that takes what is left over.
Cell Spring(int share = 1);
// No larger than it needs to be, in the middle of its place or at its start.
Cell Centered(Cell cell);
Cell AtStart(Cell cell);
Cell AtTop(Cell cell);

QWidget* Row(std::initializer_list<Cell> cells, int space = kSpace);
QWidget* Column(std::initializer_list<Cell> cells, int space = kSpace);
// Rows of cells under each other; the column `growing` takes the width that is left over.
QWidget* Grid(std::initializer_list<std::initializer_list<Cell>> rows, int growing = 0);
// Adds to the end of a row or column.
void Append(QWidget* row_or_column, Cell cell);
// No wider than so many average letters of its font.
QWidget* AtMost(QWidget* content, int letters);
// Exactly as wide as a field for so many letters.
QWidget* OfLetters(QWidget* field, int letters);
QWidget* Padded(QWidget* content, int space = kPageSpace);

// A white card with round corners, readable on any background.
QWidget* Card(QWidget* content, int space = kPageSpace);

}  // namespace tarnwell::desktop
