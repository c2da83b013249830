#include "desktop/widgets/grid_model.h"

#include <QColor>
#include <algorithm>

#include "desktop/widgets/look.h"
#include "desktop/widgets/text.h"
#include "forms/spoken.h"

namespace tarnwell::desktop {
namespace {

constexpr int kFewCells = 64;  // told one by one; of more the view repaints all that it shows

// The grid counts its heading as row 0.
int GridRow(const QModelIndex& index) { return index.row() + 1; }

int AlignmentOf(forms::GridAlign align) {
  switch (align) {
    case forms::GridAlign::kLeft:
      break;
    case forms::GridAlign::kCenter:
      return Qt::AlignCenter;
    case forms::GridAlign::kRight:
      return Qt::AlignRight | Qt::AlignVCenter;
  }
  return Qt::AlignLeft | Qt::AlignVCenter;
}

}  // namespace

GridModel::GridModel(forms::Grid& grid)
    : grid_(grid), alive_(grid.OnChanged([] {})), bold_(ScaledFont(TextSize::kStrong)) {
  Follow({.columns = true});
}

void GridModel::Follow(const forms::GridChange& change) {
  if (change.columns) {
    beginResetModel();
    rows_ = grid_.rows() - 1;
    columns_ = grid_.columns();
    endResetModel();
    return;
  }
  if (columns_ == 0) return;
  if (change.titles) emit headerDataChanged(Qt::Horizontal, 0, columns_ - 1);
  if (change.rows) FitRows();
  TellCells(change.cells);
}

// Which rows came and went doesn't matter here: what stands in the others is told as their change.
void GridModel::FitRows() {
  const int rows = grid_.rows() - 1;
  if (rows > rows_) {
    beginInsertRows({}, rows_, rows - 1);
    rows_ = rows;
    endInsertRows();
  } else if (rows < rows_) {
    beginRemoveRows({}, rows, rows_ - 1);
    rows_ = rows;
    endRemoveRows();
  }
}

void GridModel::TellCells(forms::GridArea area) {
  area.last_row = std::min(area.last_row, rows_);
  if (area.empty()) return;
  if (area.size() > kFewCells) {
    emit dataChanged(index(area.first_row - 1, area.first_column),
                     index(area.last_row - 1, area.last_column));
    return;
  }
  for (int row = area.first_row; row <= area.last_row; ++row) {
    for (int column = area.first_column; column <= area.last_column; ++column) {
      const QModelIndex cell = index(row - 1, column);
      emit dataChanged(cell, cell);
    }
  }
}

int GridModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

int GridModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : columns_;
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
  if (HasGone() || index.column() >= grid_.columns()) return {};
  const int row = GridRow(index);
  switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
      return FromCore(grid_.text(row, index.column()));
    case Qt::AccessibleTextRole:
      return FromCore(forms::SpokenCell(grid_, row, index.column()));
    case Qt::TextAlignmentRole:
      return AlignmentOf(grid_.column(index.column()).align);
    case Qt::ForegroundRole:
      if (const auto color = grid_.style(row, index.column()).color) return ToQColor(*color);
      return {};
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
      return FromCore(grid_.style(row, index.column()).note);
    case Qt::FontRole:
      if (grid_.style(row, index.column()).bold) return bold_;
      return {};
    default:
      return {};
  }
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (HasGone() || orientation != Qt::Horizontal || section >= grid_.columns()) return {};
  if (role == Qt::DisplayRole) return FromCore(grid_.column(section).title);
  if (role == Qt::TextAlignmentRole) return AlignmentOf(grid_.column(section).align);
  return {};
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
  if (HasGone() || !index.isValid() || index.column() < grid_.fixed_columns()) {
    return Qt::ItemIsEnabled;
  }
  const auto selectable = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
  return grid_.column(index.column()).editable ? selectable | Qt::ItemIsEditable : selectable;
}

}  // namespace tarnwell::desktop
