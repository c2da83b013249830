#include "desktop/widgets/grid_model.h"

#include <QColor>
#include <QFont>

#include "desktop/widgets/look.h"
#include "desktop/widgets/text.h"

namespace tarnwell::desktop {
namespace {

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

void GridModel::Refresh() {
  if (rows_ != grid_.rows() - 1 || columns_ != grid_.columns()) {
    beginResetModel();
    rows_ = grid_.rows() - 1;
    columns_ = grid_.columns();
    endResetModel();
    return;
  }
  if (columns_ == 0) return;
  emit headerDataChanged(Qt::Horizontal, 0, columns_ - 1);
  if (rows_ > 0) emit dataChanged(index(0, 0), index(rows_ - 1, columns_ - 1));
}

int GridModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

int GridModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : columns_;
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
  const int row = GridRow(index);
  switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
      return FromCore(grid_.text(row, index.column()));
    case Qt::TextAlignmentRole:
      return AlignmentOf(grid_.column(index.column()).align);
    case Qt::ForegroundRole:
      if (const auto color = grid_.style(row, index.column()).color) return ToQColor(*color);
      return {};
    case Qt::FontRole:
      if (grid_.style(row, index.column()).bold) return ScaledFont(TextSize::kStrong);
      return {};
    default:
      return {};
  }
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section >= grid_.columns()) return {};
  if (role == Qt::DisplayRole) return FromCore(grid_.column(section).title);
  if (role == Qt::TextAlignmentRole) return AlignmentOf(grid_.column(section).align);
  return {};
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
  if (!index.isValid() || index.column() < grid_.fixed_columns()) return Qt::ItemIsEnabled;
  const auto selectable = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
  return grid_.column(index.column()).editable ? selectable | Qt::ItemIsEditable : selectable;
}

bool GridModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::EditRole) return false;
  grid_.EditCell(GridRow(index), index.column(), ToCore(value.toString()));
  return true;
}

}  // namespace tarnwell::desktop
