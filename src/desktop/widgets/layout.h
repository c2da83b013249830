// Arrangements that read from top to bottom and from left to right:
//
//   return Column({
//       Row({Widget(form.date_picker), Grow(DayRows(form))}),
//       Row({Widget(form.save), Spring(), Widget(form.exit)}),
//   });

#pragma once

#include <QBoxLayout>
#include <QWidget>
#include <initializer_list>
#include <vector>

#include "desktop/widgets/look.h"

namespace tarnwell::desktop {

inline constexpr int kLettersOfPanel = 150;  // the width of a panel that covers a screen

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

// Rows and columns that lie in each other ask for the least height that will do at a width, and for
// that at no more than their widget's greatest width. Qt's own would ask for what they like best.
class TightLayout : public QBoxLayout {
 public:
  using QBoxLayout::QBoxLayout;

  int heightForWidth(int width) const override;

 private:
  mutable bool measuring_ = false;
};

QWidget* Row(std::initializer_list<Cell> cells, int space = kSpace);
QWidget* Column(std::initializer_list<Cell> cells, int space = kSpace);
// From left to right, in as many rows as it takes.
QWidget* Flow(std::initializer_list<QWidget*> widgets, int space = kSpace);
// Rows of cells under each other; the column `growing` takes the width that is left over.
QWidget* Grid(std::initializer_list<std::initializer_list<Cell>> rows, int growing = 0);
// Labels, each in front of its field; a field without one stands below the field above it.
struct LabelledField {
  QWidget* label;  // nullptr for none
  QWidget* field;
};
QWidget* Fields(const std::vector<LabelledField>& rows, int space = kTightSpace);
// Adds to the end of a row or column.
void Append(QWidget* row_or_column, Cell cell);
// No wider than so many average letters of its font.
QWidget* AtMost(QWidget* content, int letters);
// `content` with that much room, or with more where it needs more.
QWidget* AtLeast(QSize size, QWidget* content);
// Exactly as wide as a field for so many letters.
QWidget* OfLetters(QWidget* field, int letters);
QWidget* Padded(QWidget* content, int space = kPageSpace);

// `content` in its place; with scroll bars where the place is smaller than the least that it needs.
QWidget* Scrolled(QWidget* content);
// Likewise, for a column: never narrower than its content.
QWidget* ScrolledColumn(QWidget* content);
// `main` and, to its left, a `side` that a person may narrow.
QWidget* Narrowable(QWidget* side, QWidget* main);

// A white card with round corners, readable on any background.
QWidget* Card(QWidget* content, int space = kPageSpace);

}  // namespace tarnwell::desktop
