#include "desktop/widgets/layout.h"

#include <QGridLayout>
#include <algorithm>

namespace tarnwell::desktop {
namespace {

QWidget* Box(QBoxLayout::Direction direction, std::initializer_list<Cell> cells, int space) {
  auto* widget = new QWidget;
  auto* layout = new TightLayout(direction, widget);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(space);
  for (const Cell& cell : cells) Append(widget, cell);
  return widget;
}

}  // namespace

Cell Grow(Cell cell, int share) {
  cell.grow = share;
  return cell;
}

Cell Spring(int share) { return Grow(Cell(nullptr), share); }

Cell Centered(Cell cell) {
  cell.align = Qt::AlignCenter;
  return cell;
}

Cell AtStart(Cell cell) {
  cell.align = Qt::AlignLeft | Qt::AlignVCenter;
  return cell;
}

Cell AtTop(Cell cell) {
  cell.align = Qt::AlignTop;
  return cell;
}

void Append(QWidget* row_or_column, Cell cell) {
  auto* layout = static_cast<QBoxLayout*>(row_or_column->layout());
  if (cell.widget) {
    layout->addWidget(cell.widget, cell.grow, cell.align);
  } else {
    layout->addStretch(cell.grow);
  }
}

// Qt finds the least height on its way to the usual one, through this very function.
int TightLayout::heightForWidth(int width) const {
  if (measuring_) return QBoxLayout::heightForWidth(width);
  measuring_ = true;
  const int least = minimumHeightForWidth(std::min(width, parentWidget()->maximumWidth()));
  measuring_ = false;
  return least;
}

QWidget* Row(std::initializer_list<Cell> cells, int space) {
  return Box(QBoxLayout::LeftToRight, cells, space);
}

QWidget* Column(std::initializer_list<Cell> cells, int space) {
  return Box(QBoxLayout::TopToBottom, cells, space);
}

QWidget* Grid(std::initializer_list<std::initializer_list<Cell>> rows, int growing) {
  auto* widget = new QWidget;
  auto* layout = new QGridLayout(widget);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(kSpace);
  layout->setColumnStretch(growing, 1);
  int row = 0;
  for (const auto& cells : rows) {
    int column = 0;
    for (const Cell& cell : cells) {
      if (cell.widget) layout->addWidget(cell.widget, row, column, cell.align);
      ++column;
    }
    ++row;
  }
  return widget;
}

QWidget* Fields(const std::vector<LabelledField>& rows, int space) {
  auto* widget = new QWidget;
  auto* layout = new QGridLayout(widget);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setHorizontalSpacing(kSpace);
  layout->setVerticalSpacing(space);
  layout->setColumnStretch(1, 1);
  for (int row = 0; const LabelledField& line : rows) {
    if (line.label) layout->addWidget(line.label, row, 0);
    layout->addWidget(line.field, row++, 1);
  }
  return widget;
}

QWidget* AtMost(QWidget* content, int letters) {
  content->setMaximumWidth(letters * content->fontMetrics().averageCharWidth());
  return content;
}

QWidget* AtLeast(QSize size, QWidget* content) {
  QWidget* column = Column({Grow(content)}, 0);
  QWidget* row = Row({Grow(column)}, 0);
  static_cast<QBoxLayout*>(column->layout())->addStrut(size.width());
  static_cast<QBoxLayout*>(row->layout())->addStrut(size.height());
  return row;
}

QWidget* OfLetters(QWidget* field, int letters) {
  field->setFixedWidth(letters * field->fontMetrics().horizontalAdvance(QLatin1Char('0')) +
                       2 * kSpace);
  return field;
}

QWidget* Padded(QWidget* content, int space) {
  QWidget* widget = Column({content}, 0);
  widget->layout()->setContentsMargins(space, space, space, space);
  return widget;
}

}  // namespace tarnwell::desktop
