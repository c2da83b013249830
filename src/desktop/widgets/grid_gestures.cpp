// Keys, clicks and the editing of cells as gestures of a Grid.

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>

#include "desktop/widgets/grid_view.h"
#include "desktop/widgets/text.h"

namespace tarnwell::desktop {
namespace {

bool Moves(int key) {
  return (key >= Qt::Key_Home && key <= Qt::Key_PageDown);  // the arrows lie between
}

}  // namespace

// What Qt makes of a key or a click goes to the grid as one gesture.
template <typename Work>
void GridView::Act(Work work) {
  {
    const QScopedValueRollback acting(is_acting_, true);
    work();
  }
  Report();
}

void GridView::keyPressEvent(QKeyEvent* event) {
  if (editing_->editor()) {
    // What the editor has no use for. A page up or down leaves it, the rest isn't for cells.
    const bool leaves = event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown;
    if (!leaves) return event->ignore();
    if (!EndEdit()) return;
  }
  if (event->matches(QKeySequence::Undo)) return on_undo(true);
  if (IsRedo(*event)) return on_undo(false);
  if (grid_.current().row == 0 && Moves(event->key())) return Step(forms::GridStep::kDown);
  Act([&] { QTableView::keyPressEvent(event); });
}

void GridView::mousePressEvent(QMouseEvent* event) {
  const QModelIndex index = indexAt(event->pos());
  const forms::GridPlace place{index.row() + 1, index.column()};
  // Qt has nothing to tell then, but a form may have something to show for each click.
  const bool is_there_already = index.isValid() && place == grid_.current() && !grid_.typed() &&
                                grid_.selection() != forms::GridSelection::kRows;
  if (LeaveFor(index)) Act([&] { QTableView::mousePressEvent(event); });
  if (is_there_already && event->button() == Qt::LeftButton && place == grid_.current()) {
    on_select(place.row, place.column);
  }
}

// False where the edit goes on or the form has put the cursor elsewhere.
bool GridView::LeaveFor(const QModelIndex& index) {
  const forms::GridPlace place{index.row() + 1, index.column()};
  const bool goes = grid_.typed() && place != grid_.current() &&
                    grid_.selection() != forms::GridSelection::kRows &&
                    model_.flags(index).testFlag(Qt::ItemIsSelectable);
  if (goes) on_select(place.row, place.column);
  if (grid_.typed() && (goes || !EndEdit())) {
    editing_->editor()->setFocus(Qt::OtherFocusReason);
    return false;
  }
  CloseEditor();
  return !goes || grid_.current() == place;
}

void GridView::mouseMoveEvent(QMouseEvent* event) {
  Act([&] { QTableView::mouseMoveEvent(event); });
}

void GridView::mouseReleaseEvent(QMouseEvent* event) {
  Act([&] { QTableView::mouseReleaseEvent(event); });
}

void GridView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (EndEdit()) Act([&] { QTableView::mouseDoubleClickEvent(event); });
}

bool GridView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
  // The form may have put the cursor elsewhere than where the person clicked.
  const forms::GridPlace place{index.row() + 1, index.column()};
  return place == grid_.current() && QTableView::edit(index, trigger, event);
}

bool GridView::EndEdit() {
  if (model_.HasGone()) return true;
  if (grid_.typed()) on_end_edit();
  if (grid_.typed()) return false;
  CloseEditor();
  return true;
}

void GridView::CloseEditor() {
  if (editing_->editor()) closeEditor(editing_->editor(), QAbstractItemDelegate::NoHint);
}

// Qt closes an editor wherever the keys go; here an edit ends when the grid says so.
void GridView::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
  if (model_.HasGone() || !grid_.typed()) QTableView::closeEditor(editor, hint);
}

void GridView::Step(forms::GridStep step) {
  const bool was_editing = editing_->editor();
  const forms::GridPlace before = grid_.current();
  on_step(step);
  if (grid_.typed()) return;
  CloseEditor();
  const bool goes_on = step == forms::GridStep::kNext || step == forms::GridStep::kPrevious;
  const bool can_edit = model_.flags(currentIndex()).testFlag(Qt::ItemIsEditable);
  if (was_editing && goes_on && can_edit && grid_.current() != before) edit(currentIndex());
}

void GridView::ShowEdit(bool has_moved) {
  if (!grid_.typed()) {
    if (has_moved) CloseEditor();
    return;
  }
  if (!editing_->editor() && isVisible()) edit(currentIndex());
  editing_->ShowTyped(FromCore(*grid_.typed()));
}

bool EndEditUnderKeys() {
  for (QWidget* widget = QApplication::focusWidget(); widget; widget = widget->parentWidget()) {
    if (auto* view = dynamic_cast<GridView*>(widget)) return view->EndEdit();
  }
  return true;
}

}  // namespace tarnwell::desktop
