#pragma once

#include <QTableView>
#include <functional>
#include <map>
#include <vector>

#include "desktop/widgets/cell_editing.h"
#include "desktop/widgets/grid_header.h"
#include "desktop/widgets/grid_model.h"
#include "desktop/widgets/pictures.h"

namespace tarnwell::desktop {

// A grid on the screen: columns as wide as their shares or as a person dragged them, the cell in
// hand, and what the person chose to lie behind the cells.
class GridView : public QTableView {
 public:
  GridView(forms::Grid& grid, const PictureStore& pictures);
  ~GridView() override;

  // What the grid tells of, and where its cursor is.
  void Show();
  // Ends an edit that is under way; false where it goes on. Without one true.
  bool EndEdit();

  // Of the grid, 1 for the first row below the heading.
  std::function<void(int row, int column)> on_select;
  std::function<void(std::vector<int> rows, forms::GridPlace cursor)> on_rows;
  std::function<void(int column)> on_heading;
  std::function<void(const QString& text)> on_type;
  std::function<void()> on_end_edit;
  std::function<void()> on_cancel_edit;
  std::function<void(forms::GridStep step)> on_step;
  std::function<void(bool back)> on_undo;

  QRect visualRect(const QModelIndex& index) const override;
  QModelIndex indexAt(const QPoint& point) const override;
  void scrollTo(const QModelIndex& index, ScrollHint hint) override;

 protected:
  void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  using QTableView::edit;
  bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void selectionChanged(const QItemSelection& on, const QItemSelection& off) override;

 private:
  template <typename Work>
  void Act(Work work);
  void Report();
  void Step(forms::GridStep step);
  std::vector<int> MarkedRows() const;
  void ShareWidth();
  void ShowCurrent();
  void ShowEdit(bool has_moved);
  void ShowMarks();
  void ShowSelectedRows();
  void ShowLook();
  void CloseEditor();
  bool LeaveFor(const QModelIndex& index);
  void PaintHeld(const QRect& area);

  forms::Grid& grid_;
  const PictureStore& pictures_;
  GridModel model_;
  GridHeader* header_;
  CellEditing* editing_;
  forms::GridLook look_;
  int highlight_ = 0;  // painted
  // Columns to their widths, for each number of columns that the grid had.
  std::map<int, std::map<int, int>> dragged_;
  bool is_showing_ = false;  // what changes now isn't a person's doing
  bool is_acting_ = false;   // Qt is at work on a key or a click
};

// Ends the edit of the cell that has the keys, before a command runs. False where it goes on.
bool EndEditUnderKeys();

}  // namespace tarnwell::desktop
