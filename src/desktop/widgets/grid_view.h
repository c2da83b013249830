#pragma once

#include <QTableView>
#include <functional>

#include "desktop/widgets/grid_model.h"
#include "desktop/widgets/pictures.h"

namespace tarnwell::desktop {

// A grid on the screen: columns as wide as their shares, the cell in hand, and what the person
// chose to lie behind the cells.
class GridView : public QTableView {
 public:
  GridView(forms::Grid& grid, const PictureStore& pictures);

  void Show();
  // Of the grid, 1 for the first row below the heading.
  std::function<void(int row, int column)> on_select;
  std::function<void(int column)> on_heading;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

 private:
  void ShareWidth();
  void ShowCurrent();
  void ShowLook();

  forms::Grid& grid_;
  const PictureStore& pictures_;
  GridModel model_;
  forms::GridLook look_;
  bool showing_ = false;  // what changes now isn't a person's doing
};

}  // namespace tarnwell::desktop
