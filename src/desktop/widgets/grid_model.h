#pragma once

#include <QAbstractTableModel>

#include "forms/grid.h"

namespace tarnwell::desktop {

// The cells of a grid below its heading row, which is the header. What is set goes to the grid as a
// person's edit. Needs the grid to stay as long as it is asked.
class GridModel : public QAbstractTableModel {
 public:
  explicit GridModel(forms::Grid& grid) : grid_(grid) {}

  // The grid has changed. Selection and editors hold where the number of cells is the same.
  void Refresh();

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;

 private:
  forms::Grid& grid_;
  int rows_ = 0;
  int columns_ = 0;
};

}  // namespace tarnwell::desktop
