#pragma once

#include <QAbstractTableModel>
#include <QFont>

#include "forms/grid.h"

namespace tarnwell::desktop {

// The cells of a grid below its heading row, which is the header. They are empty once the grid has
// gone: a window on its way out still asks.
class GridModel : public QAbstractTableModel {
 public:
  explicit GridModel(forms::Grid& grid);

  bool HasGone() const { return !alive_.Connected(); }
  // Tells the views of what has changed. Selection and editors hold unless the columns are others.
  void Follow(const forms::GridChange& change);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  void FitRows();
  void TellCells(forms::GridArea area);

  forms::Grid& grid_;
  forms::Subscription alive_;
  int rows_ = 0;  // told to the views
  int columns_ = 0;
  QFont bold_;
};

}  // namespace tarnwell::desktop
